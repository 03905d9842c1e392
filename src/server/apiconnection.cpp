#include "apiconnection.h"

#include "applog.h"
#include "loginresponse.h"
#include "mapper.h"
#include "userdefaults.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace {

const QString signInEndpoint = QStringLiteral("doLoginForGuest");
constexpr int requestTimeoutMs = 35'000;

/** The replacement token that a code 401 carries in `data`; every envelope has a member with this field. */
struct TokenRenewal
{
    std::optional<QString> new_token;

    template<class Map> void mapping(Map &map) { map("new_token", new_token); }
};

/** What the connection itself reads of any library's envelope; `data` goes into each member at once. */
struct Envelope
{
    std::optional<qint64> code;
    std::optional<QString> message;
    std::shared_ptr<LoginResponse> loginResponse;
    std::shared_ptr<TokenRenewal> renewal;

    template<class Map> void mapping(Map &map)
    {
        map("code", code);
        map("message", message);
        map("data", loginResponse);
        map("data", renewal);
    }
};

} // namespace

/** One answer: the envelope, or why there is none. */
struct ApiConnection::Answer
{
    std::optional<ApiError> error;
    nlohmann::ordered_json json;
    Envelope envelope;
    QString raw;
};

/** A call in flight, carried unchanged through every repeat so that it completes once. */
struct ApiConnection::Pending
{
    ApiCall call;
    QPointer<QObject> context;
    bool hasContext = false;
    ApiCompletion completion;

    void complete(const std::optional<QJsonObject> &dictionary, const std::optional<ApiError> &error, bool usable) const
    {
        if (hasContext && !context)
            return;
        completion(dictionary, error, usable);
    }
};

ApiConnection::ApiConnection(QNetworkAccessManager *network, const QUrl &serverUrl, const QString &tokenKey,
    const Headers &tokenHeader, QObject *parent)
    : QObject(parent)
    , m_network(network)
    , m_serverUrl(serverUrl)
    , m_tokenKey(tokenKey)
    , m_tokenHeader(tokenHeader)
{ }

QString ApiConnection::endpointUrl(const QString &endpoint) const
{
    return m_serverUrl.toString() + endpoint;
}

ApiConnection::Headers ApiConnection::authorizationHeaders() const
{
    const std::optional<QString> token = UserDefaults::standard().string(m_tokenKey);
    if (!token)
        return m_tokenHeader;
    return { { QStringLiteral("Authorization"), QStringLiteral("Bearer ") + *token } };
}

void ApiConnection::doLoginForGuest(QObject *context, ApiCompletion completion)
{
    auto pending = std::make_shared<Pending>(Pending { {}, context, context != nullptr, std::move(completion) });
    signIn(false, [pending](const Answer &answer, bool signedIn) {
        if (answer.error)
            pending->complete(std::nullopt, answer.error, false);
        else if (!signedIn)
            pending->complete(std::nullopt, std::nullopt, false);
        else if (answer.envelope.loginResponse)
            pending->complete(Mapper::toJSONObject(*answer.envelope.loginResponse), std::nullopt, true);
        else
            pending->complete(std::nullopt, std::nullopt, true);
    });
}

void ApiConnection::send(const ApiCall &call, QObject *context, ApiCompletion completion)
{
    run(std::make_shared<Pending>(Pending { call, context, context != nullptr, std::move(completion) }));
}

void ApiConnection::run(const std::shared_ptr<Pending> &pending)
{
    const Headers headers = authorizationHeaders();
    // The size of the header set is what decides: no header, no call before a sign-in.
    if (headers.isEmpty()) {
        signInThenRun(pending);
        return;
    }
    const ApiCall &outgoing = pending->call;
    if (!outgoing.requestLog.isEmpty())
        AppLog::print(outgoing.requestLog + Mapper::print(outgoing.body, false));
    QNetworkRequest request(QUrl(endpointUrl(outgoing.endpoint)));
    request.setTransferTimeout(requestTimeoutMs);
    for (auto it = headers.cbegin(); it != headers.cend(); ++it)
        request.setRawHeader(it.key().toUtf8(), it.value().toUtf8());
    post(request, outgoing.body, [this, pending](const Answer &answer) {
        const ApiCall &call = pending->call;
        if (!call.responseLog.isEmpty())
            AppLog::print(call.responseLog + answer.raw);
        if (answer.error) {
            fail(*pending, *answer.error);
            return;
        }
        const std::optional<qint64> code = answer.envelope.code;
        const bool related = code == 427 && call.relatedResults;
        if (code == 200 || related) {
            if (related)
                call.relatedResults(answer.envelope.message);
            const std::optional<QJsonObject> record = call.member ? call.member(answer.json) : std::nullopt;
            if (record && call.store)
                call.store(*record);
            pending->complete(record, std::nullopt, true);
        } else if (code == 400) {
            signInThenRun(pending);
        } else if (code == 401 && answer.envelope.renewal && answer.envelope.renewal->new_token) {
            storeToken(answer.envelope.renewal->new_token);
            run(pending);
        } else {
            fallBack(*pending);
        }
    });
}

