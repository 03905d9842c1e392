#include "backgroundimageview.h"

#include <QLinearGradient>
#include <QPainter>

#include <cmath>

BackgroundImageView::BackgroundImageView(const QRectF &frame, QObject *parent)
    : ImageView(frame, parent)
{ }

void BackgroundImageView::setPatternColor(const QImage &tile)
{
    // The pattern takes the place of the colour or gradient, whichever was set before it.
    m_pattern = tile;
    m_gradient.clear();
    setBackgroundColor(Qt::transparent);
    notifyChanged();
}

void BackgroundImageView::setGradient(const QList<QColor> &colors)
{
    m_gradient = colors;
    m_gradientRect = bounds();
    notifyChanged();
}

void BackgroundImageView::clearBackground()
{
    m_pattern = QImage();
    m_gradient.clear();
    m_featherMask = QImage();
    setImage(QImage());
    setBackgroundColor(Qt::transparent);
}

void BackgroundImageView::paintContent(QPainter &painter) const
{
    if (!m_pattern.isNull()) {
        painter.fillRect(bounds(), QBrush(m_pattern));
    } else if (!m_gradient.isEmpty()) {
        // Set before the canvas had its size, the gradient takes the bounds it is drawn in.
        const QRectF area = m_gradientRect.isEmpty() ? bounds() : m_gradientRect;
        QLinearGradient gradient(area.topLeft(), area.bottomLeft());
        const qsizetype steps = m_gradient.size();
        for (qsizetype i = 0; i < steps; ++i)
            gradient.setColorAt(steps == 1 ? 0.0 : qreal(i) / qreal(steps - 1), m_gradient.at(i));
        // The gradient belongs to the bounds it was made for; beyond them it repeats its edge colours.
        painter.fillRect(bounds(), gradient);
    }
    if (m_featherMask.isNull() || image().isNull()) {
        ImageView::paintContent(painter);
        return;
    }
    // The picture is drawn apart at the painter's scale and cut by the mask before it joins the canvas.
    const QTransform device = painter.combinedTransform();
    const qreal scale = std::sqrt(std::abs(device.determinant()));
    const QSize size = (bounds().size() * scale).toSize();
    if (size.isEmpty())
        return;
    QImage faded(size, QImage::Format_ARGB32_Premultiplied);
    faded.fill(Qt::transparent);
    QPainter picture(&faded);
    picture.scale(scale, scale);
    picture.translate(-bounds().topLeft());
    ImageView::paintContent(picture);
    picture.resetTransform();
    picture.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    picture.drawImage(QRect(QPoint(0, 0), size), m_featherMask);
    picture.end();
    painter.drawImage(bounds(), faded);
}

void BackgroundImageView::setFeatherMask(const QImage &mask)
{
    m_featherMask = mask;
    Q_EMIT changed();
}
