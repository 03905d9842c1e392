#pragma once

#include <QRectF>

#include <variant>

/**
 * Where the overlay lies on the render area: `custom` at a rectangle in points, or `stretchFit` over the
 * whole area, stretched and never letterboxed.
 */
struct Placement
{
    struct Custom
    {
        double x = 0;
        double y = 0;
        QSizeF size;
    };
    struct StretchFit
    {
    };

    std::variant<Custom, StretchFit> value = StretchFit {};

    [[nodiscard]] static Placement custom(double x, double y, QSizeF size) { return { Custom { x, y, size } }; }
    [[nodiscard]] static Placement stretchFit() { return { StretchFit {} }; }

    /** The overlay's frame on a render area of `size`. */
    [[nodiscard]] QRectF frameIn(QSizeF size) const
    {
        if (const auto *rectangle = std::get_if<Custom>(&value))
            return QRectF(rectangle->x, rectangle->y, rectangle->size.width(), rectangle->size.height());
        return QRectF(QPointF(0, 0), size);
    }
};
