#pragma once

#include "dashedborderview.h"
#include "frameimagestickerjson.h"
#include "imageview.h"
#include "slotdelegate.h"
#include "slotview.h"

#include <QRectF>
#include <QTransform>

#include <memory>

/**
 * The picture's bounds and transform before the outlined slot's pinch or turn began. One pair for the
 * process, apart from the stickers' Holder: only the active outlined slot is ever changed, and it
 * refreshes the pair at every selection, pinch end and turn.
 */
struct OutlinedHolder
{
    static inline QRectF boundsBeforeScaling;
    static inline QTransform transformBeforeScaling;
};

/**
 * An outlined picture slot: a frame whose picture lies behind a mask, with its own geometry for the
 * picture inside. Empty, it shows a plus on grey and is left out of the exported picture. Its picture
 * moves, scales and turns only while it is active, and each gesture's end is one change of the record.
 */
class BorderedResizableImageView : public SlotView
{
    Q_OBJECT
public:
    static constexpr qreal rotationDistance = 10.0;
    static constexpr qreal buttonSize = 26.0;
    static constexpr qreal contentInset = 15.0;
    static constexpr qreal plusSize = 24.0;

    explicit BorderedResizableImageView(const QRectF &frame, QObject *parent = nullptr);

    SlotDelegate<FrameImageStickerJson> *delegate = nullptr;
    std::shared_ptr<FrameImageStickerJson> frameImageStickerJson;
    qreal zAngleImage = 0;
    /** The picture's transform as it was before the last scale. */
    QTransform scaleTransform;

    SlotMainView *mainView;
    ImageView *contentImageView;
    /** The outline the slot shows while the picture stands at a snap angle; none otherwise. */
    DashedBorderView *dashedBorderView = nullptr;
    /** Shown while the slot is active. */
    DashedBorderView *redDashedBorderView;

    [[nodiscard]] SlotMainView *hole() const override { return mainView; }
    /** True while the slot holds no picture. */
    [[nodiscard]] bool isNotImage() const { return m_emptySlot != nullptr; }
    [[nodiscard]] bool isEmpty() const override { return isNotImage(); }
    [[nodiscard]] bool takesGestures() const override { return m_active; }
    [[nodiscard]] bool pinchFromStart() const override { return true; }
    /** The picture inside can be edited only while the slot is active. */
    [[nodiscard]] bool isActive() const { return m_active; }
    void setActive(bool active);
    /** The placeholder's own view, whose tap asks for a picture. */
    [[nodiscard]] View *plusView() const { return m_plusView; }
    /** Puts a picture in the slot, filling it unturned, or empties it with a null picture. */
    void setPicture(const QImage &image);
    /** The picture whose opaque part the slot's picture shows through. */
    void setMask(const QImage &mask) { mainView->setMask(mask); }

    /** Placed to active and back; nothing while empty. */
    void tapGesture() override;
    /** The placeholder's tap: the editor offers the picture sheet for this slot. */
    void plusTapGesture() override;
    /** Puts the picture back to the record's frame, unturned. */
    void doubleTapGesture() override;
    void panGesture(GesturePhase phase, const QPointF &translation) override;
    /** `scale` counts from the pinch's start. */
    void pinchGesture(GesturePhase phase, qreal scale) override;
    void rotateGesture(GesturePhase phase, qreal radians) override;

    /** Scales the picture from its size before the pinch about its centre; never below `buttonSize`. */
    void scaleContent(qreal scale);
    void rotateContent(qreal radians);
    /** Writes the picture's alpha as `opacity` 0 to 100 and tells the editor. */
    void storeOpacity();
    /** The dashed outline shows exactly while the picture stands at a snap angle. */
    void updateSnapBorder();
    /** The picture where the record puts it: the record's frame, then its own fields, then its turn. */
    void applyRecordGeometry();
    /** Turns the picture to `radians` from upright. */
    void setImageRotation(qreal radians);
    [[nodiscard]] QRectF unrotatedContentFrame() const;
    /** Stores the record with the picture's place and tells the editor. */
    void updateFrameImageStickerJson(const std::shared_ptr<FrameImageStickerJson> &json);
    void setTag(qint64 tag) override;

private:
    void buildEmptySlot();
    void storeScalingState();

    View *m_emptySlot = nullptr;
    View *m_plusView = nullptr;
    bool m_active = false;
};
