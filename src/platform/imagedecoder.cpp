#include "imagedecoder.h"

#include <webp/decode.h>

namespace ImageDecoder {

bool isWebP(const QByteArray &data)
{
    return data.size() >= 12 && data.startsWith("RIFF") && data.mid(8, 4) == "WEBP";
}

QImage decode(const QByteArray &data)
{
    if (!isWebP(data))
        return QImage::fromData(data);
    const auto *bytes = reinterpret_cast<const uint8_t *>(data.constData());
    int width = 0;
    int height = 0;
    if (!WebPGetInfo(bytes, size_t(data.size()), &width, &height) || width <= 0 || height <= 0)
        return {};
    QImage image(width, height, QImage::Format_RGBA8888);
    if (image.isNull())
        return {};
    const size_t size = size_t(image.sizeInBytes());
    if (!WebPDecodeRGBAInto(bytes, size_t(data.size()), image.bits(), size, int(image.bytesPerLine())))
        return {};
    return image;
}

} // namespace ImageDecoder
