#include "imagecache.h"

#include "apppaths.h"
#include "imagedecoder.h"
#include "remoteaddress.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFutureWatcher>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QSaveFile>
#include <QtConcurrent/QtConcurrentRun>

namespace {

// About 64 full-screen story pictures.
constexpr qsizetype memoryPixels = qsizetype(64) * 1080 * 1920;
constexpr int requestTimeoutMs = 35000;

qsizetype cost(const QImage &image)
{
    return qMax<qsizetype>(1, qsizetype(image.width()) * image.height());
}

QImage readDisk(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return ImageDecoder::decode(file.readAll());
}

// The bytes as they came, so that a later read decodes exactly what the server sent.
void writeDisk(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size())
        file.commit();
}

template<class T> void whenDone(QObject *owner, QFuture<T> future, std::function<void(const T &)> then)
{
    auto *watcher = new QFutureWatcher<T>(owner);
    QObject::connect(watcher, &QFutureWatcherBase::finished, owner, [watcher, then = std::move(then)] {
        then(watcher->result());
        watcher->deleteLater();
    });
    watcher->setFuture(std::move(future));
}

} // namespace

ImageCache::ImageCache(QObject *parent)
    : QObject(parent)
    , m_memory(memoryPixels)
    , m_network(new QNetworkAccessManager(this))
{
    m_network->setTransferTimeout(requestTimeoutMs);
}

ImageCache &ImageCache::shared()
{
    static ImageCache *cache = new ImageCache(); // lives as long as the process, like the GUI thread
    return *cache;
}

QString ImageCache::diskPath(const QUrl &url)
{
    const QString address = RemoteAddress::key(url);
    const QByteArray hash = QCryptographicHash::hash(address.toUtf8(), QCryptographicHash::Sha1).toHex();
    return AppPaths::database(QStringLiteral("ImageCache/")) + QString::fromLatin1(hash);
}

void ImageCache::remember(const QString &address, const QImage &image)
{
    m_memory.insert(address, new QImage(image), cost(image));
}

bool ImageCache::isInMemory(const QUrl &url) const
{
    return m_memory.contains(RemoteAddress::key(url));
}

QImage ImageCache::imageFromCache(const QUrl &url)
{
    const QString address = RemoteAddress::key(url);
    if (const QImage *image = m_memory.object(address))
        return *image;
    QImage image = readDisk(diskPath(url));
    if (!image.isNull())
        remember(address, image);
    return image;
}

void ImageCache::loadImage(const QUrl &url, QObject *context, Completion completion)
{
    const QString address = RemoteAddress::key(url);
    const bool hasContext = context != nullptr;
    auto finish = [this, guard = QPointer<QObject>(context), hasContext, completion = std::move(completion)](
                      const QImage &image, const QString &error) {
        if (hasContext && !guard)
            return;
        completion(image, error);
    };
    if (const QImage *image = m_memory.object(address)) {
        QMetaObject::invokeMethod(
            this, [finish, image = *image] { finish(image, QString()); }, Qt::QueuedConnection);
        return;
    }
    // A file of the application's own is read where it lies; any other address only through the cache,
    // so that an address from a server cannot read files outside the application's folders.
    const bool own = url.isLocalFile() && AppPaths::contains(url.toLocalFile());
    const QString path = own ? url.toLocalFile() : diskPath(url);
    whenDone<QImage>(this, QtConcurrent::run(readDisk, path), [this, url, address, finish](const QImage &image) {
        if (!image.isNull()) {
            remember(address, image);
            finish(image, QString());
            return;
        }
        download(url, [this, address, finish](const QImage &fetched, const QString &error) {
            if (!fetched.isNull())
                remember(address, fetched);
            finish(fetched, error);
        });
    });
}

void ImageCache::download(const QUrl &url, const std::function<void(const QImage &, const QString &)> &done)
{
    if (!RemoteAddress::isRemote(url)) {
        QMetaObject::invokeMethod(
            this, [done, url] { done({}, QStringLiteral("not a web address: ") + url.toString()); },
            Qt::QueuedConnection);
        return;
    }
    ++m_networkLoads;
    QNetworkReply *reply = m_network->get(QNetworkRequest(url));
    connect(reply, &QNetworkReply::finished, this, [this, reply, done, url] {
        reply->deleteLater();
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (reply->error() != QNetworkReply::NoError || (status != 0 && status != 200)) {
            done({}, reply->errorString());
            return;
        }
        const QByteArray bytes = reply->readAll();
        const QString path = diskPath(url);
        const QString address = url.toString();
        whenDone<QImage>(this, QtConcurrent::run([bytes, path] {
            QImage image = ImageDecoder::decode(bytes);
            if (!image.isNull())
                writeDisk(path, bytes);
            return image;
        }),
            [done, address](const QImage &image) {
                done(image, image.isNull() ? QStringLiteral("not a picture: ") + address : QString());
            });
    });
}
