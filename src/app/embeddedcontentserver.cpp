#include "embeddedcontentserver.h"

#include "applog.h"
#include "userdefaults.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

namespace {

const char *const loopback = "127.0.0.1";

QUrl loopbackAddress(int port)
{
    return QUrl(QStringLiteral("http://%1:%2/").arg(QLatin1String(loopback)).arg(port));
}

} // namespace

int EmbeddedContentServer::configuredPort()
{
    const std::optional<qint64> port = UserDefaults::standard().integer(DefaultsKey::embeddedServerPort);
    return port && *port > 0 && *port < 65536 ? int(*port) : defaultPort;
}

QUrl EmbeddedContentServer::start()
{
    const int port = configuredPort();
    const std::filesystem::path content = ContentServer::defaultContentDir();
    if (m_server.start(content, loopback, port) > 0)
        return loopbackAddress(port);
    if (answersAsContentServer(loopbackAddress(port))) {
        AppLog::print(QStringLiteral("content server already running on port %1").arg(port));
        return loopbackAddress(port);
    }
    qWarning().noquote() << "the content server cannot use port" << port << ":"
                         << QString::fromStdString(m_server.errorString());
    const int free = m_server.start(content, loopback);
    if (free <= 0) {
        qWarning().noquote() << "the sample content server could not start; catalogs stay empty:"
                             << QString::fromStdString(m_server.errorString());
        return {};
    }
    qWarning() << "the sample content server runs on port" << free << "for this launch only";
    return loopbackAddress(free);
}

bool EmbeddedContentServer::answersAsContentServer(const QUrl &url, int timeoutMs)
{
    QNetworkAccessManager network;
    QNetworkRequest request(url.resolved(QUrl(QString::fromLatin1(ContentServer::identityPath))));
    request.setTransferTimeout(timeoutMs);
    QNetworkReply *reply = network.get(request);
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec();
    if (reply->error() != QNetworkReply::NoError)
        return false;
    const QJsonObject answer = QJsonDocument::fromJson(reply->readAll()).object();
    return answer == QJsonDocument::fromJson(QByteArray::fromStdString(ContentServer::identity())).object();
}
