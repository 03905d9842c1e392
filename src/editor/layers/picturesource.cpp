#include "picturesource.h"

#include "activityindicatorview.h"
#include "apppaths.h"
#include "imagecache.h"
#include "prefixurl.h"
#include "remoteaddress.h"

#include <QFileInfo>
#include <QPointer>

namespace PictureSource {

namespace {

/** A name with a scheme of its own ("qrc:", "data:", ...); one letter is a drive, not a scheme. */
bool hasOtherScheme(const QUrl &url)
{
    return url.scheme().size() > 1 && url.scheme() != QLatin1String("file");
}

QImage atHand(const Location &location)
{
    if (!location.file.isEmpty())
        return QImage(location.file);
    if (!location.address.isEmpty())
        return ImageCache::shared().imageFromCache(location.address);
    return {};
}

} // namespace

Location locate(const QString &value)
{
    if (value.isEmpty())
        return {};
    const QUrl url(value);
    if (RemoteAddress::isRemote(url))
        return { {}, url };
    if (hasOtherScheme(url))
        return {};
    // A "file" address counts by its last path component only, as every other local name does.
    const QString name = AppPaths::fileName(value.startsWith(QLatin1String("file")) ? url.fileName() : value);
    if (name.isEmpty())
        return {};
    for (const QString &folder : { AppPaths::documents(), AppPaths::resource() }) {
        const QString file = folder + QLatin1Char('/') + name;
        if (QFileInfo(file).isFile())
            return { file, {} };
    }
    // Not here: a template's asset, which the preparation fetched into the picture cache by its address.
    if (PrefixUrl::value().isEmpty())
        return {};
    return { {}, PrefixUrl::pictureAddress(name) };
}

QImage load(const QString &value)
{
    return atHand(locate(value));
}

void show(const QString &value, View *host, const std::function<void(const QImage &picture)> &apply)
{
    const Location location = locate(value);
    if (const QImage picture = atHand(location); !picture.isNull()) {
        apply(picture);
        return;
    }
    if (location.address.isEmpty() || !host)
        return;
    QPointer<ActivityIndicatorView> indicator = new ActivityIndicatorView(host);
    ImageCache::shared().loadImage(location.address, host, [indicator, apply](const QImage &picture, const QString &) {
        if (indicator) {
            indicator->removeFromSuperview();
            indicator->deleteLater();
        }
        if (!picture.isNull())
            apply(picture);
    });
}

} // namespace PictureSource
