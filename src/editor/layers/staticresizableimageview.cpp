#include "staticresizableimageview.h"

#include "appassets.h"

#include "layergeometry.h"
#include "picturefile.h"

#include <cmath>

StaticResizableImageView::StaticResizableImageView(const QRectF &frame, QObject *parent)
    : SlotView(frame, parent)
{
    const qreal w = frame.width();
    const qreal h = frame.height();
    const qreal m = contentInset - 2.0;
    borderView = new View(QRectF(m, m, w - buttonSize + 4.0, h - buttonSize + 4.0));
    borderView->setAutoresizingMask(FlexibleAll);
    borderView->setClipsToBounds(true);
    borderView->setHidden(true);
    addSubview(borderView);
    mainView = new SlotMainView(QRectF(contentInset, contentInset, borderView->frame().width() - buttonSize,
        borderView->frame().height() - buttonSize));
    addSubview(mainView);
    contentImageView = new ImageView(QRectF(QPointF(0, 0), mainView->bounds().size()));
    contentImageView->setContentMode(ImageView::ContentMode::ScaleAspectFill);
    mainView->addSubview(contentImageView);
    editView = new View(QRectF(QPointF(0, 0), mainView->bounds().size()));
    editView->setAutoresizingMask(FlexibleAll);
    editView->setHidden(true);
    mainView->addSubview(editView);
    const QSizeF middle = editView->bounds().size() / 2;
    editButton = new ImageView(QRectF(
        middle.width() - editButtonSize / 2, middle.height() - editButtonSize / 2, editButtonSize, editButtonSize));
    editButton->setImage(AppAssets::image(QStringLiteral("img_edit")));
    editButton->setContentMode(ImageView::ContentMode::ScaleAspectFit);
    editButton->setAutoresizingMask(
        FlexibleLeftMargin | FlexibleRightMargin | FlexibleTopMargin | FlexibleBottomMargin);
    editView->addSubview(editButton);
}

void StaticResizableImageView::tapGesture()
{
    if (delegate)
        delegate->slotDidSelect(this);
    borderView->setHidden(false);
}

void StaticResizableImageView::hideControls()
{
    if (delegate)
        delegate->slotDidDeselect(this);
    borderView->setHidden(true);
}

void StaticResizableImageView::setPicture(const QImage &picture)
{
    contentImageView->setTransform(QTransform());
    contentImageView->setFrame(QRectF(QPointF(0, 0), mainView->bounds().size()));
    contentImageView->setImage(picture);
}

void StaticResizableImageView::applyRecordGeometry()
{
    if (!imageStickerJson)
        return;
    if (imageStickerJson->centerX && imageStickerJson->centerY)
        contentImageView->setCenter(QPointF(*imageStickerJson->centerX, *imageStickerJson->centerY));
    if (const qreal scale = imageStickerJson->zScale.value_or(1); scale > 1)
        contentImageView->setTransform(QTransform::fromScale(scale, scale));
}

void StaticResizableImageView::panGesture(GesturePhase phase, const QPointF &translation)
{
    if (!isSelected())
        return;
    if (phase == Changed)
        contentImageView->setCenter(contentImageView->center() + translation);
    else if (phase == Ended)
        commitPicture();
}

void StaticResizableImageView::pinchGesture(GesturePhase phase, qreal scale)
{
    if (!isSelected())
        return;
    if (phase != Changed) {
        currentBounds = contentImageView->bounds();
        if (phase == Ended)
            commitPicture();
        return;
    }
    if (QTransform(contentImageView->transform()).scale(scale, scale).m11() < 1.0)
        return;
    QMetaObject::invokeMethod(
        this,
        [this, scale] {
            contentImageView->setTransform(QTransform(contentImageView->transform()).scale(scale, scale));
            if (scale > 1.0)
                zScale = scale;
        },
        Qt::QueuedConnection);
}

void StaticResizableImageView::rotateGesture(GesturePhase phase, qreal radians)
{
    if (!isSelected())
        return;
    if (phase == Changed)
        contentImageView->setTransform(QTransform(contentImageView->transform()).rotateRadians(radians));
    else if (phase == Ended)
        zAngle = LayerGeometry::zAngle(contentImageView->transform());
}

void StaticResizableImageView::commitPicture()
{
    if (!imageStickerJson)
        return;
    const QTransform t = contentImageView->transform();
    imageStickerJson->centerX = contentImageView->center().x();
    imageStickerJson->centerY = contentImageView->center().y();
    imageStickerJson->zScale = std::sqrt(std::abs(t.determinant()));
    imageStickerJson->status = 2;
    if (delegate)
        delegate->slotDidUpdate(imageStickerJson);
}

void StaticResizableImageView::setTag(qint64 tag)
{
    View::setTag(tag);
    if (!imageStickerJson)
        imageStickerJson = std::make_shared<ImageStickerJson>();
    writeFrame(*imageStickerJson, buttonSize, tag);
    imageStickerJson->angle = zAngle;
    if (hasPicture() && imageStickerJson->image_sticker_image.value_or(QString()).isEmpty()) {
        const QString name = PictureFile::write(contentImageView->image());
        if (!name.isEmpty())
            imageStickerJson->image_sticker_image = name;
    }
    if (delegate)
        delegate->slotDidAttach(imageStickerJson);
}
