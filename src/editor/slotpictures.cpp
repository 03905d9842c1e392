#include "slotpictures.h"

#include "editorsession.h"
#include "imagepickertarget.h"
#include "navigationcontroller.h"
#include "picturefile.h"
#include "picturesourcesheet.h"

SlotPictures::SlotPictures(EditorSession &session)
    : m_session(session)
{ }

bool SlotPictures::choosePictureFor(View *slot)
{
    auto *outlined = qobject_cast<BorderedResizableImageView *>(slot);
    auto *picture = qobject_cast<StaticResizableImageView *>(slot);
    if (!outlined && !picture)
        return false;
    m_session.deselectAll();
    m_session.selection.select(slot);
    const bool hasImage = outlined ? !outlined->isNotImage() : picture->hasPicture();
    NavigationController *navigation = m_session.navigationController();
    if (!m_storyboard || !navigation)
        return false;
    return PictureSourceSheet::open(*m_storyboard, *navigation, ImagePickerTarget::selectedLayerTag, hasImage)
        != nullptr;
}

bool SlotPictures::place(View *slot, const QImage &picture)
{
    if (picture.isNull())
        return false;
    const QString file = PictureFile::write(picture);
    if (auto *outlined = qobject_cast<BorderedResizableImageView *>(slot)) {
        auto &record = outlined->frameImageStickerJson;
        if (!record)
            return false;
        outlined->setPicture(picture);
        record->image_sticker_selected_image = picture;
        record->pip_image = file;
        // One write of the picture's place, status 2 and the step.
        outlined->updateFrameImageStickerJson(record);
        return true;
    }
    auto *slotView = qobject_cast<StaticResizableImageView *>(slot);
    if (!slotView || !slotView->imageStickerJson)
        return false;
    auto &record = slotView->imageStickerJson;
    slotView->setPicture(picture);
    record->image_sticker_selected_image = picture;
    if (!file.isEmpty())
        record->image_sticker_image = file;
    record->centerX.reset();
    record->centerY.reset();
    record->zScale.reset();
    record->status = 2;
    if (slotView->delegate)
        slotView->delegate->slotDidUpdate(record);
    return true;
}
