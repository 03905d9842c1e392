#include "pictureencoding.h"

#include <QBuffer>

namespace PictureEncoding {

QString suffixFor(const QImage &picture)
{
    const QPixelFormat format = picture.pixelFormat();
    const bool skipsAlpha = format.alphaUsage() == QPixelFormat::IgnoresAlpha && format.alphaSize() > 0;
    return picture.isNull() || skipsAlpha ? QStringLiteral(".jpg") : QStringLiteral(".png");
}

QByteArray encode(const QImage &picture)
{
    if (suffixFor(picture) != QLatin1String(".jpg"))
        return png(picture);
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "JPEG", 100);
    return data;
}

QByteArray png(const QImage &picture)
{
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    // A light compression stays lossless and keeps a replay that rebuilds many layers quick.
    picture.save(&buffer, "PNG", 80);
    return data;
}

} // namespace PictureEncoding
