#include "designpictures.h"

#include "appassets.h"
#include "apppaths.h"
#include "json.h"
#include "picturefile.h"
#include "picturesource.h"

#include <QDir>
#include <QUrl>

namespace DesignPictures {

namespace {

bool isOffline(const Json *document)
{
    return document && document->is_offline.value_or(false);
}

} // namespace

QString resolveName(const Json *document, const QString &name)
{
    if (isOffline(document)) {
        // An application asset becomes a file of the design, so that a stored design needs no asset.
        const QImage asset = AppAssets::image(name);
        if (asset.isNull())
            return name;
        const QString file = PictureFile::write(asset);
        return file.isEmpty() ? name : file;
    }
    if (name.startsWith(QLatin1String("file")))
        return QUrl(name).fileName();
    return QDir(AppPaths::resource()).filePath(name);
}

QImage pictureFor(const Json *document, const QString &value)
{
    if (isOffline(document)) {
        const QImage asset = AppAssets::image(value);
        if (!asset.isNull())
            return asset;
    }
    return PictureSource::load(value);
}

void show(
    const Json *document, const QString &value, View *host, const std::function<void(const QImage &picture)> &apply)
{
    if (const QImage picture = pictureFor(document, value); !picture.isNull())
        apply(picture);
    else
        PictureSource::show(value, host, apply);
}

} // namespace DesignPictures
