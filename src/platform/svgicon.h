#pragma once

#include <QColor>
#include <QImage>
#include <QString>

/**
 * The icon set the application ships (Tabler's outline icons, under ":/Quillet/Icons/"). Its icons draw
 * their strokes in `currentColor`, so one file gives the icon in any colour.
 */
namespace SvgIcon {
/** Whether the set has an icon of that file name ("letter-case"). */
[[nodiscard]] bool exists(const QString &glyph);
/** The icon drawn in `colour` on a transparent square of `side` pixels; a null image for an unknown glyph. */
[[nodiscard]] QImage render(const QString &glyph, int side, const QColor &colour);
/** Draws the icon in `colour` into `area` of a painter. */
void paint(QPainter &painter, const QString &glyph, const QRectF &area, const QColor &colour);
} // namespace SvgIcon
