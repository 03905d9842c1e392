#include "dashedborderview.h"

DashedBorderView::DashedBorderView(const QRectF &frame, QObject *parent)
    : View(frame, parent)
{ }

void DashedBorderView::paintContent(QPainter &painter) const
{
    QPen pen(strokeColor, lineWidth);
    // Qt measures dashes in line widths, Core Graphics in points.
    QList<qreal> dashes;
    for (const qreal length : dashPattern)
        dashes.append(length / lineWidth);
    pen.setDashPattern(dashes);
    painter.save();
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(bounds());
    painter.restore();
}
