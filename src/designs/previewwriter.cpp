#include "previewwriter.h"

#include "applog.h"
#include "apppaths.h"
#include "pictureencoding.h"
#include "timestamp.h"

#include <QRegularExpression>
#include <QSaveFile>

QString PreviewWriter::write(const QImage &picture)
{
    const QString suffix = PictureEncoding::suffixFor(picture);
    const QByteArray data = PictureEncoding::encode(picture);
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
