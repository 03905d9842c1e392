#include "scaledpicturecache.h"

#include <QCache>
#include <QHashFunctions>
#include <QMutex>

namespace ScaledPictureCache {

namespace {

struct Key
{
    qint64 source;
    QSize size;
    friend bool operator==(const Key &, const Key &) = default;
};

size_t qHash(const Key &key, size_t seed)
{
    return qHashMulti(seed, key.source, key.size.width(), key.size.height());
}

// Cost in KiB: 64 MiB of scaled pictures.
constexpr qsizetype limit = 64 * 1024;

QMutex mutex;
QCache<Key, QImage> cache(limit);

} // namespace

QImage scaled(const QImage &source, const QSize &size)
{
    if (source.isNull() || size.isEmpty() || (source.width() <= size.width() && source.height() <= size.height()))
        return source;
    const Key key { source.cacheKey(), size };
    // Scaling happens under the lock, so that threads drawing the same picture scale it once.
    QMutexLocker locker(&mutex);
    if (const QImage *found = cache.object(key))
        return *found;
    auto *picture = new QImage(source.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                   .convertToFormat(QImage::Format_ARGB32_Premultiplied));
    const QImage result = *picture;
    cache.insert(key, picture, std::max<qsizetype>(1, picture->sizeInBytes() / 1024));
    return result;
}

} // namespace ScaledPictureCache
