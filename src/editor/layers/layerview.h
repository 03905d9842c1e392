#pragma once

#include "borderedview.h"
#include "dashedborderview.h"
#include "imageview.h"

#include <QPointF>
#include <QtQml/qqmlregistration.h>

#include <optional>

/**
 * The frame that sticker and text layers share: the picture or text area (`mainView`) inside an outer
 * view grown by `buttonSize`, the three corner handles, selection, hit test, move, the turn by handle
 * with its 45 degree snap and dashed border, and the turn by slider. The kinds supply what differs:
 * their delegate, the write-back of their record, and whether a turn refreshes the scaling memory.
 *
 * Gesture actions take the recogniser's phase and the values it reports, in the coordinates named on
 * each action; the QML items feed them from touch and mouse.
 */
class LayerView : public View
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Layers are made by the editor")
    Q_PROPERTY(QPointF layerCenter READ center NOTIFY changed)
    Q_PROPERTY(QSizeF layerSize READ layerSize NOTIFY changed)
    Q_PROPERTY(qreal rotationDegrees READ rotationDegrees NOTIFY changed)
    Q_PROPERTY(bool selected READ isSelected NOTIFY changed)
    Q_PROPERTY(bool snapped READ isSnapped NOTIFY changed)
    /** The picture or text area inside the layer, in the layer's coordinates. */
    Q_PROPERTY(QRectF contentRect READ contentRect NOTIFY changed)
    /** The side of a corner handle. */
    Q_PROPERTY(qreal handleSize READ handleSize CONSTANT)
public:
    enum GesturePhase : int { Began = 1, Changed = 2, Ended = 3 };
    Q_ENUM(GesturePhase)

    LayerView(const QRectF &frame, QObject *parent);

    qreal rotationDistance = 10.0;
    QSizeF default_size { 100.0, 125.0 };
    QColor borderColor = Qt::white;
    static constexpr qreal buttonSize = 28.0;
    static constexpr qreal contentInset = 14.0;
    qreal minWidth = 0;
    qreal minHeight = 0;
    std::optional<QPointF> prevPoint;
    qreal startAngle = 0;
    qreal zAngle = 0;

    View *mainContentView = nullptr;
    View *mainView = nullptr;
    View *bgView = nullptr;
    BorderedView *borderView = nullptr;
    ImageView *cancelButton = nullptr;
    ImageView *rotateButton = nullptr;
    ImageView *resizeButton = nullptr;
    DashedBorderView *dashedBorderView = nullptr;

    /** Selected exactly while `bgView` shows. */
    [[nodiscard]] bool isSelected() const { return bgView && !bgView->isHidden(); }
    [[nodiscard]] bool isSnapped() const { return dashedBorderView != nullptr; }
    [[nodiscard]] QSizeF layerSize() const { return bounds().size(); }
    [[nodiscard]] qreal rotationDegrees() const;
    [[nodiscard]] QRectF contentRect() const { return mainView->frame(); }
    [[nodiscard]] static qreal handleSize() { return buttonSize; }

    /** Selects: tells the delegate, then shows the background, border and handles. */
    Q_INVOKABLE void showControls();
    /** Deselects: tells the delegate, then hides the same views. */
    Q_INVOKABLE void hideControls();
    /** Shows or hides the background, border and handles without telling anyone. */
    void setControlsHidden(bool hidden);
    void layoutControls();

    /** A tap on the layer selects it. */
    Q_INVOKABLE void tapGesture();
    /** One-finger move; `translation` is the movement since the last step, in the superview. */
    Q_INVOKABLE void panGesture(LayerView::GesturePhase phase, const QPointF &translation);
    /** The close handle: the layer leaves the canvas. */
    Q_INVOKABLE virtual void buttonTapGesture() = 0;
    /** The resize handle; `location` is the touch in the layer's coordinates. */
    Q_INVOKABLE virtual void buttonPanGesture(LayerView::GesturePhase phase, const QPointF &location) = 0;
    /** The rotate handle; `location` is the touch in the superview's coordinates. */
    Q_INVOKABLE void buttonRotateGesture(LayerView::GesturePhase phase, const QPointF &location);
    /** Two-finger scale; `scale` is cumulative from the start of the pinch. Ended writes the record. */
    Q_INVOKABLE void pinchGesture(LayerView::GesturePhase phase, qreal scale);
    /** Two-finger turn; `rotation` is cumulative radians from the start of the gesture. Ended writes the record. */
    Q_INVOKABLE void rotateGesture(LayerView::GesturePhase phase, qreal rotation);
    /**
     * Two fingers on the layer: a pinch, and a turn for a kind that turns with two fingers. The gesture
     * is one change: the record is written once, when the fingers lift.
     */
    Q_INVOKABLE void twoFingerGesture(LayerView::GesturePhase phase, qreal scale, qreal rotation);
    /** Texts turn with two fingers; stickers have no rotation recogniser. */
    [[nodiscard]] virtual bool turnsWithTwoFingers() const { return false; }

    void snapRotation();
    void updateSnapBorder();
    void addDashedBorder();
    void removeDashedBorder();
    /** A turn from the rotation slider: no snap and no record write. */
    Q_INVOKABLE void rotate(qreal radians);
    /** The turn of a loaded record, in radians, as the load builds it. */
    void applyLoadedAngle(qreal radians);

    /** The frame as if the layer were not turned: the bounds around the centre. */
    [[nodiscard]] QRectF unrotatedFrame() const;
    /** Inside the area, or while selected also inside a handle. */
    [[nodiscard]] bool pointInside(const QPointF &point) const override;

    /** Maps a point of the superview into the layer, for the QML items. */
    Q_INVOKABLE QPointF layerPoint(const QPointF &superviewPoint) const { return mapFromSuperview(superviewPoint); }
    Q_INVOKABLE QPointF superviewPoint(const QPointF &layerPoint) const { return mapToSuperview(layerPoint); }

protected:
    /** Grows the frame by `buttonSize` and builds `mainContentView`, `mainView` and `bgView`. */
    void setupFrame();
    /** The selection outline around the area, `outset` beyond it on each side. */
    void addBorderView(qreal outset);
    /** The three handles, placed as at construction; the kind calls it after adding its content. */
    void setupControls();
    /** The handles where construction puts them. */
    void setupHandlesAsBuilt() { placeHandles(contentInset); }
    /** `mainView` back at the inset, filling the bounds less `buttonSize`. */
    void refitMainView();
    /** Turns the transform as CGAffineTransformRotate does. */
    void turnBy(qreal radians);

    virtual void didSelect() = 0;
    virtual void didDeselect() = 0;
    virtual void didDrag() = 0;
    virtual void didEndDrag() = 0;
    /** A pinch's Began and Changed steps. */
    virtual void pinchStep(LayerView::GesturePhase phase, qreal scale) = 0;
    /** The end of a pinch before the record is written. */
    virtual void finishPinch() = 0;
    /** Writes the geometry back into the record and tells the editor. */
    virtual void commitGeometry() = 0;
    /** The angle of the record follows `zAngle` when a turn ends. */
    virtual void storeAngle() = 0;
    /** Stickers keep the bounds and transform for the next scale; texts keep nothing. */
    virtual void storeScalingState() { }

private:
    ImageView *makeHandle(const QImage &picture, int mask);
    void placeHandles(qreal offset);
    void applyRotation(double radians);
    /** The end of a two-finger turn before the record is written. */
    void finishTurn();
    qreal m_lastRotation = 0;
};
