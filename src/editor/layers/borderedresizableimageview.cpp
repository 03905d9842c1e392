#include "borderedresizableimageview.h"

BorderedResizableImageView::BorderedResizableImageView(const QRectF &frame, QObject *parent)
    : SlotView(frame, parent)
{
    const qreal w = frame.width();
    const qreal h = frame.height();
    mainView = new View(QRectF(contentInset, contentInset, w - buttonSize, h - buttonSize));
    mainView->setAutoresizingMask(FlexibleAll);
    mainView->setClipsToBounds(true);
    addSubview(mainView);
    contentImageView = new ImageView(QRectF(QPointF(0, 0), mainView->bounds().size()));
    contentImageView->setContentMode(ImageView::ContentMode::ScaleAspectFit);
    mainView->addSubview(contentImageView);
    buildEmptySlot();
}

void BorderedResizableImageView::buildEmptySlot()
{
    const QSizeF size = mainView->bounds().size();
    m_emptySlot = new View(QRectF(1, 1, size.width() - 2, size.height() - 2));
    m_emptySlot->setBackgroundColor(QColor(0xE9, 0xEA, 0xEB));
    m_emptySlot->setAutoresizingMask(FlexibleAll);
    mainView->addSubview(m_emptySlot);
}

void BorderedResizableImageView::setPicture(const QImage &image)
{
    contentImageView->setImage(image);
    if (image.isNull() && !m_emptySlot) {
        buildEmptySlot();
    } else if (!image.isNull() && m_emptySlot) {
        delete m_emptySlot;
        m_emptySlot = nullptr;
    }
    notifyChanged();
}

void BorderedResizableImageView::tapGesture()
{
    if (isNotImage())
        return;
    if (!isActive) {
        if (delegate)
            delegate->slotDidSelect(this);
        isActive = true;
    } else {
        isActive = false;
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

void BorderedResizableImageView::setTag(qint64 tag)
{
    View::setTag(tag);
    if (!frameImageStickerJson)
        frameImageStickerJson = std::make_shared<FrameImageStickerJson>();
    writeFrame(*frameImageStickerJson, buttonSize, tag);
    if (delegate)
        delegate->slotDidAttach(frameImageStickerJson);
}
