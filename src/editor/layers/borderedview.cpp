#include "borderedview.h"

BorderedView::BorderedView(const QRectF &frame, QObject *parent)
    : View(frame, parent)
{ }

void BorderedView::paintContent(QPainter &painter) const
{
    if (borderWidth <= 0)
        return;
    painter.save();
    painter.setPen(QPen(borderColor, borderWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    const qreal half = borderWidth / 2;
    painter.drawRect(bounds().adjusted(half, half, -half, -half));
    painter.restore();
}
