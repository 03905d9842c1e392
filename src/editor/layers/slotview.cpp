#include "slotview.h"

#include "layergeometry.h"

SlotView::SlotView(const QRectF &frame, QObject *parent)
    : View(frame, parent)
{ }

void SlotView::setRound(bool round)
{
    is_round = round;
    notifyChanged();
}

void SlotView::applyAngle(qreal radians)
{
    setTransform(LayerGeometry::perspectiveRotation(radians));
    zAngle = radians;
}

QRectF SlotView::unrotatedFrame() const
{
    return LayerGeometry::unrotatedFrame(*this);
}

void SlotView::writeFrame(ImageStickerJson &record, qreal margin, qint64 tag) const
{
    const QRectF r = unrotatedFrame();
    record.xPos = r.x();
    record.yPos = r.y();
    record.height = r.height() - margin;
    record.width = r.width() - margin;
    if (record.index.value_or(0) == 0)
        record.index = tag;
}
