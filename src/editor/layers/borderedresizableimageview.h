#pragma once

#include "frameimagestickerjson.h"
#include "imageview.h"
#include "slotdelegate.h"
#include "slotview.h"

#include <memory>

/**
 * An outlined picture slot: a frame whose picture lies behind a mask, with its own geometry for the
 * picture inside. Empty, it shows a plus on grey and is left out of the exported picture.
 */
class BorderedResizableImageView : public SlotView
{
    Q_OBJECT
public:
    static constexpr qreal buttonSize = 26.0;
    static constexpr qreal contentInset = 15.0;

    explicit BorderedResizableImageView(const QRectF &frame, QObject *parent = nullptr);

    SlotDelegate<FrameImageStickerJson> *delegate = nullptr;
    std::shared_ptr<FrameImageStickerJson> frameImageStickerJson;
    qreal zAngleImage = 0;
    bool isActive = false;

    View *mainView;
    ImageView *contentImageView;

    /** True while the slot holds no picture. */
    [[nodiscard]] bool isNotImage() const { return m_emptySlot != nullptr; }
    /** Puts a picture in the slot, or empties it with a null picture. */
    void setPicture(const QImage &image);
    void tapGesture();
    /** Writes the picture's alpha as `opacity` 0 to 100 and tells the editor. */
    void storeOpacity();
    void setTag(qint64 tag) override;

private:
    void buildEmptySlot();
    View *m_emptySlot = nullptr;
};
