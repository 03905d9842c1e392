#pragma once

#include <QColor>
#include <QImage>

/** Colouring of sticker pictures. */
namespace StickerTint {
/**
 * The picture multiplied by a constant colour, keeping the picture's alpha; white leaves it as it is,
 * which is how "no colour" is expressed. A null picture or an invalid colour gives the picture back.
 */
[[nodiscard]] QImage multiply(const QImage &picture, const QColor &color);
} // namespace StickerTint
