#pragma once

#include <QRectF>
#include <QTransform>

/**
 * The bounds and transform of the sticker being scaled, before the scale began. One pair serves the
 * whole process on purpose: only the selected sticker is ever scaled, and every selection, pinch end,
 * turn and snap refreshes it from the layer at hand.
 */
struct Holder
{
    static inline QRectF boundsBeforeScaling;
    static inline QTransform transformBeforeScaling;
};
