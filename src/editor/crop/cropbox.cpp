#include "cropbox.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace {

/** `rect` moved the least distance that puts it inside `bounds`; its size stays. */
QRectF shiftedInto(QRectF rect, const QRectF &bounds)
{
    rect.moveLeft(std::max(bounds.left(), std::min(rect.left(), bounds.right() - rect.width())));
    rect.moveTop(std::max(bounds.top(), std::min(rect.top(), bounds.bottom() - rect.height())));
    return rect;
}

QRectF centredAt(const QPointF &centre, const QSizeF &size)
{
    QRectF rect(QPointF(), size);
    rect.moveCenter(centre);
    return rect;
}

/** How a handle moves one axis of the box. */
enum class Motion {
    Still, // the edges stay
    Low, // the low edge follows the finger, the high edge stays
    High, // the high edge follows the finger, the low edge stays
    Centred, // both edges move about the middle, to keep a ratio that the other axis sets
};

/** One axis of the box under a handle, from where the drag began. */
struct Axis
{
    qreal low;
    qreal high;
    qreal boundLow;
    qreal boundHigh;
    Motion motion;
    qreal delta;

    [[nodiscard]] qreal size() const { return high - low; }
    /** The largest size the bounds leave this axis. */
    [[nodiscard]] qreal room() const
    {
        switch (motion) {
        case Motion::Low:
            return high - boundLow;
        case Motion::High:
            return boundHigh - low;
        case Motion::Centred: {
            const qreal middle = (low + high) / 2;
            return 2 * std::min(middle - boundLow, boundHigh - middle);
        }
        case Motion::Still:
            break;
        }
        return size();
    }
    /** The size the finger asks for; none when the finger doesn't move this axis. */
    [[nodiscard]] std::optional<qreal> wanted() const
    {
        if (motion == Motion::Low)
            return size() - delta;
        if (motion == Motion::High)
            return size() + delta;
        return std::nullopt;
    }
    /** The edges for a new size. */
    [[nodiscard]] std::pair<qreal, qreal> placed(qreal newSize) const
    {
        switch (motion) {
        case Motion::Low:
            return { high - newSize, high };
        case Motion::High:
            return { low, low + newSize };
        case Motion::Centred: {
            const qreal middle = (low + high) / 2;
            return { middle - newSize / 2, middle + newSize / 2 };
        }
        case Motion::Still:
            break;
        }
        return { low, high };
    }
};

qreal limited(qreal value, qreal least, qreal most)
{
    // The bounds win over the minimum when a picture is too small for both.
    return std::min(std::max(value, least), most);
}

} // namespace

QRectF CropBox::Placement::toView(const QRectF &picture) const
{
    return { origin + picture.topLeft() * scale, picture.size() * scale };
}

QPointF CropBox::Placement::toPicture(const QPointF &view) const
{
    return (view - origin) / scale;
}

QRectF CropBox::Placement::toPicture(const QRectF &view) const
{
    return { toPicture(view.topLeft()), view.size() / scale };
}

CropBox::CropBox(QSize imageSize)
    : m_imageSize(imageSize.isValid() ? imageSize : QSize())
    , m_crop(pictureBounds())
{ }

QSizeF CropBox::turnedSize() const
{
    return m_angle % 180 == 0 ? QSizeF(m_imageSize) : QSizeF(m_imageSize.transposed());
}

bool CropBox::isReset() const
{
    return m_angle == 0 && !m_ratio && m_crop == pictureBounds();
}

qreal CropBox::minimumSide() const
{
    const QSizeF turned = turnedSize();
    return std::min(minimumPixels, std::min(turned.width(), turned.height()));
}

void CropBox::rotateClockwise()
{
    // A point (x, y) of the turned picture goes to (height - y, x).
    const qreal height = turnedSize().height();
    m_crop = QRectF(height - m_crop.bottom(), m_crop.left(), m_crop.height(), m_crop.width());
    m_angle = (m_angle + 90) % 360;
    if (m_ratio)
        m_ratio = 1.0 / *m_ratio;
}

void CropBox::rotateCounterclockwise()
{
    // A point (x, y) of the turned picture goes to (y, width - x).
    const qreal width = turnedSize().width();
    m_crop = QRectF(m_crop.top(), width - m_crop.right(), m_crop.height(), m_crop.width());
    m_angle = (m_angle + 270) % 360;
    if (m_ratio)
        m_ratio = 1.0 / *m_ratio;
}

void CropBox::setAspectRatio(std::optional<qreal> ratio)
{
    if (!ratio || !(*ratio > 0) || m_crop.isEmpty()) {
        m_ratio.reset();
        return;
    }
    m_ratio = ratio;
    const QSizeF turned = turnedSize();
    const qreal width = std::min(
        std::sqrt(m_crop.width() * m_crop.height() * *ratio), std::min(turned.width(), turned.height() * *ratio));
    m_crop = shiftedInto(centredAt(m_crop.center(), QSizeF(width, width / *ratio)), pictureBounds());
}

