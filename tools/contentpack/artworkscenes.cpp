// The pack's backgrounds: pattern tiles, scenes, gradients, banners and logos.
#include "artwork.h"
#include "artworkdrawing.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QRandomGenerator>
#include <QtMath>

using namespace ArtworkDrawing;

QImage Artwork::pattern(int kind, const QColor &ground, const QColor &ink, int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QPainter p(&image);
    antialias(p);
    p.setPen(Qt::NoPen);
    p.setBrush(ink);
    const qreal s = size;
    switch (kind % 6) {
    case 0: // polka dots, offset rows so the tile repeats
        for (const QPointF &pt : { QPointF(0, 0), QPointF(s, 0), QPointF(0, s), QPointF(s, s), QPointF(s / 2, s / 2) })
            p.drawEllipse(pt, s * 0.12, s * 0.12);
        break;
    case 1: // diagonal stripes
        p.setPen(QPen(ink, s * 0.12));
        for (int i = -2; i <= 2; ++i)
            p.drawLine(QPointF(i * s / 2, s), QPointF(i * s / 2 + s, 0));
        break;
    case 2: // checks
        p.drawRect(QRectF(0, 0, s / 2, s / 2));
        p.drawRect(QRectF(s / 2, s / 2, s / 2, s / 2));
        break;
    case 3: { // waves
        p.setPen(QPen(ink, s * 0.06));
        p.setBrush(Qt::NoBrush);
        for (qreal y : { s * 0.25, s * 0.75 }) {
            QPainterPath wave;
            wave.moveTo(0, y);
            wave.cubicTo(s * 0.25, y - s * 0.15, s * 0.25, y + s * 0.15, s * 0.5, y);
            wave.cubicTo(s * 0.75, y - s * 0.15, s * 0.75, y + s * 0.15, s, y);
            p.drawPath(wave);
        }
        break;
    }
    case 4: // triangles
        p.drawPolygon(QPolygonF({ QPointF(0, s / 2), QPointF(s / 4, 0), QPointF(s / 2, s / 2) }));
        p.drawPolygon(QPolygonF({ QPointF(s / 2, s), QPointF(s * 0.75, s / 2), QPointF(s, s) }));
        break;
    default: // crosses
        p.setPen(QPen(ink, s * 0.05, Qt::SolidLine, Qt::RoundCap));
        for (const QPointF &pt : { QPointF(s / 4, s / 4), QPointF(s * 3 / 4, s * 3 / 4) }) {
            p.drawLine(pt + QPointF(-s * 0.08, 0), pt + QPointF(s * 0.08, 0));
            p.drawLine(pt + QPointF(0, -s * 0.08), pt + QPointF(0, s * 0.08));
        }
        break;
    }
    return image;
}

