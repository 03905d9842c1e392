#pragma once

#include "imagestickerjson.h"
#include "imageview.h"
#include "slotdelegate.h"
#include "slotview.h"

#include <memory>
#include <optional>

/**
 * A picture slot: a fixed hole in the design whose picture moves, scales and turns inside it, clipped
 * by it. The record keeps the slot's unturned frame origin as it is, and its size less `buttonSize`.
 * The picture's own place is kept as its centre (`centerX`, `centerY`) and its scale (`zScale`).
 */
class StaticResizableImageView : public SlotView
{
    Q_OBJECT
public:
    static constexpr qreal buttonSize = 30.0;
    static constexpr qreal editButtonSize = 40.0;
    static constexpr qreal contentInset = 15.0;

    explicit StaticResizableImageView(const QRectF &frame, QObject *parent = nullptr);

    SlotDelegate<ImageStickerJson> *delegate = nullptr;
    std::shared_ptr<ImageStickerJson> imageStickerJson;
    /** The picture's bounds at the start and end of the last pinch. */
    std::optional<QRectF> currentBounds;
    /** The last pinch step that grew the picture. */
    qreal zScale = 1;

    View *borderView;
    SlotMainView *mainView;
    ImageView *contentImageView;
    View *editView;
    /** The "img_edit" picture in the middle of editView. */
    ImageView *editButton;

    [[nodiscard]] SlotMainView *hole() const override { return mainView; }
    [[nodiscard]] bool isSelected() const { return !borderView->isHidden(); }
    [[nodiscard]] bool takesGestures() const override { return isSelected(); }
    [[nodiscard]] bool pinchFromStart() const override { return false; }
    [[nodiscard]] bool hasPicture() const { return !contentImageView->image().isNull(); }
    void tapGesture() override;
    void hideControls();
    /** The picture in the slot, filling it, unmoved and unscaled. */
    void setPicture(const QImage &picture);
    /** Puts the picture where the record's `centerX`, `centerY` and `zScale` say. */
    void applyRecordGeometry();

    // The picture's gestures, ignored while the slot is not selected; each one's end is one change.
    void panGesture(GesturePhase phase, const QPointF &translation) override;
    /**
     * A step that would leave the picture smaller than it was loaded is dropped; the others are applied on
     * the next turn of the event loop, as the screen's pinch runs.
     */
    void pinchGesture(GesturePhase phase, qreal scale) override;
    void rotateGesture(GesturePhase phase, qreal radians) override;

    /** Rewrites the record from the live slot and tells the editor it is attached. */
    void setTag(qint64 tag) override;

private:
    /** Writes the picture's place into the record, status 2, and tells the editor. */
    void commitPicture();
};
