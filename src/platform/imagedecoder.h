#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

/** Pictures from their encoded bytes: WebP through libwebp, every other format through Qt's readers. */
namespace ImageDecoder {
/**
 * The picture, or a null image when the bytes are no picture. A photograph that says it was taken turned
 * comes upright. Thread-safe.
 */
[[nodiscard]] QImage decode(const QByteArray &data);
/** The picture in a file, as `decode` reads it; a null image when the file can't be read. Thread-safe. */
[[nodiscard]] QImage decodeFile(const QString &path);
[[nodiscard]] bool isWebP(const QByteArray &data);
} // namespace ImageDecoder
