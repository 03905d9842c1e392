#include "borderedresizableimageview.h"

#include "appassets.h"
#include "layergeometry.h"
#include "selectionchrome.h"

BorderedResizableImageView::BorderedResizableImageView(const QRectF &frame, QObject *parent)
    : SlotView(frame, parent)
{
    const qreal w = frame.width();
    const qreal h = frame.height();
    mainView = new SlotMainView(QRectF(contentInset, contentInset, w - buttonSize, h - buttonSize));
    addSubview(mainView);
    contentImageView = new ImageView(QRectF(QPointF(0, 0), mainView->bounds().size()));
    contentImageView->setContentMode(ImageView::ContentMode::ScaleAspectFit);
    mainView->addSubview(contentImageView);
    // The active outline lies over the hole, outside its mask, and is never part of the design.
    redDashedBorderView = new DashedBorderView(mainView->frame());
    redDashedBorderView->setAutoresizingMask(FlexibleAll);
    redDashedBorderView->setHidden(true);
    SelectionChrome::mark(redDashedBorderView);
    addSubview(redDashedBorderView);
    buildEmptySlot();
    OutlinedHolder::boundsBeforeScaling = contentImageView->bounds();
    OutlinedHolder::transformBeforeScaling = contentImageView->transform();
}

void BorderedResizableImageView::buildEmptySlot()
{
    const QSizeF size = mainView->bounds().size();
    m_emptySlot = new View(QRectF(1, 1, size.width() - 2, size.height() - 2));
    m_emptySlot->setBackgroundColor(QColor(0xE9, 0xEA, 0xEB));
    m_emptySlot->setAutoresizingMask(FlexibleAll);
    auto *border = new DashedBorderView(m_emptySlot->bounds());
    border->strokeColor = Qt::gray;
    border->setAutoresizingMask(FlexibleAll);
    m_emptySlot->addSubview(border);
    auto *plus = new ImageView(
        QRectF((size.width() - 2 - plusSize) / 2, (size.height() - 2 - plusSize) / 2, plusSize, plusSize));
    plus->setImage(AppAssets::image(QStringLiteral("plus")));
    plus->setContentMode(ImageView::ContentMode::ScaleAspectFit);
    m_emptySlot->addSubview(plus);
    m_plusView = plus;
    // The placeholder is not clipped by the mask: it shows the whole hole.
    addSubview(m_emptySlot);
    m_emptySlot->setCenter(mainView->center());
}

void BorderedResizableImageView::setActive(bool active)
{
    m_active = active;
    redDashedBorderView->setHidden(!active);
}

void BorderedResizableImageView::setPicture(const QImage &image)
{
    contentImageView->setTransform(QTransform());
    contentImageView->setFrame(QRectF(QPointF(0, 0), mainView->bounds().size()));
    zAngleImage = 0;
    contentImageView->setImage(image);
    if (image.isNull() && !m_emptySlot) {
        buildEmptySlot();
    } else if (!image.isNull() && m_emptySlot) {
        delete m_emptySlot;
        m_emptySlot = nullptr;
        m_plusView = nullptr;
    }
    notifyChanged();
}

void BorderedResizableImageView::storeScalingState()
{
    OutlinedHolder::boundsBeforeScaling = contentImageView->bounds();
    OutlinedHolder::transformBeforeScaling = contentImageView->transform();
}

void BorderedResizableImageView::tapGesture()
{
    if (isNotImage())
        return;
    if (m_active) {
        setActive(false);
        return;
    }
    if (delegate)
        delegate->slotDidSelect(this);
    if (dashedBorderView) {
        delete dashedBorderView;
        dashedBorderView = nullptr;
    }
    storeScalingState();
    setActive(true);
}

void BorderedResizableImageView::plusTapGesture()
{
    if (isNotImage() && delegate)
        delegate->slotDidAskForPicture(this);
}

void BorderedResizableImageView::doubleTapGesture()
{
    if (isNotImage() || !frameImageStickerJson)
        return;
    if (delegate)
        delegate->slotDidAttach(frameImageStickerJson);
    setImageRotation(0);
    contentImageView->setFrame(
        QRectF(0, 0, frameImageStickerJson->width.value_or(0), frameImageStickerJson->height.value_or(0)));
    updateFrameImageStickerJson(frameImageStickerJson);
}

void BorderedResizableImageView::panGesture(GesturePhase phase, const QPointF &translation)
{
    if (!m_active)
        return;
    if (phase != Ended)
        contentImageView->setCenter(contentImageView->center() + translation);
    else
        updateFrameImageStickerJson(frameImageStickerJson);
}

