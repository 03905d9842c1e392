#include "apppaths.h"

#include <QDir>
#include <QStandardPaths>

namespace AppPaths {

QString basePath()
{
    const QString home = qEnvironmentVariable("QUILLET_HOME");
    if (!home.isEmpty())
        return QDir::cleanPath(home);
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
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

void ensureCreated()
{
    for (const QString &dir : { basePath(), documents(), resource(), fonts(), tmp() })
        QDir().mkpath(dir);
}

} // namespace AppPaths
