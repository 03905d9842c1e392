#pragma once

#include <QQuickImageProvider>

/**
 * Serves the application's own pictures to QML by name: `image://assets/<name>`, drawn at the item's
 * `sourceSize`; `image://assets/<name>?color=E05863` draws a monochrome icon in that colour (the accent
 * for a selected row). A name that is not shipped gives an empty transparent picture and a log line,
 * so that a missing icon leaves a gap rather than an error.
 */
class AssetImageProvider : public QQuickImageProvider
{
public:
    AssetImageProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};
