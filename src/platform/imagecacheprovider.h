#pragma once

#include <QQuickAsyncImageProvider>

/**
 * Serves `ImageCache` to QML: `image://cache/<address>` shows the picture of that address, from memory,
 * disk or the network, without blocking the GUI thread. Install once with
 * `engine.addImageProvider(QStringLiteral("cache"), new ImageCacheProvider)`.
 */
class ImageCacheProvider : public QQuickAsyncImageProvider
{
public:
    QQuickImageResponse *requestImageResponse(const QString &id, const QSize &requestedSize) override;
};
