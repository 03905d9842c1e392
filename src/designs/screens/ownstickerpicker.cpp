#include "ownstickerpicker.h"

#include "navigationcontroller.h"
#include "pickertarget.h"

#include <QStringList>

OwnStickerPicker::OwnStickerPicker(QObject *parent)
    : ViewController(parent)
{ }

PickerTarget *OwnStickerPicker::editorBelow() const
{
    NavigationController *stack = navigationController();
    if (!stack)
        return nullptr;
    const QList<ViewController *> screens = stack->viewControllers();
    const qsizetype below = screens.indexOf(const_cast<OwnStickerPicker *>(this)) - 1;
    if (below < 0)
        return nullptr;
    static const QStringList landscape { QStringLiteral("MoreEditImageVC"), QStringLiteral("MoreEditVideoVC") };
    static const QStringList portrait { QStringLiteral("EditImagePortraitMode"),
        QStringLiteral("EditVideoPortraitMode") };
    ViewController *screen = screens.at(below);
    if (!(vcTag == 2 ? landscape : portrait).contains(screen->identifier()))
        return nullptr;
    return dynamic_cast<PickerTarget *>(screen);
}

void OwnStickerPicker::handOver(const QImage &picture)
{
    PickerTarget *editor = editorBelow();
    if (picture.isNull() || !editor)
        return;
    PickedSticker sticker;
    sticker.newStickerImage = picture;
    // The user's own work keeps its colours; it comes from no sticker catalog.
    sticker.newStickerHasColor = true;
    editor->setNewStickerImage(sticker);
    PickerTarget::popTo(editor, this);
}
