#include "prefixurl.h"

#include "apppaths.h"
#include "remoteaddress.h"

namespace PrefixUrl {

namespace {

QString current;

QUrl below(const QString &folder, const QString &name)
{
    const QString file = AppPaths::fileName(name);
    return file.isEmpty() ? QUrl() : QUrl(current + folder + file);
}

} // namespace

QString value()
{
    return current;
}

void set(const QString &prefix)
{
    current = prefix;
}

QString forServer(const QUrl &server)
{
    QUrl base = server.adjusted(QUrl::RemoveQuery | QUrl::RemoveFragment);
    QString path = base.path();
    if (!path.endsWith(QLatin1Char('/')))
        path += QLatin1Char('/');
    base.setPath(path + QStringLiteral("content/"));
    return base.toString();
}

QUrl pictureAddress(const QString &name)
{
    if (QUrl url(name); RemoteAddress::isRemote(url))
        return url;
    return below(QStringLiteral("resource/"), name);
}

QUrl videoAddress(const QString &name)
{
    return below(QStringLiteral("video/"), name);
}

QString fontAddress(const QString &fileName)
{
    return current + QStringLiteral("fonts/") + fileName;
}

} // namespace PrefixUrl
