#pragma once

#include "contentserver.h"

#include <QString>

#include <gtest/gtest.h>

/**
 * The real content server on a free loopback port, serving the generated sample pack, for tests that talk to
 * the network. Declare one in a test (or a fixture); it stops when it goes out of scope. The fault switches
 * are the server's own: `server().setHttp500(true)`, `server().forceCode("getJsonData", 401)`, ...
 */
class TestContentServer
{
public:
    TestContentServer()
    {
        m_server.setAccessLog(qEnvironmentVariableIsSet("QUILLET_SERVER_LOG"));
        const auto dir = ContentServer::defaultContentDir();
        if (dir.empty() || m_server.start(dir) == 0)
            ADD_FAILURE() << "content server did not start (build the content-pack target): " << m_server.errorString();
    }

    [[nodiscard]] ContentServer &server() { return m_server; }
    /** "http://127.0.0.1:<port>/" */
    [[nodiscard]] QString baseUrl() const { return QString::fromStdString(m_server.baseUrl()); }
    /** The main API's base, ending in "api/public/api/"; also the libraries' `serverURL`. */
    [[nodiscard]] QString apiBase() const { return QString::fromStdString(m_server.apiBase()); }
    /** The promotion API's base, ending in "promo/api/public/api/". */
    [[nodiscard]] QString promotionBase() const { return QString::fromStdString(m_server.promotionBase()); }
    /** What `getJsonData` answers in `prefix_url`. */
    [[nodiscard]] QString contentBase() const { return QString::fromStdString(m_server.contentBase()); }

private:
    ContentServer m_server;
};
