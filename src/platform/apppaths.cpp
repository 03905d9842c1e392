#include "apppaths.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace AppPaths {

QString basePath()
{
    const QString home = qEnvironmentVariable("QUILLET_HOME");
    if (!home.isEmpty())
        return QDir::cleanPath(home);
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

bool contains(const QString &path)
{
    auto clean = [](const QString &name) { return QDir::cleanPath(QFileInfo(name).absoluteFilePath()); };
    return clean(path).startsWith(clean(basePath()) + QLatin1Char('/'));
}

QString documents()
{
    return basePath() + QStringLiteral("/Documents");
}
QString resource()
{
    return basePath() + QStringLiteral("/resource");
}
QString fonts()
{
    return basePath() + QStringLiteral("/fonts");
}
QString tmp()
{
    return basePath() + QStringLiteral("/tmp");
}
QString database(const QString &name)
{
    return basePath() + QLatin1Char('/') + name;
}

QString fileName(const QString &name)
{
    constexpr qsizetype maxNameBytes = 255;
    const qsizetype slash = std::max(name.lastIndexOf(QLatin1Char('/')), name.lastIndexOf(QLatin1Char('\\')));
    QString last = name.mid(slash + 1);
    const bool control
        = std::any_of(last.cbegin(), last.cend(), [](QChar c) { return c.category() == QChar::Other_Control; });
    if (last.isEmpty() || last == QLatin1String(".") || last == QLatin1String("..") || control
        || last.toUtf8().size() > maxNameBytes)
        return {};
    return last;
}

QString fileIn(const QString &folder, const QString &name)
{
    const QString file = fileName(name);
    return file.isEmpty() ? QString() : folder + QLatin1Char('/') + file;
}

void ensureCreated()
{
    for (const QString &dir : { basePath(), documents(), resource(), fonts(), tmp() })
        QDir().mkpath(dir);
}

} // namespace AppPaths
