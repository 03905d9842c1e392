#include "picturefile.h"

#include "apppaths.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace PictureFile {

QString suffixFor(const QImage &image)
{
    return image.hasAlphaChannel() ? QStringLiteral(".png") : QStringLiteral(".jpg");
}

QString uniqueName(const QString &suffix)
{
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMddHHmmss"));
    const QDir documents(AppPaths::documents());
    QString name = stamp + suffix;
    for (int n = 1; documents.exists(name); ++n)
        name = stamp + QLatin1Char('_') + QString::number(n) + suffix;
    return name;
}

QString write(const QImage &image)
{
    if (image.isNull())
        return {};
    QDir().mkpath(AppPaths::documents());
    const QString suffix = suffixFor(image);
    const QString name = uniqueName(suffix);
    QSaveFile file(QDir(AppPaths::documents()).filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        return {};
    const bool png = suffix == QLatin1String(".png");
    if (!image.save(&file, png ? "PNG" : "JPEG", png ? -1 : 100) || !file.commit())
        return {};
    return name;
}

} // namespace PictureFile
