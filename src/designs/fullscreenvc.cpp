#include "fullscreenvc.h"

#include "navigationcontroller.h"

FullScreenVC::FullScreenVC(QObject *parent)
    : ViewController(parent)
{ }

void FullScreenVC::btnCloseClicked()
{
    if (NavigationController *navigation = navigationController())
        navigation->pop();
}
