#pragma once

#include "contentserver.h"

#include <QUrl>

/**
 * The sample content server inside the application, at the same loopback address at every launch, so that
 * cache keys, `prefix_url` and the addresses stored in designs stay valid from one launch to the next. The
 * port is the setting "embedded_server_port", else `defaultPort`. A server that already answers there as
 * the content server (another copy of the application, a stand-alone one) is used instead of a new one.
 */
class EmbeddedContentServer
{
public:
    static constexpr int defaultPort = 38470;
    static constexpr int probeTimeoutMs = 2000;

    /** The port of this launch: the setting, else the default. */
    [[nodiscard]] static int configuredPort();

    /**
     * Starts the server on its port, or finds ours answering there. When another program holds the port, a
     * free one serves this launch, whose caches the next launch will not find. The server's address, or an
     * empty one when no server could be started.
     */
    QUrl start();

    /** The server this launch runs itself; it stops with this object. Not running when one was reused. */
    [[nodiscard]] ContentServer &server() { return m_server; }

    /** Whether the server at `url` answers as the content server within `timeoutMs`. */
    [[nodiscard]] static bool answersAsContentServer(const QUrl &url, int timeoutMs = probeTimeoutMs);

private:
    ContentServer m_server;
};
