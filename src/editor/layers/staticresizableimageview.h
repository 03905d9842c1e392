#pragma once

#include "imagestickerjson.h"
#include "imageview.h"
#include "slotdelegate.h"
#include "slotview.h"

#include <memory>

/**
 * A picture slot: a fixed hole in the design whose picture moves, scales and turns inside it, clipped
 * by it. The record keeps the slot's unturned frame origin as it is, and its size less `buttonSize`.
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
    qreal zScale = 1;

    View *borderView;
    View *mainView;
    ImageView *contentImageView;
    View *editView;

    [[nodiscard]] bool isSelected() const { return !borderView->isHidden(); }
    void tapGesture();
    void hideControls();
    /** The picture in the slot, filling it. */
    void setPicture(const QImage &picture);
    /** Rewrites the record from the live slot and tells the editor it is attached. */
    void setTag(qint64 tag) override;
};
