#include "imageview.h"

#include "scaledpicturecache.h"

#include <QtMath>

#include <cmath>

ImageView::ImageView(const QRectF &frame, QObject *parent)
    : View(frame, parent)
{ }

void ImageView::setImage(const QImage &image)
{
    m_image = image;
    notifyChanged();
}

void ImageView::setContentMode(ContentMode mode)
{
    m_contentMode = mode;
    notifyChanged();
}

QRectF ImageView::imageRect() const
{
    const QRectF area = bounds();
    if (m_image.isNull() || area.isEmpty())
        return area;
    const QSizeF picture = m_image.deviceIndependentSize();
    QSizeF size = picture;
    switch (m_contentMode) {
    case ContentMode::ScaleToFill:
        return area;
    case ContentMode::ScaleAspectFit:
        size = picture.scaled(area.size(), Qt::KeepAspectRatio);
        break;
    case ContentMode::ScaleAspectFill:
        size = picture.scaled(area.size(), Qt::KeepAspectRatioByExpanding);
        break;
    case ContentMode::Center:
        break;
    }
    return { area.center().x() - size.width() / 2, area.center().y() - size.height() / 2, size.width(), size.height() };
}

void ImageView::paintContent(QPainter &painter) const
{
    if (m_image.isNull())
        return;
    painter.save();
    if (m_contentMode == ContentMode::ScaleAspectFill || m_contentMode == ContentMode::Center)
        painter.setClipRect(bounds(), Qt::IntersectClip);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF target = imageRect();
    // A picture drawn smaller than it is comes from the scaled-picture cache, once per size.
    const QTransform device = painter.combinedTransform();
    const qreal deviceScale = std::sqrt(std::abs(device.determinant()));
    const QSize drawn(qCeil(target.width() * deviceScale), qCeil(target.height() * deviceScale));
    painter.drawImage(target, ScaledPictureCache::scaled(m_image, drawn));
    painter.restore();
}
