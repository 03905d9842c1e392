#include "imagecacheprovider.h"

#include "imagecache.h"

#include <QCoreApplication>
#include <QFutureWatcher>
#include <QQuickTextureFactory>
#include <QUrl>
#include <QtConcurrent/QtConcurrentRun>

namespace {

/**
 * One picture on its way; the cache works on the GUI thread, the response is read on QML's loader thread.
 * Scaling to the requested size runs on the thread pool, so that a grid of thumbnails leaves the GUI
 * thread free while it scrolls.
 */
class ImageCacheResponse : public QQuickImageResponse
{
public:
    /** Asks the cache once the response lives on the GUI thread; a response deleted first is never answered. */
    void start(const QUrl &url, const QSize &requestedSize)
    {
        QMetaObject::invokeMethod(
            this,
            [this, url, requestedSize] {
                ImageCache::shared().loadImage(
                    url, this, [this, requestedSize](const QImage &image, const QString &error) {
                        m_error = error;
                        if (!requestedSize.isValid() || image.isNull()) {
                            m_image = image;
                            Q_EMIT finished();
                            return;
                        }
                        // The watcher dies with a cancelled response; the job itself never touches it.
                        auto *watcher = new QFutureWatcher<QImage>(this);
                        connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher] {
                            m_image = watcher->result();
                            Q_EMIT finished();
                        });
                        watcher->setFuture(QtConcurrent::run([image, requestedSize] {
                            return image.scaled(requestedSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
                        }));
                    });
            },
            Qt::QueuedConnection);
    }

    QQuickTextureFactory *textureFactory() const override
    {
        return QQuickTextureFactory::textureFactoryForImage(m_image);
    }
    QString errorString() const override { return m_error; }

private:
    QImage m_image;
    QString m_error;
};

} // namespace

QQuickImageResponse *ImageCacheProvider::requestImageResponse(const QString &id, const QSize &requestedSize)
{
    auto *response = new ImageCacheResponse();
    response->moveToThread(QCoreApplication::instance()->thread());
    response->start(QUrl(id), requestedSize);
    return response;
}
