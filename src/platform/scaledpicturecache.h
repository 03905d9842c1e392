#pragma once

#include <QImage>
#include <QSize>

/**
 * Pictures scaled down for drawing, kept by source picture and size: a picture that is drawn smaller
 * than it is, again and again (a sticker on the canvas at every repaint, in every band of an export),
 * is scaled once, by area averaging, which also looks better than sampling it at each draw. Safe from
 * any thread; the least recently used go first once the cache holds its limit.
 */
namespace ScaledPictureCache {
/** `source` scaled to `size` (ignoring its aspect); the source itself when it is not larger. */
[[nodiscard]] QImage scaled(const QImage &source, const QSize &size);
} // namespace ScaledPictureCache
