#include "staticresizableimageview.h"

#include "picturefile.h"

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
    mainView = new View(QRectF(contentInset, contentInset, borderView->frame().width() - buttonSize,
        borderView->frame().height() - buttonSize));
    mainView->setAutoresizingMask(FlexibleAll);
    mainView->setClipsToBounds(true);
    addSubview(mainView);
    contentImageView = new ImageView(QRectF(QPointF(0, 0), mainView->bounds().size()));
    contentImageView->setContentMode(ImageView::ContentMode::ScaleAspectFill);
    mainView->addSubview(contentImageView);
    editView = new View(QRectF(QPointF(0, 0), mainView->bounds().size()));
    editView->setAutoresizingMask(FlexibleAll);
    editView->setHidden(true);
    mainView->addSubview(editView);
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
    contentImageView->setImage(picture);
}

void StaticResizableImageView::setTag(qint64 tag)
{
    View::setTag(tag);
    if (!imageStickerJson)
        imageStickerJson = std::make_shared<ImageStickerJson>();
    writeFrame(*imageStickerJson, buttonSize, tag);
    imageStickerJson->angle = zAngle;
    if (!contentImageView->image().isNull() && imageStickerJson->image_sticker_image.value_or(QString()).isEmpty()) {
        const QString name = PictureFile::write(contentImageView->image());
        if (!name.isEmpty())
            imageStickerJson->image_sticker_image = name;
    }
    if (delegate)
        delegate->slotDidAttach(imageStickerJson);
}
