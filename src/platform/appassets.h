#pragma once

#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

/**
 * The application's own pictures by the names that screens and documents use ("img_placeholder",
 * "menu_text_select", "pattern_12"): a picture file that a subsystem ships under the resource prefix
 * ":/assets/", else the entry of `AssetTable`, which draws icons of the shipped icon set and pictures
 * made in code at the size asked for.
 */
namespace AppAssets {
/**
 * The picture of that name, or a null image for a name that is not shipped. With a size, the picture
 * is drawn to fit it (one side of 0 follows the picture's proportions); with a valid colour, an icon
 * is drawn in that colour instead of its own.
 */
[[nodiscard]] QImage image(const QString &name, const QSize &size = {}, const QColor &colour = {});
/** Every name the table draws. */
[[nodiscard]] QStringList names();
} // namespace AppAssets
