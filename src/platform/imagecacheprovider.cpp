#include "imagecacheprovider.h"

#include "imagecache.h"

#include <QCoreApplication>
#include <QQuickTextureFactory>
#include <QUrl>

namespace {

/** One picture on its way; the cache works on the GUI thread, the response is read on QML's loader thread. */
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
                        m_image = requestedSize.isValid() && !image.isNull()
                            ? image.scaled(requestedSize, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                            : image;
                        m_error = error;
                        Q_EMIT finished();
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
