#include "picturesource.h"

#include "apppaths.h"
#include "imagecache.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace PictureSource {

QImage load(const QString &value)
{
    if (value.isEmpty())
        return {};
    QString path;
    if (value.startsWith(QLatin1String("file:")))
        path = QUrl(value).toLocalFile();
    else if (QFileInfo(value).isAbsolute())
        path = value;
    else if (value.contains(QLatin1String("://")))
        return ImageCache::shared().imageFromCache(value); // preloaded by the template preparation
    else
        path = QDir(AppPaths::documents()).filePath(value);
    if (!QFileInfo::exists(path) && QFileInfo(value).isRelative())
        path = QDir(AppPaths::resource()).filePath(value);
    return QImage(path);
}

} // namespace PictureSource
