// quillet-tool api: one call of the main content API through the application's own client.
#include "toolcommand.h"

#include "applog.h"
#include "apppaths.h"
#include "catalogimagesrequest.h"
#include "getjsonrequest.h"
#include "getsearchedjsonlistrequest.h"
#include "gettemplaterequest.h"
#include "mapper.h"
#include "photorequest.h"
#include "reachability.h"
#include "serverclient.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>

namespace {

const char *const usageText = "api ENDPOINT --server URL [--set key=value ...] [--offline]";

struct Result
{
    std::optional<QJsonObject> data;
    std::optional<ApiError> error;
    bool ok = false;
};

/** One endpoint: its request record's fields, how to call it, and the cache entry a screen shows offline. */
struct Endpoint
{
    const char *name;
    nlohmann::ordered_json fields;
    std::function<void(ServerClient &, const nlohmann::ordered_json &, ApiCompletion)> call;
    std::function<std::optional<QJsonObject>(const ServerClient &, const nlohmann::ordered_json &)> cached;
};

template<class Request> Request record(const nlohmann::ordered_json &set)
{
    return *Mapper::map<Request>(set);
}

std::optional<QJsonObject> nothingCached(const ServerClient &, const nlohmann::ordered_json &)
{
    return std::nullopt;
}

const Endpoint endpoints[] = {
    { "doLoginForGuest", nlohmann::ordered_json::object(),
        [](ServerClient &client, const nlohmann::ordered_json &, ApiCompletion done) {
            client.doLoginForGuest(nullptr, std::move(done));
        },
        nothingCached },
    { "getTemplateWithCatalogs", Mapper::toJSON(GetTemplateRequest()),
        [](ServerClient &client, const nlohmann::ordered_json &set, ApiCompletion done) {
            const auto r = record<GetTemplateRequest>(set);
            client.getTemplateWithCatalogs(
                r.sub_category_id, r.catalog_id, r.page, r.item_count, nullptr, std::move(done));
        },
        [](const ServerClient &client, const nlohmann::ordered_json &set) {
            // What a screen shows: the sub-category's entry for its first call, else the page's.
            const auto r = record<GetTemplateRequest>(set);
            return r.catalog_id == 0 ? client.cachedTemplateWithCatalogs(r.sub_category_id)
                                     : client.cachedTemplateWithCatalogs(r.sub_category_id, r.catalog_id, r.page);
        } },
    { "searchCardsBySubCategoryId", Mapper::toJSON(GetSearchedJsonListRequest { 0, QString(), 1, 0 }),
        [](ServerClient &client, const nlohmann::ordered_json &set, ApiCompletion done) {
            const auto r = record<GetSearchedJsonListRequest>(set);
            client.searchCardsBySubCategoryId(r.sub_category_id, r.search_category.value_or(QString()), r.page,
                r.item_count, nullptr, std::move(done));
        },
        nothingCached },
    { "getCatalogBySubCategoryId", Mapper::toJSON(PhotoRequest()),
        [](ServerClient &client, const nlohmann::ordered_json &set, ApiCompletion done) {
            client.getCatalogBySubCategoryId(record<PhotoRequest>(set).sub_category_id, nullptr, std::move(done));
        },
        [](const ServerClient &client, const nlohmann::ordered_json &set) {
            return client.cachedCatalogBySubCategoryId(record<PhotoRequest>(set).sub_category_id);
        } },
    { "getImagesByCatalogId", Mapper::toJSON(CatalogImagesRequest()),
        [](ServerClient &client, const nlohmann::ordered_json &set, ApiCompletion done) {
            client.getImagesByCatalogId(record<CatalogImagesRequest>(set).catalog_id, nullptr, std::move(done));
        },
        [](const ServerClient &client, const nlohmann::ordered_json &set) {
            return client.cachedImagesByCatalogId(record<CatalogImagesRequest>(set).catalog_id);
        } },
    { "getJsonData", Mapper::toJSON(GetJsonRequest()),
        [](ServerClient &client, const nlohmann::ordered_json &set, ApiCompletion done) {
            client.getJsonData(record<GetJsonRequest>(set).json_id, nullptr, std::move(done));
        },
        [](const ServerClient &client, const nlohmann::ordered_json &set) {
            return client.cachedJsonData(record<GetJsonRequest>(set).json_id);
        } },
};

/** A value of --set: a JSON number, boolean or quoted string as such, anything else as text. */
nlohmann::ordered_json setValue(const QString &text)
{
    nlohmann::ordered_json value = Mapper::parse(text);
    if (value.is_discarded() || value.is_structured() || value.is_null())
        return text.toStdString();
    return value;
}

void printResult(const Result &result)
{
    QJsonObject out;
    out.insert(QStringLiteral("data"), result.data ? QJsonValue(*result.data) : QJsonValue());
    out.insert(QStringLiteral("error"), result.error ? QJsonValue(result.error->localizedDescription) : QJsonValue());
    out.insert(QStringLiteral("ok"), result.ok);
    std::fprintf(stdout, "%s\n", QJsonDocument(out).toJson(QJsonDocument::Compact).constData());
}

int run(const QStringList &args)
{
    QStringList rest = args;
    if (rest.isEmpty())
        return toolFail(QStringLiteral("usage: ") + QLatin1String(usageText));
    const QString name = rest.takeFirst();
    const Endpoint *endpoint = nullptr;
    for (const Endpoint &candidate : endpoints) {
        if (name == QLatin1String(candidate.name))
            endpoint = &candidate;
    }
    if (!endpoint)
        return toolFail(QStringLiteral("unknown endpoint '%1'").arg(name));

    QUrl server;
    bool offline = false;
    nlohmann::ordered_json set = nlohmann::ordered_json::object();
    while (!rest.isEmpty()) {
        const QString option = rest.takeFirst();
        if (option == QLatin1String("--offline")) {
            offline = true;
        } else if (option == QLatin1String("--server") && !rest.isEmpty()) {
            server = QUrl(rest.takeFirst());
        } else if (option == QLatin1String("--set") && !rest.isEmpty()) {
            const QString pair = rest.takeFirst();
            const qsizetype equals = pair.indexOf(QLatin1Char('='));
            const std::string key = pair.left(equals).toStdString();
            if (equals < 1 || !endpoint->fields.contains(key))
                return toolFail(QStringLiteral("%1 has no field '%2'; it has %3")
                                    .arg(name, pair.left(equals), Mapper::print(endpoint->fields, false)));
            set[key] = setValue(pair.mid(equals + 1));
        } else {
            return toolFail(QStringLiteral("usage: ") + QLatin1String(usageText));
        }
    }
    if (!server.isValid() || server.host().isEmpty())
        return toolFail(QStringLiteral("--server needs an address such as http://127.0.0.1:8080/"));

    // A fresh home unless one is given, so that a call starts with no token and no cache.
    QTemporaryDir freshHome;
    if (qEnvironmentVariableIsEmpty("QUILLET_HOME"))
        qputenv("QUILLET_HOME", freshHome.path().toUtf8());
    AppPaths::ensureCreated();

    QNetworkAccessManager network;
    ServerClient client(&network, ServerClient::apiBase(server));
    if (offline)
        Reachability::setForcedConnection(Reachability::Connection::Unavailable);
    Result result;
    if (Reachability(server.host()).connection() == Reachability::Connection::Unavailable) {
        // What a screen does without a connection: its cached copy, and no request.
        result.data = endpoint->cached(client, set);
        result.ok = result.data.has_value();
        if (!result.ok)
            result.error = ApiError { QGuiApplication::applicationDisplayName()
                + QStringLiteral(" is unable to connect with internet") };
    } else {
        QEventLoop loop;
        bool done = false;
        endpoint->call(
            client, set, [&](const std::optional<QJsonObject> &data, const std::optional<ApiError> &error, bool ok) {
                result = Result { data, error, ok };
                done = true;
                loop.quit();
            });
        if (!done)
            loop.exec();
    }
    printResult(result);
    return 0;
}

const ToolCommand command("api", usageText, run);

} // namespace
