#include "layericons.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int side = 84; // 28 points at 3x
const QColor accent(0xE0, 0x58, 0x63);

QImage draw(const QString &name)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(3.0);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF disc(1.5, 1.5, 25, 25);
    p.setPen(QPen(Qt::white, 1.5));
    p.setBrush(accent);
    p.drawEllipse(disc);
    p.setPen(QPen(Qt::white, 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    if (name == QLatin1String("ic_close")) {
        p.drawLine(QPointF(9.5, 9.5), QPointF(18.5, 18.5));
        p.drawLine(QPointF(18.5, 9.5), QPointF(9.5, 18.5));
    } else if (name == QLatin1String("ic_rotate")) {
        p.drawArc(QRectF(8, 8, 12, 12), 90 * 16, 270 * 16);
        QPainterPath head;
        head.moveTo(14, 5.5);
        head.lineTo(17.5, 8);
        head.lineTo(14, 10.5);
        p.drawPath(head);
    } else if (name == QLatin1String("ic_resize")) {
        p.drawLine(QPointF(9, 19), QPointF(19, 9));
        p.drawPolyline(QList<QPointF> { { 14, 9 }, { 19, 9 }, { 19, 14 } });
        p.drawPolyline(QList<QPointF> { { 9, 14 }, { 9, 19 }, { 14, 19 } });
    } else {
        return {};
    }
    return image;
}

} // namespace

namespace LayerIcons {

QImage image(const QString &name)
{
    static QHash<QString, QImage> cache;
    auto it = cache.constFind(name);
    if (it == cache.constEnd())
        it = cache.insert(name, draw(name));
    return *it;
}

} // namespace LayerIcons
