#include "videocomposition.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

Layer::Layer(QImage overlay, QSize size, Placement placement)
    : m_overlay(std::move(overlay))
    , m_size(size)
    , m_placement(std::move(placement))
{ }

const QImage &Layer::videoAndParent() const
{
    if (!m_laid.isNull())
        return m_laid;
    const QRectF frame = m_placement.frameIn(QSizeF(m_size));
    if (frame == QRectF(QPointF(0, 0), QSizeF(m_size)) && m_overlay.size() == m_size) {
        m_laid = m_overlay.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        return m_laid;
    }
    m_laid = QImage(m_size, QImage::Format_ARGB32_Premultiplied);
    m_laid.fill(Qt::transparent);
    QPainter painter(&m_laid);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setClipRect(frame);
    painter.drawImage(frame, m_overlay);
    return m_laid;
}

QSize VideoComposition::frameSize(QSizeF renderSize)
{
    const auto even = [](double side) { return std::max(2, int(std::lround(side / 2)) * 2); };
    return QSize(even(renderSize.width()), even(renderSize.height()));
}