void ApiConnection::signInThenRun(const std::shared_ptr<Pending> &pending)
{
    // A search's first sign-in takes 427 as success too.
    signIn(bool(pending->call.relatedResults), [this, pending](const Answer &answer, bool signedIn) {
        if (signedIn)
            run(pending);
        else if (answer.error)
            fail(*pending, *answer.error);
        else
            fallBack(*pending);
    });
}

void ApiConnection::signIn(bool acceptRelated, std::function<void(const Answer &answer, bool signedIn)> then)
{
    // A plain request: no headers and none of the data calls' settings.
    const QString url = endpointUrl(signInEndpoint);
    QNetworkRequest request { QUrl(url) };
    request.setTransferTimeout(QNetworkRequest::DefaultTransferTimeoutConstant);
    post(request, nlohmann::ordered_json::object(),
        [this, url, acceptRelated, then = std::move(then)](const Answer &answer) {
            AppLog::print(url + QStringLiteral(" response: ") + answer.raw);
            const std::optional<qint64> code = answer.envelope.code;
            const bool signedIn = !answer.error && (code == 200 || (acceptRelated && code == 427));
            if (signedIn) {
                const auto &login = answer.envelope.loginResponse;
                storeToken(login ? login->token : std::nullopt);
            }
            then(answer, signedIn);
        });
}

void ApiConnection::post(
    QNetworkRequest request, const nlohmann::ordered_json &body, std::function<void(const Answer &answer)> handler)
{
    request.setHeader(QNetworkRequest::ContentTypeHeader, QByteArrayLiteral("application/json"));
    QNetworkReply *reply = m_network->post(request, Mapper::print(body, false).toUtf8());
    connect(reply, &QNetworkReply::finished, this, [reply, handler = std::move(handler)] {
        reply->deleteLater();
        Answer answer;
        const QByteArray bytes = reply->readAll();
        answer.raw = QString::fromUtf8(bytes);
        answer.json
            = nlohmann::ordered_json::parse(bytes.constData(), bytes.constData() + bytes.size(), nullptr, false);
        // The code in the body decides, whatever the HTTP status; only a body that is no JSON object fails.
        if (answer.json.is_object()) {
            JsonReader reader(answer.json);
            answer.envelope.mapping(reader);
        } else if (reply->error() == QNetworkReply::OperationCanceledError) {
            answer.error = ApiError { QStringLiteral("The request timed out.") };
        } else if (reply->error() != QNetworkReply::NoError) {
            answer.error = ApiError { reply->errorString() };
        } else {
            answer.error
                = ApiError { QStringLiteral("The data couldn't be read because it isn't in the correct format.") };
        }
        handler(answer);
    });
}

void ApiConnection::storeToken(const std::optional<QString> &token)
{
    // A missing token is stored as it is: the key goes, and the next call signs in again.
    if (token)
        UserDefaults::standard().setString(m_tokenKey, *token);
    else
        UserDefaults::standard().remove(m_tokenKey);
}

void ApiConnection::fail(const Pending &pending, const ApiError &error)
{
    AppLog::print(QStringLiteral("error: ") + error.localizedDescription);
    const std::optional<QJsonObject> entry = pending.call.cached ? pending.call.cached() : std::nullopt;
    if (entry)
        pending.complete(entry, std::nullopt, true);
    else
        pending.complete(std::nullopt, error, false);
}

void ApiConnection::fallBack(const Pending &pending)
{
    const std::optional<QJsonObject> entry = pending.call.cached ? pending.call.cached() : std::nullopt;
    pending.complete(entry, std::nullopt, entry.has_value());
}
