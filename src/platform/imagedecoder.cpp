#include "imagedecoder.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>

#include <webp/decode.h>

namespace ImageDecoder {

bool isWebP(const QByteArray &data)
{
    return data.size() >= 12 && data.startsWith("RIFF") && data.mid(8, 4) == "WEBP";
}

QImage decode(const QByteArray &data)
{
    if (!isWebP(data)) {
        QBuffer buffer;
        buffer.setData(data);
        QImageReader reader(&buffer);
        reader.setAutoTransform(true);
        return reader.read();
    }
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

QImage decodeFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? decode(file.readAll()) : QImage();
}

} // namespace ImageDecoder
