#include "previewwriter.h"

#include "applog.h"
#include "apppaths.h"
#include "timestamp.h"

#include <QBuffer>
#include <QRegularExpression>
#include <QSaveFile>

QString PreviewWriter::suffixFor(const QImage &picture)
{
    // The layouts that carry an alpha byte and ignore it (RGB32, RGBX8888, ...) are the platform's
    // "none, skip first/last"; they and a missing bitmap are written as JPEG. No alpha at all is PNG.
    const QPixelFormat format = picture.pixelFormat();
    const bool skipsAlpha = format.alphaUsage() == QPixelFormat::IgnoresAlpha && format.alphaSize() > 0;
    return picture.isNull() || skipsAlpha ? QStringLiteral(".jpg") : QStringLiteral(".png");
}

QString PreviewWriter::write(const QImage &picture)
{
    const QString suffix = suffixFor(picture);
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    if (suffix == QLatin1String(".jpg"))
        picture.save(&buffer, "JPEG", 100);
    else
        picture.save(&buffer, "PNG");
    if (data.isEmpty())
        return {};

    QString name = secondsSince1970Text();
    name.remove(QRegularExpression(QStringLiteral("[^0-9]")));
    AppLog::print(QStringLiteral("dateString: ") + name);

    QSaveFile file(AppPaths::documents() + QLatin1Char('/') + name + suffix);
    if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size() || !file.commit()) {
        AppLog::print(QStringLiteral("Could not write the preview %1: %2").arg(file.fileName(), file.errorString()));
        return {};
    }
    return name + suffix;
}
