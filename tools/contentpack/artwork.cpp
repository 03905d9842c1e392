#include "artwork.h"
#include "artworkdrawing.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QRandomGenerator>
#include <QtMath>

using namespace ArtworkDrawing;

QImage Artwork::sticker(int kind, const QColor &main, const QColor &accent, int size)
{
    QImage image = canvas(size, size);
    QPainter p(&image);
    antialias(p);
    const QRectF r(size * 0.08, size * 0.08, size * 0.84, size * 0.84);
    const QPointF c = r.center();
    const qreal radius = r.width() / 2;
    QLinearGradient fill(r.topLeft(), r.bottomRight());
    fill.setColorAt(0, main);
    fill.setColorAt(1, main.darker(125));
    p.setPen(Qt::NoPen);
    p.setBrush(fill);
    switch (kind % kStickerKinds) {
    case 0: // star with a shine
        p.drawPath(starPath(c, radius, radius * 0.45, 5));
        p.setBrush(accent);
        p.drawEllipse(QPointF(c.x() - radius * 0.12, c.y() - radius * 0.1), radius * 0.1, radius * 0.1);
        break;
    case 1: // heart with highlight
        p.drawPath(heartPath(r));
        p.setBrush(QColor(255, 255, 255, 110));
        p.drawEllipse(QRectF(r.x() + r.width() * 0.2, r.y() + r.height() * 0.2, r.width() * 0.15, r.height() * 0.1));
        break;
    case 2: { // burst badge
        p.drawPath(starPath(c, radius, radius * 0.82, 16));
        p.setBrush(accent);
        p.drawEllipse(c, radius * 0.62, radius * 0.62);
        p.setPen(QPen(main.lighter(150), size * 0.012, Qt::DashLine));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(c, radius * 0.54, radius * 0.54);
        break;
    }
    case 3: // leaf sprig
        p.setPen(QPen(main.darker(140), size * 0.018, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(c.x(), r.bottom()), QPointF(c.x(), r.top() + r.height() * 0.05));
        p.setPen(Qt::NoPen);
        for (int i = 0; i < 5; ++i) {
            const qreal y = r.bottom() - r.height() * (0.2 + i * 0.16);
            p.setBrush(i % 2 ? main : accent);
            p.drawPath(leafPath(QPointF(c.x(), y), radius * (0.85 - i * 0.1), -35));
            p.drawPath(leafPath(QPointF(c.x(), y - r.height() * 0.05), radius * (0.85 - i * 0.1), -145));
        }
        break;
    case 4: // sparkles
        p.drawPath(starPath(c, radius, radius * 0.18, 4));
        p.setBrush(accent);
        p.drawPath(starPath(QPointF(r.right() - radius * 0.3, r.top() + radius * 0.3), radius * 0.3, radius * 0.06, 4));
        p.drawPath(
            starPath(QPointF(r.left() + radius * 0.3, r.bottom() - radius * 0.35), radius * 0.22, radius * 0.05, 4));
        break;
    case 5: { // sun
        p.setBrush(accent);
        for (int i = 0; i < 12; ++i) {
            p.save();
            p.translate(c);
            p.rotate(i * 30);
            p.drawRoundedRect(QRectF(radius * 0.62, -radius * 0.06, radius * 0.38, radius * 0.12), 6, 6);
            p.restore();
        }
        p.setBrush(fill);
        p.drawEllipse(c, radius * 0.55, radius * 0.55);
        break;
    }
    case 6: { // flower
        p.setBrush(main);
        for (int i = 0; i < 6; ++i) {
            p.save();
            p.translate(c);
            p.rotate(i * 60);
            p.drawEllipse(QRectF(-radius * 0.22, -radius * 0.95, radius * 0.44, radius * 0.7));
            p.restore();
        }
        p.setBrush(accent);
        p.drawEllipse(c, radius * 0.28, radius * 0.28);
        break;
    }
    case 7: { // ribbon banner
        QPainterPath ribbon;
        const qreal h = r.height() * 0.32, top = c.y() - h / 2;
        ribbon.addRect(QRectF(r.left() + r.width() * 0.12, top, r.width() * 0.76, h));
        p.drawPath(ribbon);
        p.setBrush(main.darker(150));
        QPolygonF tailLeft({ QPointF(r.left(), top + h * 0.3), QPointF(r.left() + r.width() * 0.2, top + h * 0.3),
            QPointF(r.left() + r.width() * 0.2, top + h * 1.3), QPointF(r.left(), top + h * 1.3),
            QPointF(r.left() + r.width() * 0.07, top + h * 0.8) });
        p.drawPolygon(tailLeft);
        p.drawPolygon(QTransform().translate(size, 0).scale(-1, 1).map(tailLeft));
        p.setBrush(fill);
        p.drawRect(QRectF(r.left() + r.width() * 0.12, top, r.width() * 0.76, h));
        p.setPen(QPen(accent, size * 0.01, Qt::DotLine));
        p.drawLine(QPointF(r.left() + r.width() * 0.16, top + h * 0.15),
            QPointF(r.right() - r.width() * 0.16, top + h * 0.15));
        p.drawLine(QPointF(r.left() + r.width() * 0.16, top + h * 0.85),
            QPointF(r.right() - r.width() * 0.16, top + h * 0.85));
        break;
    }
    case 8: { // lightning bolt
        QPolygonF bolt({ QPointF(0.55, 0), QPointF(0.15, 0.55), QPointF(0.45, 0.55), QPointF(0.35, 1),
            QPointF(0.85, 0.4), QPointF(0.55, 0.4), QPointF(0.7, 0) });
        p.setBrush(accent);
        p.drawPolygon(
            QTransform().translate(r.x() + size * 0.02, r.y() + size * 0.02).scale(r.width(), r.height()).map(bolt));
        p.setBrush(fill);
        p.drawPolygon(QTransform().translate(r.x(), r.y()).scale(r.width(), r.height()).map(bolt));
        break;
    }
    case 9: { // cloud
        QPainterPath cloud;
        cloud.addEllipse(QRectF(r.x(), c.y() - radius * 0.1, radius * 0.9, radius * 0.7));
        cloud.addEllipse(QRectF(c.x() - radius * 0.55, c.y() - radius * 0.55, radius * 1.0, radius * 1.0));
        cloud.addEllipse(QRectF(c.x() + radius * 0.05, c.y() - radius * 0.3, radius * 0.9, radius * 0.85));
        cloud.addRoundedRect(QRectF(r.x() + radius * 0.2, c.y() + radius * 0.1, r.width() * 0.8, radius * 0.5), 30, 30);
        p.setBrush(accent);
        p.drawPath(cloud.simplified().translated(size * 0.02, size * 0.03));
        p.setBrush(fill);
        p.drawPath(cloud.simplified());
        break;
    }
    case 10: { // arrow swoosh
        QPainterPath swoosh;
        swoosh.moveTo(r.left(), r.bottom() - radius * 0.3);
        swoosh.cubicTo(r.left() + radius * 0.5, r.top() + radius * 0.2, r.right() - radius * 0.8,
            r.top() + radius * 0.1, r.right() - radius * 0.25, r.top() + radius * 0.4);
        p.setPen(QPen(main, size * 0.06, Qt::SolidLine, Qt::RoundCap));
        p.setBrush(Qt::NoBrush);
        p.drawPath(swoosh);
        p.setPen(Qt::NoPen);
        p.setBrush(accent);
        p.drawPolygon(QPolygonF({ QPointF(r.right(), r.top() + radius * 0.55),
            QPointF(r.right() - radius * 0.55, r.top() + radius * 0.1), QPointF(r.right() - radius * 0.1, r.top()) }));
        break;
    }
    default: { // confetti
        QRandomGenerator random(static_cast<quint32>(kind * 7 + 3));
        for (int i = 0; i < 26; ++i) {
            p.save();
            p.translate(r.x() + random.bounded(r.width()), r.y() + random.bounded(r.height()));
            p.rotate(random.bounded(180.0));
            p.setBrush(i % 3 == 0 ? accent : (i % 3 == 1 ? main : main.lighter(140)));
            if (i % 2)
                p.drawRect(QRectF(-size * 0.025, -size * 0.012, size * 0.05, size * 0.024));
            else
                p.drawEllipse(QPointF(0, 0), size * 0.018, size * 0.018);
            p.restore();
        }
        break;
    }
    }
    return image;
}

QImage Artwork::shape(int kind, const QColor &colour, int size)
{
    QImage image = canvas(size, size);
    QPainter p(&image);
    antialias(p);
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    const QRectF r(size * 0.05, size * 0.05, size * 0.9, size * 0.9);
    if (kind >= 8) {
        const QPointF c = r.center();
        const qreal radius = r.width() / 2;
        switch (kind % 4) {
        case 0:
            p.drawPolygon(
                QPolygonF({ QPointF(c.x(), r.top()), QPointF(r.right(), r.bottom()), QPointF(r.left(), r.bottom()) }));
            break;
        case 1:
            p.setPen(QPen(colour, size * 0.12));
            p.setBrush(Qt::NoBrush);
            p.drawEllipse(c, radius * 0.86, radius * 0.86);
            break;
        case 2:
            p.drawPolygon(QPolygonF({ QPointF(c.x(), r.top()), QPointF(r.right(), c.y()), QPointF(c.x(), r.bottom()),
                QPointF(r.left(), c.y()) }));
            break;
        default:
            p.drawRoundedRect(QRectF(c.x() - radius * 0.3, r.top(), radius * 0.6, r.height()), 12, 12);
            p.drawRoundedRect(QRectF(r.left(), c.y() - radius * 0.3, r.width(), radius * 0.6), 12, 12);
            break;
        }
    } else {
        p.drawPath(silhouette(kind, r));
    }
    return image;
}

QImage Artwork::icon(int kind, const QColor &colour, int size)
{
    QImage image = canvas(size, size);
    QPainter p(&image);
    antialias(p);
    p.scale(size / 100.0, size / 100.0);
    QPen pen(colour, 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    p.setPen(pen);
    p.setBrush(Qt::NoBrush);
    switch (kind % 14) {
    case 0:
        p.drawPath(heartPath(QRectF(18, 20, 64, 62)));
        break;
    case 1:
        p.drawPath(starPath(QPointF(50, 53), 36, 16, 5));
        break;
    case 2: // camera
        p.drawRoundedRect(QRectF(14, 30, 72, 50), 8, 8);
        p.drawEllipse(QPointF(50, 55), 15, 15);
        p.drawLine(QPointF(36, 30), QPointF(42, 20));
        p.drawLine(QPointF(42, 20), QPointF(58, 20));
        p.drawLine(QPointF(58, 20), QPointF(64, 30));
        break;
    case 3: // music note
        p.drawEllipse(QPointF(34, 72), 11, 9);
        p.drawEllipse(QPointF(70, 64), 11, 9);
        p.drawLine(QPointF(45, 72), QPointF(45, 22));
        p.drawLine(QPointF(81, 64), QPointF(81, 14));
        p.drawLine(QPointF(45, 22), QPointF(81, 14));
        break;
    case 4: { // plane
        QPainterPath plane;
        plane.moveTo(50, 12);
        plane.lineTo(56, 40);
        plane.lineTo(88, 56);
        plane.lineTo(56, 52);
        plane.lineTo(54, 76);
        plane.lineTo(64, 86);
        plane.lineTo(36, 86);
        plane.lineTo(46, 76);
        plane.lineTo(44, 52);
        plane.lineTo(12, 56);
        plane.lineTo(44, 40);
        plane.closeSubpath();
        p.drawPath(plane);
        break;
    }
    case 5: // cup
        p.drawRoundedRect(QRectF(20, 34, 46, 48), 6, 6);
        p.drawArc(QRectF(58, 42, 24, 26), -90 * 16, 180 * 16);
        p.drawLine(QPointF(34, 14), QPointF(34, 24));
        p.drawLine(QPointF(50, 14), QPointF(50, 24));
        break;
    case 6: // dumbbell
        p.drawLine(QPointF(28, 50), QPointF(72, 50));
        p.drawRoundedRect(QRectF(12, 30, 14, 40), 4, 4);
        p.drawRoundedRect(QRectF(74, 30, 14, 40), 4, 4);
        break;
    case 7: // paw
        p.setBrush(colour);
        p.drawEllipse(QPointF(50, 64), 18, 15);
        p.drawEllipse(QPointF(26, 44), 8, 10);
        p.drawEllipse(QPointF(40, 28), 8, 10);
        p.drawEllipse(QPointF(60, 28), 8, 10);
        p.drawEllipse(QPointF(74, 44), 8, 10);
        break;
    case 8: // house
        p.drawPolyline(QPolygonF({ QPointF(14, 50), QPointF(50, 16), QPointF(86, 50) }));
        p.drawRect(QRectF(24, 46, 52, 40));
        p.drawRect(QRectF(42, 62, 16, 24));
        break;
    case 9: // book
        p.drawLine(QPointF(50, 26), QPointF(50, 84));
        p.drawPolyline(QPolygonF({ QPointF(50, 26), QPointF(14, 18), QPointF(14, 76), QPointF(50, 84), QPointF(86, 76),
            QPointF(86, 18), QPointF(50, 26) }));
        break;
    case 10: // bag
        p.drawRoundedRect(QRectF(18, 36, 64, 50), 6, 6);
        p.drawArc(QRectF(34, 16, 32, 36), 0, 180 * 16);
        break;
    case 11: // chat bubble
        p.drawRoundedRect(QRectF(12, 18, 76, 52), 14, 14);
        p.drawPolyline(QPolygonF({ QPointF(30, 70), QPointF(26, 86), QPointF(46, 70) }));
        break;
    case 12: // pin
        p.drawPath([] {
            QPainterPath pin;
            pin.moveTo(50, 90);
            pin.cubicTo(20, 56, 20, 46, 22, 38);
            pin.arcTo(QRectF(22, 10, 56, 56), 180, -180);
            pin.cubicTo(80, 46, 80, 56, 50, 90);
            return pin;
        }());
        p.drawEllipse(QPointF(50, 38), 10, 10);
        break;
    default: // sun
        p.drawEllipse(QPointF(50, 50), 16, 16);
        for (int i = 0; i < 8; ++i) {
            const qreal a = i * M_PI / 4;
            p.drawLine(QPointF(50 + 26 * qCos(a), 50 + 26 * qSin(a)), QPointF(50 + 38 * qCos(a), 50 + 38 * qSin(a)));
        }
        break;
    }
    return image;
}

QImage Artwork::frame(int kind, const QColor &main, const QColor &accent, int size)
{
    QImage image = canvas(size, size);
    QPainter p(&image);
    antialias(p);
    const QPointF c(size / 2.0, size / 2.0);
    const qreal radius = size * 0.46;
    p.setBrush(Qt::NoBrush);
    switch (kind % 8) {
    case 0:
        p.setPen(QPen(main, size * 0.04));
        p.drawEllipse(c, radius, radius);
        break;
    case 1:
        p.setPen(QPen(main, size * 0.02));
        p.drawEllipse(c, radius, radius);
        p.setPen(QPen(accent, size * 0.01, Qt::DashLine));
        p.drawEllipse(c, radius * 0.92, radius * 0.92);
        break;
    case 2:
        p.setPen(QPen(main, size * 0.03));
        p.drawRoundedRect(QRectF(size * 0.06, size * 0.06, size * 0.88, size * 0.88), size * 0.12, size * 0.12);
        break;
    case 3: // dotted ring
        p.setPen(Qt::NoPen);
        p.setBrush(main);
        for (int i = 0; i < 36; ++i) {
            const qreal a = i * 2 * M_PI / 36;
            p.drawEllipse(QPointF(c.x() + radius * qCos(a), c.y() + radius * qSin(a)), size * 0.014, size * 0.014);
        }
        break;
    case 4: // leaf wreath
        p.setPen(Qt::NoPen);
        for (int i = 0; i < 22; ++i) {
            const qreal deg = 100 + i * 7.5;
            const qreal a = qDegreesToRadians(deg);
            p.setBrush(i % 2 ? main : accent);
            p.drawPath(leafPath(QPointF(c.x() + radius * qCos(a), c.y() + radius * qSin(a)), size * 0.09, deg + 60));
            p.drawPath(
                leafPath(QPointF(c.x() - radius * qCos(a), c.y() + radius * qSin(a)), size * 0.09, 180 - deg - 60));
        }
        break;
    case 5: { // gradient ring
        QConicalGradient ring(c, 0);
        ring.setColorAt(0, main);
        ring.setColorAt(0.5, accent);
        ring.setColorAt(1, main);
        p.setPen(QPen(QBrush(ring), size * 0.05));
        p.drawEllipse(c, radius, radius);
        break;
    }
    case 6: // corners
        p.setPen(QPen(main, size * 0.03, Qt::SolidLine, Qt::SquareCap));
        for (int i = 0; i < 4; ++i) {
            p.save();
            p.translate(c);
            p.rotate(i * 90);
            p.drawLine(QPointF(-radius, -radius), QPointF(-radius + size * 0.2, -radius));
            p.drawLine(QPointF(-radius, -radius), QPointF(-radius, -radius + size * 0.2));
            p.restore();
        }
        break;
    default: // double ring with stars
        p.setPen(QPen(main, size * 0.015));
        p.drawEllipse(c, radius, radius);
        p.drawEllipse(c, radius * 0.94, radius * 0.94);
        p.setPen(Qt::NoPen);
        p.setBrush(accent);
        for (int i = 0; i < 4; ++i) {
            const qreal a = i * M_PI / 2 + M_PI / 4;
            p.drawPath(starPath(QPointF(c.x() + radius * 0.97 * qCos(a), c.y() + radius * 0.97 * qSin(a)), size * 0.04,
                size * 0.015, 4));
        }
        break;
    }
    return image;
}

QImage Artwork::textArt(const QString &text, const QFont &font, const QColor &from, const QColor &to, int width)
{
    QFont f = font;
    QFontMetricsF metrics(f);
    f.setPixelSize(qMax(8, qRound(f.pixelSize() * (width * 0.86) / qMax(1.0, metrics.horizontalAdvance(text)))));
    metrics = QFontMetricsF(f);
    const int height = qCeil(metrics.height() * 1.25);
    QImage image = canvas(width, height);
    QPainter p(&image);
    antialias(p);
    QPainterPath path;
    const qreal x = (width - metrics.horizontalAdvance(text)) / 2;
    path.addText(QPointF(x, (height - metrics.height()) / 2 + metrics.ascent()), f, text);
    QLinearGradient fill(0, 0, 0, height);
    fill.setColorAt(0, from);
    fill.setColorAt(1, to);
    p.setPen(QPen(QColor(0, 0, 0, 90), f.pixelSize() * 0.08, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPath(path.translated(f.pixelSize() * 0.04, f.pixelSize() * 0.05));
    p.setPen(QPen(Qt::white, f.pixelSize() * 0.07, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(fill);
    p.drawPath(path);
    p.setPen(Qt::NoPen);
    p.drawPath(path);
    return image;
}

QImage Artwork::mask(int kind, int width, int height)
{
    QImage image = canvas(width, height);
    QPainter p(&image);
    antialias(p);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawPath(silhouette(kind, QRectF(0, 0, width, height)));
    return image;
}

QImage Artwork::cropShape(int kind, int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter p(&image);
    antialias(p);
    p.setCompositionMode(QPainter::CompositionMode_Clear);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::black);
    p.drawPath(silhouette(kind, QRectF(size * 0.1, size * 0.1, size * 0.8, size * 0.8)));
    return image;
}
