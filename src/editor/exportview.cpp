#include "exportview.h"

#include "navigationcontroller.h"

ExportView::ExportView(QObject *parent)
    : ViewController(parent)
{ }

void ExportView::btnItem1Clicked()
{
    choose(ExportMediaType::Video);
}

void ExportView::btnItem2Clicked()
{
    choose(ExportMediaType::GIF);
}

void ExportView::closeClicked()
{
    if (NavigationController *navigation = navigationController())
        navigation->dismiss();
}

void ExportView::choose(ExportMediaType type)
{
    // The delegate dismisses this view; it may be gone once the call returns.
    if (delegate)
        delegate(type);
}
