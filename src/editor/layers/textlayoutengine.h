#pragma once

#include "textattributes.h"

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QSizeF>

/**
 * Lays out and draws a text layer's attributed text. Measuring and drawing go through this one path,
 * on a 72 dpi reference device so that one point is one unit at any scale, so that the size a text is
 * given on screen is the size it has in the exported picture.
 */
namespace TextLayoutEngine {

/** The text view's inner margin on each side. */
inline constexpr qreal margin = 8.0;

/** The font used when the dictionary has none. */
[[nodiscard]] QFont defaultFont();

/** UITextView's sizeThatFits: the text wrapped at `width` less the margins, plus the margins. */
[[nodiscard]] QSizeF sizeThatFits(const AttributedText &text, qreal width);

/** Draws the text, its shadow first, into `rect` (the text view's bounds) with the margins inside it. */
void draw(QPainter &painter, const AttributedText &text, const QRectF &rect);

/** Where `draw` may put ink: `rect` with the shadow's reach and room for glyphs that overhang their box. */
[[nodiscard]] QRectF paintExtent(const AttributedText &text, const QRectF &rect);

} // namespace TextLayoutEngine
