#include "filmstripitem.h"

#include "filmstrip.h"

#include <QPainter>

FilmstripItem::FilmstripItem(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{ }

void FilmstripItem::setFilmstrip(Filmstrip *filmstrip)
{
    if (m_filmstrip == filmstrip)
        return;
    if (m_filmstrip)
        disconnect(m_filmstrip, nullptr, this, nullptr);
    m_filmstrip = filmstrip;
    if (m_filmstrip)
        connect(m_filmstrip, &Filmstrip::changed, this, [this] { update(); });
    update();
    Q_EMIT filmstripChanged();
}

void FilmstripItem::setEmptyColor(const QColor &color)
{
    if (m_emptyColor == color)
        return;
    m_emptyColor = color;
    update();
    Q_EMIT emptyColorChanged();
}

void FilmstripItem::paint(QPainter *painter)
{
    painter->fillRect(boundingRect(), m_emptyColor);
    const int count = m_filmstrip ? m_filmstrip->count() : 0;
    if (count == 0)
        return;
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    const qreal slot = width() / count;
    for (int i = 0; i < count; ++i) {
        const QImage image = m_filmstrip->image(i);
        if (image.isNull())
            continue;
        // The middle of the picture, cut to the slot's shape.
        const QRectF target(i * slot, 0, slot, height());
        const qreal scale = std::max(target.width() / image.width(), target.height() / image.height());
        const QSizeF shown(target.width() / scale, target.height() / scale);
        const QRectF source(QPointF((image.width() - shown.width()) / 2, (image.height() - shown.height()) / 2), shown);
        painter->drawImage(target, image, source);
    }
}
