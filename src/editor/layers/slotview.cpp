#include "slotview.h"

#include "layergeometry.h"

#include <QPainterPath>

namespace {

constexpr int maskDetail = 4;

// The opaque pixels of a picture as rectangles, one band per row, as QRegion takes them whole.
QRegion opaqueRegion(const QImage &picture)
{
    const QImage argb = picture.convertToFormat(QImage::Format_ARGB32);
    QList<QRect> runs;
    for (int y = 0; y < argb.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(argb.constScanLine(y));
        int start = -1;
        for (int x = 0; x <= argb.width(); ++x) {
            const bool opaque = x < argb.width() && qAlpha(row[x]) >= 128;
            if (opaque && start < 0) {
                start = x;
            } else if (!opaque && start >= 0) {
                runs.append(QRect(start, y, x - start, 1));
                start = -1;
            }
        }
    }
    QRegion region;
    region.setRects(runs.constData(), int(runs.size()));
    return region;
}

} // namespace

SlotMainView::SlotMainView(const QRectF &frame, QObject *parent)
    : View(frame, parent)
{
    setAutoresizingMask(FlexibleAll);
    setClipsToBounds(true);
}

void SlotMainView::setRound(bool round)
{
    m_round = round;
    notifyChanged();
}

void SlotMainView::setMask(const QImage &mask)
{
    const QSize size = (bounds().size() * maskDetail).toSize();
    m_maskRegion = mask.isNull() || size.isEmpty()
        ? QRegion()
        : opaqueRegion(mask.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    notifyChanged();
}

void SlotMainView::clip(QPainter &painter) const
{
    View::clip(painter);
    if (m_round) {
        QPainterPath circle;
        circle.addRoundedRect(bounds(), bounds().height() / 2, bounds().height() / 2);
        painter.setClipPath(circle, Qt::IntersectClip);
    }
    if (!m_maskRegion.isEmpty()) {
        // The clip is kept in device pixels, so the scale may go back once it is set.
        painter.scale(1.0 / maskDetail, 1.0 / maskDetail);
        painter.setClipRegion(m_maskRegion, Qt::IntersectClip);
        painter.scale(maskDetail, maskDetail);
    }
}

SlotView::SlotView(const QRectF &frame, QObject *parent)
    : View(frame, parent)
{ }

void SlotView::setRound(bool round)
{
    is_round = round;
    hole()->setRound(round);
    notifyChanged();
}

void SlotView::applyAngle(qreal radians)
{
    setTransform(LayerGeometry::perspectiveRotation(radians));
    zAngle = radians;
}

qreal SlotView::rotationDegrees() const
{
    return LayerGeometry::degrees(transform());
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
