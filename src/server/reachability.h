#pragma once

#include <QObject>
#include <QString>

#include <optional>

/**
 * Whether the network is worth a try, read at the moment of a call: a screen with no connection takes
 * its cached copy at once and sends nothing. The platform's network information decides where a
 * backend exists; without one the network counts as reachable. A server on the loopback interface is
 * always reachable.
 */
class Reachability : public QObject
{
    Q_OBJECT
public:
    enum class Connection { Unavailable, Wifi, Cellular };
    Q_ENUM(Connection)

    /** @param host the server's host; empty for the network at large */
    explicit Reachability(const QString &host = {}, QObject *parent = nullptr);

    [[nodiscard]] Connection connection() const;

    /** Watches the platform for changes; false when no backend can report them. */
    bool startNotifier();

    /** What every `Reachability` reports from now on, for tests and the command line; nothing returns to the platform.
     */
    static void setForcedConnection(std::optional<Connection> connection);

Q_SIGNALS:
    void reachabilityChanged();

private:
    QString m_host;
};
