#pragma once

#include <QImage>
#include <QSize>

/**
 * The application's pictures that are not icons, drawn in code at the size asked for: placeholders,
 * the checker patterns behind transparent designs, and the font library's how-to pictures. Each has
 * the signature of `AssetTable::Painter`; the number is unused.
 */
namespace AssetPictures {
/** A picture that is still loading: a soft ground with a photo icon. */
[[nodiscard]] QImage picturePlaceholder(int number, const QSize &size);
/** A shape that is still loading: a soft ground with a shape icon. */
[[nodiscard]] QImage shapePlaceholder(int number, const QSize &size);
/** The light checker pattern that shows where a design is transparent. */
[[nodiscard]] QImage brightChecks(int number, const QSize &size);
/** The dark checker pattern, for light pictures. */
[[nodiscard]] QImage darkChecks(int number, const QSize &size);
/** How to download a catalog of fonts. */
[[nodiscard]] QImage howToDownload(int number, const QSize &size);
/** How to add a font file of one's own. */
[[nodiscard]] QImage howToCustom(int number, const QSize &size);
} // namespace AssetPictures