QImage Artwork::scene(int kind, int seed, int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    QPainter p(&image);
    antialias(p);
    QRandomGenerator random(static_cast<quint32>(seed * 131 + kind));
    const qreal w = width, h = height;
    const int hue = random.bounded(360);
    auto tone = [&](int dh, int s, int v) { return QColor::fromHsv((hue + dh + 360) % 360, s, v); };
    QLinearGradient sky(0, 0, 0, h);
    switch (kind % 5) {
    case 0: { // mountains at sunset
        sky.setColorAt(0, tone(200, 120, 110));
        sky.setColorAt(0.55, tone(20, 160, 250));
        sky.setColorAt(1, tone(40, 90, 255));
        p.fillRect(image.rect(), sky);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(255, 240, 200, 230));
        p.drawEllipse(QPointF(w * (0.3 + random.generateDouble() * 0.4), h * 0.5), w * 0.09, w * 0.09);
        for (int layer = 0; layer < 4; ++layer) {
            QPolygonF ridge;
            ridge << QPointF(0, h);
            const qreal base = h * (0.52 + layer * 0.1);
            for (int i = 0; i <= 8; ++i)
                ridge << QPointF(w * i / 8, base - random.bounded(h * 0.12));
            ridge << QPointF(w, h);
            p.setBrush(tone(230, 80 + layer * 20, 150 - layer * 30));
            p.drawPolygon(ridge);
        }
        break;
    }
    case 1: { // sea
        sky.setColorAt(0, tone(190, 90, 240));
        sky.setColorAt(0.5, tone(180, 30, 255));
        sky.setColorAt(0.5001, tone(200, 200, 170));
        sky.setColorAt(1, tone(210, 230, 90));
        p.fillRect(image.rect(), sky);
        p.setPen(QPen(QColor(255, 255, 255, 90), h * 0.004));
        for (int i = 0; i < 40; ++i) {
            const qreal y = h * 0.52 + random.bounded(h * 0.46);
            const qreal x = random.bounded(w);
            p.drawLine(QPointF(x, y), QPointF(x + w * 0.08, y));
        }
        break;
    }
    case 2: { // city at night
        sky.setColorAt(0, tone(240, 200, 40));
        sky.setColorAt(1, tone(260, 160, 120));
        p.fillRect(image.rect(), sky);
        p.setPen(Qt::NoPen);
        qreal x = 0;
        while (x < w) {
            const qreal bw = w * (0.08 + random.generateDouble() * 0.1);
            const qreal bh = h * (0.2 + random.generateDouble() * 0.45);
            p.setBrush(tone(240, 60, 30 + random.bounded(30)));
            p.drawRect(QRectF(x, h - bh, bw, bh));
            p.setBrush(QColor(255, 220, 140));
            for (qreal wy = h - bh + h * 0.02; wy < h - h * 0.02; wy += h * 0.03) {
                for (qreal wx = x + bw * 0.15; wx < x + bw * 0.85; wx += bw * 0.25) {
                    if (random.bounded(3) == 0)
                        p.drawRect(QRectF(wx, wy, bw * 0.12, h * 0.012));
                }
            }
            x += bw + w * 0.01;
        }
        break;
    }
    case 3: { // bokeh lights
        sky.setColorAt(0, tone(0, 140, 50));
        sky.setColorAt(1, tone(40, 180, 110));
        p.fillRect(image.rect(), sky);
        p.setPen(Qt::NoPen);
        for (int i = 0; i < 45; ++i) {
            const QPointF c(random.bounded(w), random.bounded(h));
            const qreal r = w * (0.03 + random.generateDouble() * 0.09);
            QRadialGradient glow(c, r);
            QColor light = tone(random.bounded(60), 120, 255);
            light.setAlpha(90 + random.bounded(100));
            glow.setColorAt(0, light);
            glow.setColorAt(0.85, light);
            light.setAlpha(0);
            glow.setColorAt(1, light);
            p.setBrush(glow);
            p.drawEllipse(c, r, r);
        }
        break;
    }
    default: { // flowers on a soft ground
        sky.setColorAt(0, tone(90, 60, 230));
        sky.setColorAt(1, tone(120, 120, 150));
        p.fillRect(image.rect(), sky);
        for (int i = 0; i < 30; ++i) {
            const int size = qMax(16, int(w * (0.08 + random.generateDouble() * 0.14)));
            const QImage flower = sticker(6, tone(random.bounded(80) - 40, 150, 250), tone(50, 200, 255), size);
            p.drawImage(QPointF(random.bounded(w) - size / 2.0, random.bounded(h) - size / 2.0), flower);
        }
        break;
    }
    }
    return image;
}

QImage Artwork::gradient(const QColor &from, const QColor &to, int width, int height, qreal angleDegrees)
{
    QImage image(width, height, QImage::Format_RGB32);
    QPainter p(&image);
    const QPointF c(width / 2.0, height / 2.0);
    const qreal a = qDegreesToRadians(angleDegrees);
    const qreal reach = (qAbs(width * qCos(a)) + qAbs(height * qSin(a))) / 2;
    QLinearGradient g(c - QPointF(qCos(a), qSin(a)) * reach, c + QPointF(qCos(a), qSin(a)) * reach);
    g.setColorAt(0, from);
    g.setColorAt(1, to);
    p.fillRect(image.rect(), g);
    return image;
}

QImage Artwork::banner(const QString &name, const QFont &font, const QColor &from, const QColor &to)
{
    QImage image = gradient(from, to, 1024, 500, 20);
    QPainter p(&image);
    antialias(p);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 40));
    p.drawEllipse(QPointF(900, 80), 260, 260);
    p.drawEllipse(QPointF(120, 470), 180, 180);
    QFont f = font;
    f.setPixelSize(110);
    p.setFont(f);
    p.setPen(Qt::white);
    p.drawText(QRectF(0, 0, 1024, 500), Qt::AlignCenter, name);
    return image;
}

QImage Artwork::logo(const QString &name, const QFont &font, const QColor &from, const QColor &to)
{
    QImage image = canvas(256, 256);
    QPainter p(&image);
    antialias(p);
    QLinearGradient g(0, 0, 256, 256);
    g.setColorAt(0, from);
    g.setColorAt(1, to);
    p.setPen(Qt::NoPen);
    p.setBrush(g);
    p.drawRoundedRect(QRectF(0, 0, 256, 256), 56, 56);
    QFont f = font;
    f.setPixelSize(150);
    p.setFont(f);
    p.setPen(Qt::white);
    p.drawText(QRectF(0, 0, 256, 256), Qt::AlignCenter, name.left(1));
    return image;
}
