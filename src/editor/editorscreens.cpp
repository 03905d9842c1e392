#include "editorscreens.h"

#include "addtextvc.h"
#include "editimageportraitmode.h"
#include "editvideoportraitmode.h"
#include "exportview.h"
#include "highlighteditor.h"
#include "moreeditimagevc.h"
#include "moreeditvideovc.h"
#include "saveimagevc.h"
#include "savevideovc.h"
#include "storyboard.h"

namespace EditorScreens {

namespace {

// The five editors share one view; each opens its screens from the storyboard.
template<class Editor> void addEditor(Storyboard &storyboard, const QString &identifier)
{
    storyboard.registerFactory(identifier, QUrl(QStringLiteral("qrc:/Quillet/Editor/EditorView.qml")), [&storyboard] {
        auto *editor = new Editor();
        editor->setStoryboard(&storyboard);
        return editor;
    });
}

} // namespace

void registerScreens(Storyboard &storyboard, const PhotoAlbum &album)
{
    addEditor<EditImagePortraitMode>(storyboard, QStringLiteral("EditImagePortraitMode"));
    addEditor<MoreEditImageVC>(storyboard, QStringLiteral("MoreEditImageVC"));
    addEditor<HighLightEditor>(storyboard, QStringLiteral("HighLightEditor"));
    addEditor<EditVideoPortraitMode>(storyboard, QStringLiteral("EditVideoPortraitMode"));
    addEditor<MoreEditVideoVC>(storyboard, QStringLiteral("MoreEditVideoVC"));
    storyboard.registerScreen<AddTextVC>(
        QStringLiteral("AddTextVC"), QUrl(QStringLiteral("qrc:/Quillet/Editor/Layers/AddTextVCView.qml")));
    storyboard.registerFactory(QStringLiteral("SaveImageVC"),
        QUrl(QStringLiteral("qrc:/Quillet/Editor/SaveImageVCView.qml")), [&storyboard, album] {
            auto *screen = new SaveImageVC();
            screen->setStoryboard(&storyboard);
            screen->setPhotoAlbum(album);
            return screen;
        });
    storyboard.registerScreen<ExportView>(
        QStringLiteral("ExportView"), QUrl(QStringLiteral("qrc:/Quillet/Editor/ExportViewView.qml")));
    storyboard.registerFactory(QStringLiteral("SaveVideoVC"),
        QUrl(QStringLiteral("qrc:/Quillet/Editor/SaveVideoVCView.qml")), [&storyboard, album] {
            auto *screen = new SaveVideoVC();
            screen->setStoryboard(&storyboard);
            screen->setPhotoAlbum(album);
            return screen;
        });
}

EditorSession *makeEditor(const QString &className)
{
    if (className == QLatin1String("EditImagePortraitMode"))
        return new EditImagePortraitMode();
    if (className == QLatin1String("MoreEditImageVC"))
        return new MoreEditImageVC();
    if (className == QLatin1String("HighLightEditor"))
        return new HighLightEditor();
    if (className == QLatin1String("EditVideoPortraitMode"))
        return new EditVideoPortraitMode();
    if (className == QLatin1String("MoreEditVideoVC"))
        return new MoreEditVideoVC();
    return nullptr;
}

} // namespace EditorScreens