void BorderedResizableImageView::pinchGesture(GesturePhase phase, qreal scale)
{
    if (!m_active)
        return;
    if (phase == Changed) {
        scaleContent(scale);
        return;
    }
    storeScalingState();
    if (phase == Ended)
        updateFrameImageStickerJson(frameImageStickerJson);
}

void BorderedResizableImageView::rotateGesture(GesturePhase phase, qreal radians)
{
    if (!m_active)
        return;
    if (phase == Changed) {
        rotateContent(radians);
    } else if (phase == Ended) {
        if (dashedBorderView) {
            delete dashedBorderView;
            dashedBorderView = nullptr;
        }
        zAngleImage = LayerGeometry::zAngle(contentImageView->transform());
        if (frameImageStickerJson)
            frameImageStickerJson->angleImage = zAngleImage;
        updateFrameImageStickerJson(frameImageStickerJson);
    }
}

void BorderedResizableImageView::scaleContent(qreal scale)
{
    const QPointF centre = contentImageView->center();
    const qreal w = OutlinedHolder::boundsBeforeScaling.width() * scale;
    const qreal h = OutlinedHolder::boundsBeforeScaling.height() * scale;
    if (!(buttonSize < w && buttonSize < h))
        return;
    scaleTransform = contentImageView->transform();
    contentImageView->setTransform(QTransform());
    contentImageView->setFrame(QRectF(centre.x() - w / 2, centre.y() - h / 2, w, h));
    contentImageView->setBounds(QRectF(0, 0, w, h));
    contentImageView->setTransform(OutlinedHolder::transformBeforeScaling);
}

void BorderedResizableImageView::rotateContent(qreal radians)
{
    contentImageView->setTransform(QTransform(contentImageView->transform()).rotateRadians(radians));
    updateSnapBorder();
    storeScalingState();
    zAngleImage = LayerGeometry::zAngle(contentImageView->transform());
}

void BorderedResizableImageView::updateSnapBorder()
{
    const bool snapped = LayerGeometry::isSnapAngleText(
        LayerGeometry::swiftDescription(LayerGeometry::degrees(contentImageView->transform())));
    if (snapped && !dashedBorderView) {
        dashedBorderView = new DashedBorderView(contentImageView->bounds());
        SelectionChrome::mark(dashedBorderView);
        contentImageView->addSubview(dashedBorderView);
    } else if (!snapped && dashedBorderView) {
        delete dashedBorderView;
        dashedBorderView = nullptr;
    }
}

void BorderedResizableImageView::storeOpacity()
{
    if (!frameImageStickerJson)
        return;
    frameImageStickerJson->opacity = contentImageView->alpha() * 100.0;
    if (delegate)
        delegate->slotDidUpdate(frameImageStickerJson);
}

void BorderedResizableImageView::applyRecordGeometry()
{
    const auto &record = frameImageStickerJson;
    if (!record || !record->width || !record->height)
        return;
    setImageRotation(0);
    QRectF frame(0, 0, *record->width, *record->height);
    if (record->xPosImage)
        frame.moveLeft(*record->xPosImage);
    if (record->yPosImage)
        frame.moveTop(*record->yPosImage);
    // The write-back stores the picture's size without the button margin; it comes back with it, so that
    // storing and reading again keep the size.
    if (record->widthImage)
        frame.setWidth(*record->widthImage + buttonSize);
    if (record->heightImage)
        frame.setHeight(*record->heightImage + buttonSize);
    contentImageView->setFrame(frame);
    if (record->angleImage)
        setImageRotation(*record->angleImage);
}

void BorderedResizableImageView::setImageRotation(qreal radians)
{
    contentImageView->setTransform(LayerGeometry::perspectiveRotation(radians));
    zAngleImage = radians;
}

QRectF BorderedResizableImageView::unrotatedContentFrame() const
{
    return LayerGeometry::unrotatedFrame(*contentImageView);
}

void BorderedResizableImageView::updateFrameImageStickerJson(const std::shared_ptr<FrameImageStickerJson> &json)
{
    frameImageStickerJson = json;
    if (!json)
        return;
    const QRectF r = unrotatedContentFrame();
    json->xPosImage = r.x();
    json->yPosImage = r.y();
    json->heightImage = r.height() - buttonSize;
    json->widthImage = r.width() - buttonSize;
    json->angleImage = zAngleImage;
    json->status = 2;
    if (delegate)
        delegate->slotDidUpdate(json);
}

void BorderedResizableImageView::setTag(qint64 tag)
{
    View::setTag(tag);
    if (!frameImageStickerJson)
        frameImageStickerJson = std::make_shared<FrameImageStickerJson>();
    writeFrame(*frameImageStickerJson, buttonSize, tag);
    if (delegate)
        delegate->slotDidAttach(frameImageStickerJson);
}
