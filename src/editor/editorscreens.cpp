#include "editorscreens.h"

#include "editimageportraitmode.h"
#include "saveimagevc.h"
#include "storyboard.h"

namespace EditorScreens {

void registerScreens(Storyboard &storyboard, const PhotoAlbum &album)
{
    const QString views = QStringLiteral("qrc:/Quillet/Editor/");
    storyboard.registerFactory(
        QStringLiteral("EditImagePortraitMode"), QUrl(views + QStringLiteral("EditorView.qml")), [&storyboard] {
            auto *editor = new EditImagePortraitMode();
            editor->setStoryboard(&storyboard);
            return editor;
        });
    storyboard.registerFactory(
        QStringLiteral("SaveImageVC"), QUrl(views + QStringLiteral("SaveImageVCView.qml")), [&storyboard, album] {
            auto *screen = new SaveImageVC();
            screen->setStoryboard(&storyboard);
            screen->setPhotoAlbum(album);
            return screen;
        });
}

} // namespace EditorScreens
