#include "assetimageprovider.h"

#include "appassets.h"

AssetImageProvider::AssetImageProvider()
    : QQuickImageProvider(QQuickImageProvider::Image)
{ }

QImage AssetImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    QImage picture = AppAssets::image(id);
    if (picture.isNull()) {
        picture = QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
    }
    if (requestedSize.isValid() && !requestedSize.isEmpty())
        picture = picture.scaled(requestedSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    if (size)
        *size = picture.size();
    return picture;
}
