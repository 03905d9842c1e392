#include "fullvideoscreenvc.h"

#include "navigationcontroller.h"
#include "storyboard.h"

#include <QFileInfo>

FullVideoScreenVC::FullVideoScreenVC(QObject *parent)
    : ViewController(parent)
{ }

FullVideoScreenVC *FullVideoScreenVC::show(
    NavigationController *navigation, const Storyboard *storyboard, const QUrl &file, const QString &deviceOrientation)
{
    if (!navigation || !storyboard || file.isEmpty())
        return nullptr;
    auto *screen = qobject_cast<FullVideoScreenVC *>(storyboard->instantiate(QStringLiteral("FullVideoScreenVC")));
    if (!screen)
        return nullptr;
    screen->deviceOrientation = deviceOrientation;
    if (QFileInfo(file.path()).suffix().compare(QLatin1String("gif"), Qt::CaseInsensitive) == 0) {
        screen->gifURL = file;
        navigation->push(screen);
    } else {
        screen->videoURL = file;
        navigation->present(screen);
    }
    return screen;
}

void FullVideoScreenVC::btnCloseClicked()
{
    NavigationController *navigation = navigationController();
    if (!navigation)
        return;
    if (videoURL.isEmpty())
        navigation->pop();
    else
        navigation->dismiss();
}
