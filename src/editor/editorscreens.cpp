#include "editorscreens.h"

#include "addtextvc.h"
#include "editimageportraitmode.h"
#include "editvideoportraitmode.h"
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
    storyboard.registerScreen<AddTextVC>(
        QStringLiteral("AddTextVC"), QUrl(QStringLiteral("qrc:/Quillet/Editor/Layers/AddTextVCView.qml")));
    storyboard.registerFactory(
        QStringLiteral("SaveImageVC"), QUrl(views + QStringLiteral("SaveImageVCView.qml")), [&storyboard, album] {
            auto *screen = new SaveImageVC();
            screen->setStoryboard(&storyboard);
            screen->setPhotoAlbum(album);
            return screen;
        });
}

EditorSession *makeEditor(const QString &className)
{
    if (className == QLatin1String("EditImagePortraitMode"))
        return new EditImagePortraitMode();
    if (className == QLatin1String("EditVideoPortraitMode"))
        return new EditVideoPortraitMode();
    return nullptr;
}

} // namespace EditorScreens
