#include "resizableimageview.h"

#include "hexcolor.h"
#include "holder.h"
#include "picturefile.h"
#include "stickertint.h"

ResizableImageView::ResizableImageView(const QRectF &pictureFrame, QObject *parent)
    : LayerView(pictureFrame, parent)
{
    setupViews();
    minWidth = bounds().width();
    minHeight = bounds().height();
    storeScalingState();
}

void ResizableImageView::setupViews()
{
    setupFrame();
    addBorderView(1.0);
    contentImageView = new StickerImageView(QRectF(QPointF(0, 0), mainView->bounds().size()));
    contentImageView->setAutoresizingMask(FlexibleAll);
    contentImageView->setBackgroundColor(Qt::transparent);
    contentImageView->setContentMode(ImageView::ContentMode::ScaleAspectFit);
    contentImageView->setClipsToBounds(true);
    contentImageView->superView = this;
    mainView->addSubview(contentImageView);
    setupControls();
}

void ResizableImageView::fitContentToMainView()
{
    const QSizeF area = mainView->bounds().size();
    contentImageView->setFrame(QRectF(QPointF(0, 0), area));
    borderView->setFrame(QRectF(-1, -1, area.width() + 2, area.height() + 2));
}

void ResizableImageView::setStickerColor(const QColor &color)
{
    if (!stickerJson)
        stickerJson = std::make_shared<StickerJson>();
    if (!contentImageView->tintedImage)
        return;
    contentImageView->tintColor = color;
    contentImageView->setImage(StickerTint::multiply(*contentImageView->tintedImage, color));
    stickerJson->color = HexColor::toString(color);
}

void ResizableImageView::setContentSize(qreal width, qreal height)
{
    const QSizeF outer(width + buttonSize, height + buttonSize);
    setBounds(QRectF(bounds().topLeft(), outer));
    mainContentView->setFrame(QRectF(QPointF(0, 0), outer));
    refitMainView();
    bgView->setFrame(QRectF(QPointF(0, 0), mainView->bounds().size()));
    fitContentToMainView();
    minWidth = outer.width();
    minHeight = outer.height();
    setupHandlesAsBuilt();
    storeScalingState();
}

void ResizableImageView::buttonTapGesture()
{
    if (delegate)
        delegate->stickerWillClose(this);
    removeFromSuperview();
    if (delegate)
        delegate->stickerDidClose(this);
    deleteLater();
}

void ResizableImageView::buttonPanGesture(GesturePhase phase, const QPointF &location)
{
    switch (phase) {
    case Began:
        prevPoint = location;
        break;
    case Changed: {
        // Only the horizontal part of the drag counts; the height follows to keep the aspect.
        const qreal dx = location.x() - prevPoint.value_or(location).x();
        const QRectF b = bounds();
        const qreal dh = dx / b.width() * b.height();
        const QSizeF area = mainView->bounds().size();
        const bool staysAboveFloor = buttonSize < dh + area.height() && buttonSize < dx + area.width();
        if (staysAboveFloor || (dx > 0 && dh > 0)) {
            setBounds(QRectF(b.x(), b.y(), b.width() + dx, b.height() + dh));
            refitMainView();
            fitContentToMainView();
            layoutControls();
        }
        prevPoint = location;
        break;
    }
    case Ended:
        prevPoint = location;
        updateStickerJson(stickerJson);
        break;
    }
}

void ResizableImageView::scaleTo(qreal scale, bool storeScale)
{
    const QRectF scaled = QTransform::fromScale(scale, scale).mapRect(Holder::boundsBeforeScaling);
    const qreal w = scaled.width();
    const qreal h = scaled.height();
    const QRectF current = frame();
    const bool aboveFloor = 2 * buttonSize < w && 2 * buttonSize < h;
    if (!aboveFloor && !(w - current.width() > 0 && h - current.height() > 0))
        return;
    const QPointF c = center();
    if (storeScale)
        scaleTransform = QTransform::fromScale(scale, scale);
    setTransform(QTransform());
    setFrame(QRectF(c.x() - w / 2, c.y() - h / 2, w, h));
    setBounds(QRectF(0, 0, w, h));
    mainView->setBounds(QRectF(mainView->bounds().topLeft(), QSizeF(w - buttonSize, h - buttonSize)));
    contentImageView->setFrame(QRectF(QPointF(0, 0), mainView->bounds().size()));
    setTransform(Holder::transformBeforeScaling);
    if (!storeScale)
        scaleTransform = QTransform();
    layoutControls();
}

void ResizableImageView::pinchStep(GesturePhase phase, qreal scale)
{
    if (phase == Began)
        storeScalingState();
    else
        scaleTo(scale, false);
}

void ResizableImageView::finishPinch()
{
    storeScalingState();
}

void ResizableImageView::scaleStoring(qreal scale)
{
    scaleTo(scale, true);
}

void ResizableImageView::scaleResetting(qreal scale)
{
    scaleTo(scale, false);
}

void ResizableImageView::storeStickerImage()
{
    if (!stickerJson)
        stickerJson = std::make_shared<StickerJson>();
    const QImage picture = contentImageView->tintedImage.value_or(contentImageView->image());
    const QString name = PictureFile::write(picture);
    stickerJson->sticker_image = name.isEmpty() ? std::nullopt : std::optional<QString>(name);
    updateStickerJson(stickerJson);
}

void ResizableImageView::storeOpacity()
{
    if (stickerJson)
        stickerJson->opacity = contentImageView->alpha() * 100.0;
    updateStickerJson(stickerJson);
}

void ResizableImageView::writeGeometry(StickerJson &json) const
{
    const QRectF r = unrotatedFrame();
    json.xPos = r.x() + contentInset;
    json.yPos = r.y() + contentInset;
    json.height = r.height() - buttonSize;
    json.width = r.width() - buttonSize;
    json.angle = zAngle;
}

void ResizableImageView::updateStickerJson(std::shared_ptr<StickerJson> json)
{
    stickerJson = std::move(json);
    if (!stickerJson)
        return;
    writeGeometry(*stickerJson);
    stickerJson->status = 2;
    if (delegate)
        delegate->stickerDidUpdate(stickerJson);
}

void ResizableImageView::setTag(qint64 tag)
{
    View::setTag(tag);
    if (!stickerJson)
        stickerJson = std::make_shared<StickerJson>();
    writeGeometry(*stickerJson);
    // The uncoloured picture, when there is one, is what the record must name.
    const QString name = PictureFile::write(contentImageView->tintedImage.value_or(contentImageView->image()));
    stickerJson->sticker_image = name.isEmpty() ? std::nullopt : std::optional<QString>(name);
    if (!stickerJson->index || *stickerJson->index == 0)
        stickerJson->index = tag;
    if (delegate)
        delegate->stickerDidAttach(stickerJson);
}

void ResizableImageView::didSelect()
{
    if (delegate)
        delegate->stickerDidSelect(this);
}

void ResizableImageView::didDeselect()
{
    if (delegate)
        delegate->stickerDidDeselect(this);
}

void ResizableImageView::didDrag()
{
    if (delegate)
        delegate->stickerDidDrag(this);
}

void ResizableImageView::didEndDrag()
{
    if (delegate)
        delegate->stickerDidEndDrag(this);
}

void ResizableImageView::commitGeometry()
{
    updateStickerJson(stickerJson);
}

void ResizableImageView::storeAngle()
{
    if (stickerJson)
        stickerJson->angle = zAngle;
}

void ResizableImageView::storeScalingState()
{
    Holder::boundsBeforeScaling = bounds();
    Holder::transformBeforeScaling = transform();
}
