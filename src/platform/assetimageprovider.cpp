#include "assetimageprovider.h"

#include "appassets.h"
#include "applog.h"

#include <QUrlQuery>

AssetImageProvider::AssetImageProvider()
    : QQuickImageProvider(QQuickImageProvider::Image)
{ }

QImage AssetImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const qsizetype query = id.indexOf(u'?');
    const QString name = id.left(query);
    QColor colour;
    if (query >= 0) {
        const QString hex = QUrlQuery(id.mid(query + 1)).queryItemValue(QStringLiteral("color"));
        colour = QColor::fromString(hex.startsWith(u'#') ? hex : QStringLiteral("#") + hex);
    }
    QImage picture = AppAssets::image(name, requestedSize, colour);
    if (picture.isNull()) {
        AppLog::print(QStringLiteral("no picture named ") + name);
        picture = QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
    }
    if (size)
        *size = picture.size();
    return picture;
}
