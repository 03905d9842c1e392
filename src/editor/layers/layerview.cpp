#include "layerview.h"

#include "appassets.h"
#include "layergeometry.h"
#include "selectionchrome.h"

#include <numbers>

LayerView::LayerView(const QRectF &frame, QObject *parent)
    : View(frame, parent)
{ }

qreal LayerView::rotationDegrees() const
{
    return LayerGeometry::degrees(transform());
}

void LayerView::setupFrame()
{
    const QRectF outer = frame();
    setFrame(QRectF(outer.topLeft(), outer.size() + QSizeF(buttonSize, buttonSize)));
    const QSizeF size = bounds().size();

    mainContentView = new View(QRectF(QPointF(0, 0), size));
    mainContentView->setAutoresizingMask(FlexibleAll);
    mainContentView->setBackgroundColor(Qt::transparent);
    addSubview(mainContentView);

    mainView = new View(QRectF(contentInset, contentInset, size.width() - buttonSize, size.height() - buttonSize));
    mainView->setAutoresizingMask(FlexibleAll);
    mainView->setBackgroundColor(Qt::transparent);
    addSubview(mainView);

    bgView = new View(QRectF(QPointF(0, 0), mainView->bounds().size()));
    bgView->setAutoresizingMask(FlexibleAll);
    bgView->setBackgroundColor(Qt::black);
    bgView->setAlpha(0.2);
    SelectionChrome::mark(bgView);
    mainView->addSubview(bgView);
}

void LayerView::addBorderView(qreal outset)
{
    const QSizeF area = mainView->bounds().size();
    borderView = new BorderedView(QRectF(-outset, -outset, area.width() + 2 * outset, area.height() + 2 * outset));
    borderView->setAutoresizingMask(FlexibleAll);
    borderView->setBackgroundColor(Qt::transparent);
    borderView->borderColor = borderColor;
    SelectionChrome::mark(borderView);
    mainView->addSubview(borderView);
}

ImageView *LayerView::makeHandle(const QImage &picture, int mask)
{
    auto *handle = new ImageView(QRectF(0, 0, buttonSize, buttonSize));
    handle->setImage(picture);
    handle->setContentMode(ImageView::ContentMode::ScaleAspectFit);
    handle->setAutoresizingMask(mask);
    SelectionChrome::mark(handle);
    addSubview(handle);
    return handle;
}

void LayerView::setupControls()
{
    cancelButton = makeHandle(AppAssets::image(QStringLiteral("ic_close")), FlexibleLeftMargin | FlexibleTopMargin);
    rotateButton = makeHandle(AppAssets::image(QStringLiteral("ic_rotate")), FlexibleLeftMargin | FlexibleBottomMargin);
    resizeButton
        = makeHandle(AppAssets::image(QStringLiteral("ic_resize")), FlexibleRightMargin | FlexibleBottomMargin);
    setupHandlesAsBuilt();
}

void LayerView::layoutControls()
{
    placeHandles(buttonSize / 2);
    // The handles and the area are read through the layer's own properties.
    notifyChanged();
}

void LayerView::placeHandles(qreal offset)
{
    const QRectF area = mainView->frame();
    const QSizeF size(buttonSize, buttonSize);
    cancelButton->setFrame(QRectF(QPointF(area.left() - contentInset, area.top() - contentInset), size));
    resizeButton->setFrame(QRectF(QPointF(area.right() - offset, area.bottom() - offset), size));
    rotateButton->setFrame(QRectF(QPointF(area.left() - offset, area.bottom() - offset), size));
}

void LayerView::refitMainView()
{
    const QSizeF size = bounds().size();
    mainView->setFrame(QRectF(contentInset, contentInset, size.width() - buttonSize, size.height() - buttonSize));
}

void LayerView::setControlsHidden(bool hidden)
{
    for (View *view : { bgView, static_cast<View *>(borderView), static_cast<View *>(cancelButton),
             static_cast<View *>(rotateButton), static_cast<View *>(resizeButton) })
        view->setHidden(hidden);
    notifyChanged();
}

void LayerView::showControls()
{
    didSelect();
    storeScalingState();
    setControlsHidden(false);
}

void LayerView::hideControls()
{
    didDeselect();
    setControlsHidden(true);
}

void LayerView::tapGesture()
{
    showControls();
}

