#pragma once

#include <QImage>
#include <QPainter>
#include <QSizeF>

#include <functional>

class View;

/**
 * Draws a tree of views as Core Animation would composite it: back to front, each view turned about
 * its centre, with its alpha, clip and background colour, then its own content (pictures by content
 * mode, texts, borders). The canvas on screen and the export both draw through here, so that what is
 * exported is what is shown.
 */
namespace CanvasRenderer {

/** Whether selection chrome (handles, borders, the dim background, the snap outline) is drawn. */
enum class Chrome { Hidden, Shown };

/** How far a render has come, 0 to 1; called from the threads that draw. */
using Progress = std::function<void(qreal)>;

/**
 * Draws `root`'s bounds, without `root`'s own position and turn, into the painter at `scale` painter
 * units per point, as renderInContext: does.
 */
void render(QPainter &painter, const View &root, qreal scale, Chrome chrome = Chrome::Hidden);

/**
 * The picture of `root` for a target size: drawn at the larger scale that fits the target, transparent
 * where the design is, then stretched to the whole target. A null image for an empty target or root.
 *
 * The work is shared among the thread pool: views with costly content (texts) are drawn once each into
 * pictures of their own, then horizontal bands of the result are drawn side by side, each putting those
 * pictures in place. The tree must not change until it returns.
 */
[[nodiscard]] QImage renderImage(const View &root, const QSize &target, const Progress &progress = {});

} // namespace CanvasRenderer