void CropBox::reset()
{
    m_angle = 0;
    m_ratio.reset();
    m_crop = pictureBounds();
}

CropBox::Placement CropBox::fitted(const QRectF &area) const
{
    if (m_crop.isEmpty() || area.isEmpty())
        return { 1.0, area.topLeft() };
    const qreal scale = std::min(area.width() / m_crop.width(), area.height() / m_crop.height());
    return { scale, area.center() - m_crop.center() * scale };
}

void CropBox::dragHandle(
    const QRectF &start, Handle handle, QPointF translation, const Placement &placement, const QRectF &area)
{
    const QRectF bounds = pictureBounds().intersected(placement.toPicture(area));
    const QPointF delta = translation / placement.scale;
    const Motion across = m_ratio ? Motion::Centred : Motion::Still;
    Motion horizontal = across;
    Motion vertical = across;
    switch (handle) {
    case Handle::TopLeft:
        horizontal = vertical = Motion::Low;
        break;
    case Handle::Top:
        vertical = Motion::Low;
        break;
    case Handle::TopRight:
        horizontal = Motion::High;
        vertical = Motion::Low;
        break;
    case Handle::Right:
        horizontal = Motion::High;
        break;
    case Handle::BottomRight:
        horizontal = vertical = Motion::High;
        break;
    case Handle::Bottom:
        vertical = Motion::High;
        break;
    case Handle::BottomLeft:
        horizontal = Motion::Low;
        vertical = Motion::High;
        break;
    case Handle::Left:
        horizontal = Motion::Low;
        break;
    }
    const Axis x { start.left(), start.right(), bounds.left(), bounds.right(), horizontal, delta.x() };
    const Axis y { start.top(), start.bottom(), bounds.top(), bounds.bottom(), vertical, delta.y() };
    // The box never has to grow when it is taken hold of.
    const qreal least
        = std::min(std::max(minimumBoxSide / placement.scale, minimumSide()), std::min(start.width(), start.height()));

    qreal width = x.size();
    qreal height = y.size();
    if (!m_ratio) {
        if (const auto wanted = x.wanted())
            width = limited(*wanted, least, x.room());
        if (const auto wanted = y.wanted())
            height = limited(*wanted, least, y.room());
    } else {
        const qreal ratio = *m_ratio;
        const auto byX = x.wanted();
        std::optional<qreal> byY = y.wanted();
        if (byY)
            *byY *= ratio;
        // At a corner the axis that the finger moved more decides.
        if (byX && byY)
            width = std::abs(*byX - x.size()) >= std::abs(*byY - x.size()) ? *byX : *byY;
        else
            width = byX.value_or(byY.value_or(width));
        width = limited(width, std::max(least, least * ratio), std::min(x.room(), y.room() * ratio));
        height = width / ratio;
    }
    const auto [left, right] = x.placed(width);
    const auto [top, bottom] = y.placed(height);
    m_crop = QRectF(QPointF(left, top), QPointF(right, bottom));
}

void CropBox::moveImage(
    const QRectF &start, const Placement &placement, QPointF translation, qreal scale, QPointF centre)
{
    if (start.isEmpty() || !(scale > 0))
        return;
    const Placement moved { placement.scale * scale, centre + (placement.origin - centre) * scale + translation };
    QRectF crop = moved.toPicture(placement.toView(start));
    const QSizeF turned = turnedSize();
    const qreal fits = std::min(turned.width() / crop.width(), turned.height() / crop.height());
    const qreal shortest = std::min(crop.width(), crop.height());
    const qreal factor = std::min(std::max(1.0, minimumSide() / shortest), fits);
    crop = centredAt(crop.center(), crop.size() * factor);
    m_crop = shiftedInto(crop, pictureBounds());
}

QRect CropBox::pixelRect() const
{
    const QRect rounded(QPoint(qRound(m_crop.left()), qRound(m_crop.top())),
        QPoint(qRound(m_crop.right()) - 1, qRound(m_crop.bottom()) - 1));
    return rounded.intersected(QRect(QPoint(), turnedSize().toSize()));
}

QRect CropBox::unturned(const QRect &rect, QSize imageSize, int angle)
{
    // Clockwise turns: a pixel edge (u, v) of the turned picture lies at (v, height - u) before a quarter
    // turn, at (width - u, height - v) before a half turn, and at (width - v, u) before three quarters.
    const int width = imageSize.width();
    const int height = imageSize.height();
    switch (angle) {
    case 90:
        return { rect.y(), height - rect.x() - rect.width(), rect.height(), rect.width() };
    case 180:
        return { width - rect.x() - rect.width(), height - rect.y() - rect.height(), rect.width(), rect.height() };
    case 270:
        return { width - rect.y() - rect.height(), rect.x(), rect.height(), rect.width() };
    default:
        return rect;
    }
}

QImage CropBox::crop(const QImage &image, const QRect &rect, int angle)
{
    // Cutting before turning copies only the pixels that are kept.
    const QImage part = image.copy(unturned(rect, image.size(), angle));
    return angle == 0 ? part : part.transformed(QTransform().rotate(angle));
}
