#include "remoteaddress.h"

namespace RemoteAddress {

bool isRemote(const QUrl &url)
{
    const QString scheme = url.scheme();
    return url.isValid() && !url.host().isEmpty()
        && (scheme == QLatin1String("http") || scheme == QLatin1String("https"));
}

QString key(const QUrl &url)
{
    return url.toString(QUrl::FullyEncoded);
}

} // namespace RemoteAddress
