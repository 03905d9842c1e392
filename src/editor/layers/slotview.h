#pragma once

#include "imagestickerjson.h"
#include "view.h"

#include <QImage>
#include <QRegion>
#include <QtQml/qqmlregistration.h>

/**
 * The hole of a slot that its picture shows through: its bounds, narrowed to a circle for a round slot
 * and to the opaque part of the mask picture for an outlined slot.
 */
class SlotMainView : public View
{
    Q_OBJECT
public:
    explicit SlotMainView(const QRectF &frame, QObject *parent = nullptr);

    void setRound(bool round);
    /** The picture whose opaque pixels let the slot's picture through, stretched over the bounds. */
    void setMask(const QImage &mask);
    [[nodiscard]] bool hasMask() const { return !m_maskRegion.isEmpty(); }
    void clip(QPainter &painter) const override;

private:
    bool m_round = false;
    // The mask's opaque area, at maskDetail pixels per point so that the edge holds up in HD saves.
    QRegion m_maskRegion;
};

/**
 * What the two kinds of picture slot share: a frame that the user never moves, and a turn, kept in
 * `zAngle`, that the record's frame does not include.
 */
class SlotView : public View
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Slots are made by the editor")
    Q_PROPERTY(QPointF layerCenter READ center NOTIFY changed)
    Q_PROPERTY(QSizeF layerSize READ layerSize NOTIFY changed)
    Q_PROPERTY(qreal rotationDegrees READ rotationDegrees NOTIFY changed)
    /** The hole that the picture shows through, in the slot's coordinates. */
    Q_PROPERTY(QRectF holeRect READ holeRect NOTIFY changed)
    /** An outlined slot without a picture, which shows its placeholder. */
    Q_PROPERTY(bool empty READ isEmpty NOTIFY changed)
    /** Whether a pinch's scale counts from its start (outlined slots) or from its last step (picture slots). */
    Q_PROPERTY(bool pinchFromStart READ pinchFromStart CONSTANT)
public:
    enum GesturePhase : int { Began = 1, Changed = 2, Ended = 3 };
    Q_ENUM(GesturePhase)

    explicit SlotView(const QRectF &frame, QObject *parent = nullptr);

    [[nodiscard]] QSizeF layerSize() const { return bounds().size(); }
    [[nodiscard]] qreal rotationDegrees() const;
    [[nodiscard]] QRectF holeRect() const { return hole()->frame(); }
    [[nodiscard]] virtual bool isEmpty() const { return false; }
    [[nodiscard]] virtual bool pinchFromStart() const = 0;

    // The gestures on the picture inside, as the recognisers report them; the kinds decide when they count.
    Q_INVOKABLE virtual void tapGesture() = 0;
    /** Only an outlined slot answers a double tap. */
    Q_INVOKABLE virtual void doubleTapGesture() { }
    /** Only an outlined slot has a placeholder. */
    Q_INVOKABLE virtual void plusTapGesture() { }
    Q_INVOKABLE virtual void panGesture(SlotView::GesturePhase phase, const QPointF &translation) = 0;
    Q_INVOKABLE virtual void pinchGesture(SlotView::GesturePhase phase, qreal scale) = 0;
    Q_INVOKABLE virtual void rotateGesture(SlotView::GesturePhase phase, qreal radians) = 0;
    /** Whether the picture takes gestures now: the slot is selected, or the outlined slot active. */
    [[nodiscard]] virtual bool takesGestures() const = 0;

    qreal zAngle = 0;
    bool is_round = false;

    /** Clips the picture to a circle of half its height. */
    void setRound(bool round);
    /** Turns the slot as loaded (radians) and remembers the angle. */
    void applyAngle(qreal radians);
    /** The frame as if it were not turned: the bounds' size about the centre. */
    [[nodiscard]] QRectF unrotatedFrame() const;
    [[nodiscard]] virtual SlotMainView *hole() const = 0;

protected:
    /** Writes the record's frame (the unturned origin, the size less `margin`) and the tag as an absent index. */
    void writeFrame(ImageStickerJson &record, qreal margin, qint64 tag) const;
};
