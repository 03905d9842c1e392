#include "picturefile.h"

#include "apppaths.h"
#include "pictureencoding.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace PictureFile {

QString uniqueName(const QString &suffix)
{
    // Many pictures can be written within one second (a rebuilt canvas); the sequence number goes on from
    // the last name of that second instead of probing every earlier one again.
    static QString lastStamp;
    static int lastNumber = 0;
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMddHHmmss"));
    int n = stamp == lastStamp ? lastNumber + 1 : 0;
    const QDir documents(AppPaths::documents());
    auto nameFor = [&](int number) {
        return number == 0 ? stamp + suffix : stamp + QLatin1Char('_') + QString::number(number) + suffix;
    };
    while (documents.exists(nameFor(n)))
        ++n;
    lastStamp = stamp;
    lastNumber = n;
    return nameFor(n);
}

QString write(const QImage &image)
{
    if (image.isNull())
        return {};
    QDir().mkpath(AppPaths::documents());
    const QByteArray data = PictureEncoding::encode(image);
    if (data.isEmpty())
        return {};
    const QString name = uniqueName(PictureEncoding::suffixFor(image));
    QSaveFile file(QDir(AppPaths::documents()).filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size() || !file.commit())
        return {};
    return name;
}

} // namespace PictureFile
