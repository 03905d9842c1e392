#pragma once

#include <QByteArray>
#include <QImage>

/** Pictures from their encoded bytes: WebP through libwebp, every other format through Qt's readers. */
namespace ImageDecoder {
/** The picture, or a null image when the bytes are no picture. Thread-safe. */
[[nodiscard]] QImage decode(const QByteArray &data);
[[nodiscard]] bool isWebP(const QByteArray &data);
} // namespace ImageDecoder
