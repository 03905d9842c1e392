#pragma once

#include <QSizeF>

/** The size a sticker's picture area gets for a new or replaced picture. */
namespace StickerSize {
/**
 * A new sticker: its longer side becomes max(smaller screen side / 2.5, 36.4), the other follows the
 * picture, then the width and the height are clamped in turn to the container less the handle margin.
 */
[[nodiscard]] QSizeF forNewSticker(const QSizeF &picture, const QSizeF &screen, const QSizeF &container);
/** A replaced picture keeps the area's longer side and takes the picture's aspect, clamped the same way. */
[[nodiscard]] QSizeF forReplacement(const QSizeF &picture, const QSizeF &area, const QSizeF &container);
} // namespace StickerSize
