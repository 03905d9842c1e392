#include "activityindicatorview.h"

#include "selectionchrome.h"

namespace {
constexpr int spokes = 12;
constexpr int stepMs = 80;
} // namespace

ActivityIndicatorView::ActivityIndicatorView(View *host)
    : View(QRectF(host->bounds().center() - QPointF(side / 2, side / 2), QSizeF(side, side)))
{
    SelectionChrome::mark(this);
    setUserInteractionEnabled(false);
    setAutoresizingMask(FlexibleLeftMargin | FlexibleRightMargin | FlexibleTopMargin | FlexibleBottomMargin);
    host->addSubview(this);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_phase = (m_phase + 1) % spokes;
        notifyChanged();
    });
    m_timer.start(stepMs);
}

void ActivityIndicatorView::paintContent(QPainter &painter) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(bounds().center());
    QPen pen(QColor(0x80, 0x80, 0x80));
    pen.setWidthF(side / 10);
    pen.setCapStyle(Qt::RoundCap);
    for (int i = 0; i < spokes; ++i) {
        // The spoke of the present phase is opaque; those behind it fade.
        const int age = (m_phase - i + spokes) % spokes;
        pen.setColor(QColor(0x80, 0x80, 0x80, 255 - age * 200 / spokes));
        painter.setPen(pen);
        painter.drawLine(QPointF(0, -side * 0.25), QPointF(0, -side * 0.45));
        painter.rotate(360.0 / spokes);
    }
    painter.restore();
}
