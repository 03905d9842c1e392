#pragma once

#include <QQuickImageProvider>

/**
 * Serves the application's own pictures to QML by name: `image://assets/<name>`. A name that is not
 * shipped gives an empty transparent picture, so that a missing icon leaves a gap rather than an error.
 */
class AssetImageProvider : public QQuickImageProvider
{
public:
    AssetImageProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};
