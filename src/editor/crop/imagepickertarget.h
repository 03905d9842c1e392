#pragma once

#include "croptarget.h"

/**
 * The editor as the picture sheet and the crop screen see it. Before the sheet opens, the editor keeps
 * the background's frame and notes in `imagePickerTag` what the picture is for; the cut picture then goes
 * where the tag says. The editor implements the operations; the routing is here.
 */
class ImagePickerTarget : public CropTarget
{
public:
    /** The picture replaces the selected layer's picture. */
    static constexpr int selectedLayerTag = 1;
    /** The picture becomes the background. */
    static constexpr int backgroundTag = 2;
    /** The picture becomes a new sticker, or the selected slot's picture. */
    static constexpr int stickerTag = 3;

    [[nodiscard]] virtual int imagePickerTag() const = 0;
    virtual void setImagePickerTag(int tag) = 0;
    /** Keeps the background view's frame in `bgOriginalFrame`. */
    virtual void keepBgOriginalFrame() = 0;

    /** The selected layer's picture is replaced. */
    virtual void replaceSelectedLayerImage(const QImage &image) = 0;
    /** The picture becomes the background, as a picture from the gallery does. */
    virtual void setBackgroundImage(const QImage &image) = 0;
    /** A picture slot or an outlined slot is selected (`selectedImageView`, `selectedBorderedImageView`). */
    [[nodiscard]] virtual bool hasSelectedSlot() const = 0;
    /** A new sticker at the default place, with `selected_sticker_catalog_id` cleared. */
    virtual void addSticker(const QImage &image) = 0;
    /**
     * The selected slot's `tintedImage` takes the picture, shown as a template, tinted again when
     * `setTintColor` is set and white otherwise; the slot's area is refitted and the picture stored.
     */
    virtual void replaceSelectedSlotImage(const QImage &image) = 0;

    /** Dismisses the crop screen, then hands the picture on by `imagePickerTag`. */
    void cropViewControllerDidCrop(
        CropViewController &cropViewController, const QImage &image, const QRect &rect, int angle) final;
    /** Dismisses the crop screen; nothing changes. */
    void cropViewControllerDidFinishCancelled(CropViewController &cropViewController) final;

private:
    /** Hands a picture on by `imagePickerTag`; a picture for another tag goes nowhere. */
    void routeImage(const QImage &image);
};
