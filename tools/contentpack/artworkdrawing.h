// Drawing helpers shared by the pack's sticker, shape and scene pictures.
#pragma once

#include <QImage>
#include <QPainter>
#include <QPainterPath>

namespace ArtworkDrawing {

QImage canvas(int width, int height);
void antialias(QPainter &p);
QPainterPath starPath(QPointF centre, qreal outer, qreal inner, int points, qreal rotation = -90);
QPainterPath polygonPath(QPointF centre, qreal radius, int sides, qreal rotation = -90);
QPainterPath heartPath(const QRectF &r);
QPainterPath blobPath(const QRectF &r, int seed);
QPainterPath archPath(const QRectF &r);
QPainterPath leafPath(QPointF base, qreal length, qreal angle);
QPainterPath silhouette(int kind, const QRectF &r);

} // namespace ArtworkDrawing
