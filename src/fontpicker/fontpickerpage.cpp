#include "fontpickerpage.h"

#include "alertmodel.h"
#include "navigationcontroller.h"

NavigationController *FontpickerPage::navigation() const
{
    if (NavigationController *own = navigationController())
        return own;
    const auto *pager = qobject_cast<const ViewController *>(parent());
    return pager ? pager->navigationController() : nullptr;
}

void FontpickerPage::showMessage(const QString &message)
{
    if (NavigationController *stack = navigation())
        stack->presentAlert((new AlertModel(QString(), message))->addAction(QStringLiteral("OK")));
}
