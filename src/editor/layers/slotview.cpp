#include "slotview.h"

#include "layergeometry.h"

SlotView::SlotView(const QRectF &frame, QObject *parent)
    : View(frame, parent)
{ }

void SlotView::applyAngle(qreal radians)
{
    setTransform(LayerGeometry::perspectiveRotation(radians));
    zAngle = radians;
}

QRectF SlotView::unrotatedFrame() const
{
    return LayerGeometry::unrotatedFrame(*this);
}
