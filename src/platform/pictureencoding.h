#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

/**
 * How the application writes a picture it keeps as a file (the layers' pictures, the previews of
 * designs): the bitmap's layout chooses the format. A layout that carries an alpha byte and ignores
 * it (RGB32, RGBX8888, ...) and a missing bitmap give JPEG at full quality; every other layout, those
 * without any alpha byte included (RGB888, greyscale), gives lossless PNG.
 */
namespace PictureEncoding {
/** ".jpg" or ".png", with its point. */
[[nodiscard]] QString suffixFor(const QImage &picture);
/** The picture's bytes in the format of its suffix; empty when it cannot be encoded. */
[[nodiscard]] QByteArray encode(const QImage &picture);
/** The picture's bytes as the PNG that `encode` writes; empty when it cannot be encoded. */
[[nodiscard]] QByteArray png(const QImage &picture);
} // namespace PictureEncoding
