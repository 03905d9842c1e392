#pragma once

#include "layerview.h"
#include "resizableimageviewdelegate.h"
#include "stickerimageview.h"
#include "stickerjson.h"

#include <QTransform>

#include <memory>

/**
 * A sticker: a free-floating picture on the canvas that the user moves, pinches, turns, resizes by its
 * handle, tints and fades. After every finished gesture it writes its picture's own unrotated box into
 * its record, which it shares with the document, and tells the editor.
 */
class ResizableImageView : public LayerView
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Stickers are made by the editor")
public:
    /** `pictureFrame` is the picture's frame; the layer grows by `buttonSize` around it. */
    explicit ResizableImageView(const QRectF &pictureFrame, QObject *parent = nullptr);

    ResizableImageViewDelegate *delegate = nullptr;
    std::shared_ptr<StickerJson> stickerJson;
    StickerImageView *contentImageView = nullptr;
    /** The scale last set through the scale slider; the slider reads sqrt(a² + c²) from it. */
    QTransform scaleTransform;

    /** Tints from `tintedImage` by multiplying with the colour and writes `color`. */
    void setStickerColor(const QColor &color);
    /** Resizes the picture area, keeping the centre, as when the picture is replaced. */
    void setContentSize(qreal width, qreal height);

    void buttonTapGesture() override;
    void buttonPanGesture(LayerView::GesturePhase phase, const QPointF &location) override;
    /** The scale slider, keeping the scale in `scaleTransform`; `scale` is against the held bounds. */
    void scaleStoring(qreal scale);
    /** The scale slider, resetting `scaleTransform` as a pinch does. */
    void scaleResetting(qreal scale);

    /** Writes the shown (or the uncoloured) picture to a file and names it in `sticker_image`. */
    void storeStickerImage();
    /** Writes the picture's alpha as `opacity` 0 to 100. */
    void storeOpacity();
    /** Keeps `json` as the record and writes the picture's unrotated box, the angle and status 2 into it. */
    void updateStickerJson(std::shared_ptr<StickerJson> json);
    /** The tag is the layer's document position: the record is written, numbered and attached. */
    void setTag(qint64 tag) override;
    /** Keeps the bounds and the transform as the start of the next scale. */
    void storeScalingState() override;

protected:
    void didSelect() override;
    void didDeselect() override;
    void didDrag() override;
    void didEndDrag() override;
    void pinchStep(LayerView::GesturePhase phase, qreal scale) override;
    void finishPinch() override;
    void commitGeometry() override;
    void storeAngle() override;

private:
    void setupViews();
    /** Applies a scale against `Holder.boundsBeforeScaling` when it passes the 56.0 floor. */
    void scaleTo(qreal scale, bool storeScale);
    void writeGeometry(StickerJson &json) const;
    void fitContentToMainView();
};
