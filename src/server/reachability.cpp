#include "reachability.h"

#include <QHostAddress>
#include <QNetworkInformation>

namespace {

std::optional<Reachability::Connection> forced;

// Loading scans the plugins: it is tried once per process.
bool loadBackend()
{
    static const bool loaded = QNetworkInformation::instance()
        || QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability);
    return loaded;
}

bool isLoopback(const QString &host)
{
    return host.compare(QLatin1String("localhost"), Qt::CaseInsensitive) == 0 || QHostAddress(host).isLoopback();
}

} // namespace

Reachability::Reachability(const QString &host, QObject *parent)
    : QObject(parent)
    , m_host(host)
{ }

Reachability::Connection Reachability::connection() const
{
    if (forced)
        return *forced;
    if (isLoopback(m_host) || !loadBackend())
        return Connection::Wifi;
    const QNetworkInformation *info = QNetworkInformation::instance();
    if (info->reachability() == QNetworkInformation::Reachability::Disconnected)
        return Connection::Unavailable;
    return info->transportMedium() == QNetworkInformation::TransportMedium::Cellular ? Connection::Cellular
                                                                                     : Connection::Wifi;
}

bool Reachability::startNotifier()
{
    if (!loadBackend())
        return false;
    connect(QNetworkInformation::instance(), &QNetworkInformation::reachabilityChanged, this,
        &Reachability::reachabilityChanged);
    return true;
}

void Reachability::setForcedConnection(std::optional<Connection> connection)
{
    forced = connection;
}