void LayerView::panGesture(GesturePhase phase, const QPointF &translation)
{
    if (!isSelected())
        return;
    if (phase != Ended) {
        setCenter(center() + translation);
        didDrag();
        return;
    }
    commitGeometry();
    didEndDrag();
}

void LayerView::applyRotation(double radians)
{
    setTransform(LayerGeometry::perspectiveRotation(radians));
}

void LayerView::buttonRotateGesture(GesturePhase phase, const QPointF &location)
{
    switch (phase) {
    case Began:
        if (startAngle == 0.0)
            startAngle = LayerGeometry::touchAngle(location, center());
        break;
    case Changed:
        applyRotation((LayerGeometry::touchAngle(location, center()) - startAngle) + zAngle);
        snapRotation();
        break;
    case Ended:
        removeDashedBorder();
        storeScalingState();
        zAngle = LayerGeometry::zAngle(transform());
        startAngle = 0;
        storeAngle();
        commitGeometry();
        break;
    }
}

void LayerView::turnBy(qreal radians)
{
    // CGAffineTransformRotate: the turn comes before the transform that is there.
    const qreal c = std::cos(radians);
    const qreal s = std::sin(radians);
    setTransform(QTransform(c, s, -s, c, 0, 0) * transform());
}

void LayerView::pinchGesture(GesturePhase phase, qreal scale)
{
    if (!isSelected())
        return;
    if (phase != Ended) {
        pinchStep(phase, scale);
        return;
    }
    finishPinch();
    commitGeometry();
}

void LayerView::rotateGesture(GesturePhase phase, qreal rotation)
{
    if (!isSelected())
        return;
    switch (phase) {
    case Began:
        m_lastRotation = 0;
        break;
    case Changed:
        // The recogniser's rotation is set back to 0 after each step, so each step turns by its delta.
        turnBy(rotation - m_lastRotation);
        m_lastRotation = rotation;
        updateSnapBorder();
        break;
    case Ended:
        finishTurn();
        commitGeometry();
        break;
    }
}

void LayerView::finishTurn()
{
    removeDashedBorder();
    storeScalingState();
    zAngle = LayerGeometry::zAngle(transform());
    storeAngle();
    m_lastRotation = 0;
}

void LayerView::twoFingerGesture(GesturePhase phase, qreal scale, qreal rotation)
{
    if (!isSelected())
        return;
    const bool turns = turnsWithTwoFingers();
    if (phase != Ended) {
        pinchStep(phase, scale);
        if (turns)
            rotateGesture(phase, rotation);
        return;
    }
    finishPinch();
    if (turns)
        finishTurn();
    commitGeometry();
}

void LayerView::snapRotation()
{
    const double d = LayerGeometry::degrees(transform());
    if (const auto target = LayerGeometry::snapTarget(d, rotationDistance)) {
        applyRotation(*target * std::numbers::pi / 180.0);
        storeScalingState();
    }
    updateSnapBorder();
}

void LayerView::updateSnapBorder()
{
    if (LayerGeometry::isSnapAngleText(LayerGeometry::swiftDescription(LayerGeometry::degrees(transform()))))
        addDashedBorder();
    else
        removeDashedBorder();
}

void LayerView::addDashedBorder()
{
    removeDashedBorder();
    dashedBorderView = new DashedBorderView(mainView->bounds());
    dashedBorderView->setBackgroundColor(Qt::transparent);
    SelectionChrome::mark(dashedBorderView);
    mainView->addSubview(dashedBorderView);
    notifyChanged();
}

void LayerView::removeDashedBorder()
{
    if (!dashedBorderView)
        return;
    dashedBorderView->removeFromSuperview();
    delete dashedBorderView;
    dashedBorderView = nullptr;
    notifyChanged();
}

void LayerView::rotate(qreal radians)
{
    turnBy(radians);
    updateSnapBorder();
    storeScalingState();
    zAngle = LayerGeometry::zAngle(transform());
}

void LayerView::applyLoadedAngle(qreal radians)
{
    applyRotation(radians);
    zAngle = radians;
}

QRectF LayerView::unrotatedFrame() const
{
    return LayerGeometry::unrotatedFrame(*this);
}

bool LayerView::pointInside(const QPointF &point) const
{
    if (mainView->frame().contains(point))
        return true;
    if (!isSelected())
        return false;
    return cancelButton->frame().contains(point) || rotateButton->frame().contains(point)
        || resizeButton->frame().contains(point);
}
