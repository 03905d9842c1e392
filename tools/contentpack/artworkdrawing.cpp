#include "artworkdrawing.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QRandomGenerator>
#include <QtMath>

namespace ArtworkDrawing {

QImage canvas(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void antialias(QPainter &p)
{
    p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
}

QPainterPath starPath(QPointF centre, qreal outer, qreal inner, int points, qreal rotation)
{
    QPainterPath path;
    for (int i = 0; i < points * 2; ++i) {
        const qreal r = i % 2 ? inner : outer;
        const qreal a = qDegreesToRadians(rotation + i * 180.0 / points);
        const QPointF pt(centre.x() + r * qCos(a), centre.y() + r * qSin(a));
        i ? path.lineTo(pt) : path.moveTo(pt);
    }
    path.closeSubpath();
    return path;
}

QPainterPath polygonPath(QPointF centre, qreal radius, int sides, qreal rotation)
{
    return starPath(centre, radius, radius * qCos(M_PI / sides), sides, rotation);
}

QPainterPath heartPath(const QRectF &r)
{
    QPainterPath path;
    const qreal w = r.width(), h = r.height(), x = r.x(), y = r.y();
    path.moveTo(x + w / 2, y + h * 0.95);
    path.cubicTo(x - w * 0.1, y + h * 0.55, x + w * 0.05, y - h * 0.05, x + w / 2, y + h * 0.25);
    path.cubicTo(x + w * 0.95, y - h * 0.05, x + w * 1.1, y + h * 0.55, x + w / 2, y + h * 0.95);
    return path;
}

QPainterPath blobPath(const QRectF &r, int seed)
{
    QRandomGenerator random(static_cast<quint32>(seed));
    QPainterPath path;
    const int n = 8;
    QList<QPointF> pts;
    for (int i = 0; i < n; ++i) {
        const qreal a = 2 * M_PI * i / n;
        const qreal k = 0.8 + 0.2 * random.generateDouble();
        pts.append(
            QPointF(r.center().x() + k * r.width() / 2 * qCos(a), r.center().y() + k * r.height() / 2 * qSin(a)));
    }
    path.moveTo((pts[n - 1] + pts[0]) / 2);
    for (int i = 0; i < n; ++i)
        path.quadTo(pts[i], (pts[i] + pts[(i + 1) % n]) / 2);
    return path;
}

QPainterPath archPath(const QRectF &r)
{
    QPainterPath path;
    path.moveTo(r.left(), r.bottom());
    path.lineTo(r.left(), r.top() + r.width() / 2);
    path.arcTo(QRectF(r.left(), r.top(), r.width(), r.width()), 180, -180);
    path.lineTo(r.right(), r.bottom());
    path.closeSubpath();
    return path;
}

QPainterPath leafPath(QPointF base, qreal length, qreal angle)
{
    QPainterPath leaf;
    leaf.moveTo(0, 0);
    leaf.quadTo(length * 0.5, -length * 0.28, length, 0);
    leaf.quadTo(length * 0.5, length * 0.28, 0, 0);
    QTransform t;
    t.translate(base.x(), base.y());
    t.rotate(angle);
    return t.map(leaf);
}

/** The silhouettes shared by shapes, masks and crop shapes. */
QPainterPath silhouette(int kind, const QRectF &r)
{
    const QPointF c = r.center();
    const qreal radius = qMin(r.width(), r.height()) / 2;
    QPainterPath path;
    switch (kind % 8) {
    case 0:
        path.addEllipse(r);
        break;
    case 1:
        path = heartPath(r);
        break;
    case 2:
        path = starPath(c, radius, radius * 0.45, 5);
        break;
    case 3:
        path = archPath(r);
        break;
    case 4:
        path = polygonPath(c, radius, 6);
        break;
    case 5:
        path = blobPath(r, kind + 11);
        break;
    case 6:
        path.addRoundedRect(r, r.width() * 0.18, r.width() * 0.18);
        break;
    default:
        path = starPath(c, radius, radius * 0.78, 12);
        break;
    }
    return path;
}

} // namespace ArtworkDrawing
