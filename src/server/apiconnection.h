#pragma once

#include "apicall.h"

#include <QMap>
#include <QObject>
#include <QPointer>
#include <QUrl>

#include <memory>

class QNetworkAccessManager;
class QNetworkRequest;

/**
 * What every API call has in common, for the main API and for each library with a sign-in: the
 * bearer token under the library's own key, the guest sign-in, the `code` table with its unlimited
 * repeats, and the fall-back to the cache. Lives on the GUI thread; answers are handled there.
 */
class ApiConnection : public QObject
{
    Q_OBJECT
public:
    using Headers = QMap<QString, QString>;

    /**
     * @param serverUrl the API base, ending with a slash; endpoint names are appended to it
     * @param tokenKey the `UserDefaults` key of this connection's token
     * @param tokenHeader headers sent when no token is stored; empty means sign in first
     */
    ApiConnection(QNetworkAccessManager *network, const QUrl &serverUrl, const QString &tokenKey,
        const Headers &tokenHeader = {}, QObject *parent = nullptr);

    [[nodiscard]] QUrl serverUrl() const { return m_serverUrl; }
    [[nodiscard]] QString tokenKey() const { return m_tokenKey; }
    [[nodiscard]] QString endpointUrl(const QString &endpoint) const;

    /** `Authorization: Bearer <token>` when a token is stored, else the fallback headers. Empty means sign in first. */
    [[nodiscard]] Headers authorizationHeaders() const;

    /**
     * The guest sign-in on its own, as done at start: on code 200 the token is stored and the completion gets
     * the login record; any other code stores nothing and is not usable.
     */
    void doLoginForGuest(QObject *context, ApiCompletion completion);

    /**
     * Runs one call to its one completion, signing in first when there is no header and repeating as the
     * server's `code` asks. A completion whose context has gone is dropped.
     */
    void send(const ApiCall &call, QObject *context, ApiCompletion completion);

private:
    struct Answer;
    struct Pending;

    void run(const std::shared_ptr<Pending> &pending);
    void signInThenRun(const std::shared_ptr<Pending> &pending);
    void signIn(bool acceptRelated, std::function<void(const Answer &answer, bool signedIn)> then);
    void post(
        QNetworkRequest request, const nlohmann::ordered_json &body, std::function<void(const Answer &answer)> handler);
    void storeToken(const std::optional<QString> &token);
    static void fail(const Pending &pending, const ApiError &error);
    static void fallBack(const Pending &pending);

    QPointer<QNetworkAccessManager> m_network;
    QUrl m_serverUrl;
    QString m_tokenKey;
    Headers m_tokenHeader;
};
