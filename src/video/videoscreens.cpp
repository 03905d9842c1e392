#include "videoscreens.h"

#include "storyboard.h"
#include "videoeditorcontroller.h"

namespace VideoScreens {

void registerScreens(Storyboard &storyboard)
{
    storyboard.registerScreen<VideoEditorController>(QStringLiteral("VideoEditorController"),
        QUrl(QStringLiteral("qrc:/Quillet/Video/VideoEditorControllerView.qml")));
}

} // namespace VideoScreens
