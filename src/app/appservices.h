#pragma once

#include "embeddedcontentserver.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QUrl>

#include <memory>

class AppDelegate;
class QFFontpicker;
class ServerClient;

/**
 * What a launch sets up before any screen: the content server in use (the one named on the command line or
 * in the settings, else the embedded one on its fixed loopback port), `prefixUrl` from it, the API client,
 * and the font library with its connection to the same server. main() builds one, and so do the tests of
 * the start-up.
 */
class AppServices : public QObject
{
    Q_OBJECT
public:
    /** @param serverOption the address given on the command line; empty for the settings or the embedded server */
    explicit AppServices(const QString &serverOption = {}, QObject *parent = nullptr);
    ~AppServices() override;

    /** The root address of the server in use; empty when there is none. */
    [[nodiscard]] QUrl serverUrl() const { return m_serverUrl; }
    [[nodiscard]] ServerClient *client() const { return m_client.get(); }
    [[nodiscard]] QFFontpicker *fontpicker() const { return m_fontpicker.get(); }
    /** The server this process runs, when it runs one. */
    [[nodiscard]] EmbeddedContentServer &embeddedServer() { return m_embedded; }

    /** The delegate signs in through the client, and its connectivity reports reach the font library. */
    void attach(AppDelegate &delegate);

private:
    QUrl chooseServer(const QString &serverOption);

    EmbeddedContentServer m_embedded;
    QNetworkAccessManager m_network;
    QUrl m_serverUrl;
    std::unique_ptr<ServerClient> m_client;
    std::unique_ptr<QFFontpicker> m_fontpicker;
};
