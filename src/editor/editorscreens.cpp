#include "editorscreens.h"

#include "editimageportraitmode.h"
#include "editvideoportraitmode.h"
#include "exportview.h"
#include "saveimagevc.h"
#include "savevideovc.h"
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
        QStringLiteral("EditVideoPortraitMode"), QUrl(views + QStringLiteral("EditorView.qml")), [&storyboard] {
            auto *editor = new EditVideoPortraitMode();
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
    storyboard.registerScreen<ExportView>(
        QStringLiteral("ExportView"), QUrl(views + QStringLiteral("ExportViewView.qml")));
    storyboard.registerFactory(
        QStringLiteral("SaveVideoVC"), QUrl(views + QStringLiteral("SaveVideoVCView.qml")), [&storyboard, album] {
            auto *screen = new SaveVideoVC();
            screen->setStoryboard(&storyboard);
            screen->setPhotoAlbum(album);
            return screen;
        });
}

} // namespace EditorScreens
