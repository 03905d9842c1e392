#include "designsscreens.h"

#include "fullscreenvc.h"
#include "fullvideoscreenvc.h"
#include "storyboard.h"

namespace DesignsScreens {

void registerScreens(Storyboard &storyboard)
{
    const QString views = QStringLiteral("qrc:/Quillet/Designs/");
    storyboard.registerScreen<FullScreenVC>(
        QStringLiteral("FullScreenVC"), QUrl(views + QStringLiteral("FullScreenVCView.qml")));
    storyboard.registerScreen<FullVideoScreenVC>(
        QStringLiteral("FullVideoScreenVC"), QUrl(views + QStringLiteral("FullVideoScreenVCView.qml")));
}

} // namespace DesignsScreens
