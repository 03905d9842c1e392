#include "mydesignsscreens.h"

#include "myartvc.h"
#include "mydesignvc.h"
#include "savedphotosmorevc.h"
#include "savedphotosvc.h"
#include "savedvideosmorevc.h"
#include "storyboard.h"

namespace MyDesignsScreens {

namespace {

QUrl view(const QString &file)
{
    return QUrl(QStringLiteral("qrc:/Quillet/Designs/Screens/") + file);
}

} // namespace

void registerScreens(Storyboard &storyboard)
{
    storyboard.registerFactory(
        QStringLiteral("SavedPhotosVC"), view(QStringLiteral("SavedPhotosVCView.qml")), [&storyboard] {
            auto *screen = new SavedPhotosVC();
            screen->setStoryboard(&storyboard);
            return screen;
        });
    storyboard.registerScreen<SavedPhotosMoreVC>(
        QStringLiteral("SavedPhotosMoreVC"), view(QStringLiteral("SavedMoreSheetView.qml")));
    storyboard.registerScreen<SavedVideosMoreVC>(
        QStringLiteral("SavedVideosMoreVC"), view(QStringLiteral("SavedMoreSheetView.qml")));
    storyboard.registerScreen<MyDesignVC>(QStringLiteral("MyDesignVC"), view(QStringLiteral("MyDesignVCView.qml")));
    storyboard.registerScreen<MyArtVC>(QStringLiteral("MyArtVC"), view(QStringLiteral("MyArtVCView.qml")));
}

} // namespace MyDesignsScreens
