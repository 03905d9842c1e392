#include "serverclient.h"

#include "catalogimagesrequest.h"
#include "getjsonrequest.h"
#include "getsearchedjsonlistrequest.h"
#include "gettemplaterequest.h"
#include "mapper.h"
#include "photorequest.h"
#include "response.h"
#include "responsecache.h"
#include "userdefaults.h"

#include <QJsonArray>

namespace {

const QString apiPath = QStringLiteral("api/public/api/");
const QString templatesEndpoint = QStringLiteral("getTemplateWithCatalogs");
const QString searchEndpoint = QStringLiteral("searchCardsBySubCategoryId");
const QString catalogsEndpoint = QStringLiteral("getCatalogBySubCategoryId");
const QString imagesEndpoint = QStringLiteral("getImagesByCatalogId");
const QString jsonDataEndpoint = QStringLiteral("getJsonData");
const QString templatesCacheLog = QStringLiteral("getTemplateWithCatalogs cache : ");
const QString catalogsCacheLog = QStringLiteral("getCatalogBySubCategoryId cache : ");
const QString imagesCacheLog = QStringLiteral("getImagesByCatalogId cache : ");

QString searchMessageText;

/** Reads the envelope as a `Response` and gives the member of one endpoint as JSON. */
template<class Member> auto member(std::shared_ptr<Member> Response::*field)
{
    return [field](const nlohmann::ordered_json &envelope) -> std::optional<QJsonObject> {
        const std::shared_ptr<Response> response = Mapper::map<Response>(envelope);
        const std::shared_ptr<Member> &record = (*response).*field;
        if (!record)
            return std::nullopt;
        return Mapper::toJSONObject(*record);
    };
}

template<class Request> ApiCall makeCall(const QString &endpoint, const Request &request, bool logged)
{
    ApiCall call;
    call.endpoint = endpoint;
    call.body = Mapper::toJSON(request);
    if (logged) {
        call.requestLog = endpoint + QStringLiteral(" request: ");
        call.responseLog = endpoint + QStringLiteral(" reponse: ");
    }
    return call;
}

/** An endpoint cached under one key: written on code 200, read when the call fails. */
void cacheUnder(ApiCall &call, const QString &key, const QString &logText)
{
    call.store = [key](const QJsonObject &record) { ResponseCache::store(key, record); };
    call.cached = [key, logText] { return ResponseCache::load(key, logText); };
}

} // namespace

ServerClient::ServerClient(QNetworkAccessManager *network, const QUrl &serverUrl, QObject *parent)
    : QObject(parent)
    , m_connection(network, serverUrl, DefaultsKey::token)
{ }

QUrl ServerClient::apiBase(const QUrl &server)
{
    QUrl base = server;
    QString path = base.path();
    if (!path.endsWith(QLatin1Char('/')))
        path += QLatin1Char('/');
    if (!path.endsWith(QLatin1Char('/') + apiPath))
        path += apiPath;
    base.setPath(path);
    return base;
}

QString ServerClient::searchMessage()
{
    return searchMessageText;
}

void ServerClient::setSearchMessage(const QString &message)
{
    searchMessageText = message;
}

void ServerClient::doLoginForGuest(QObject *context, ApiCompletion completion)
{
    m_connection.doLoginForGuest(context, std::move(completion));
}

void ServerClient::getTemplateWithCatalogs(qint64 sub_category_id, qint64 catalog_id, qint64 page, qint64 item_count,
    QObject *context, ApiCompletion completion)
{
    ApiCall call = makeCall(templatesEndpoint, GetTemplateRequest(sub_category_id, catalog_id, page, item_count), true);
    // The answer's log bears the name that the server's endpoint once had.
    call.responseLog = QStringLiteral("getTemplatesBySubCategoryTags reponse: ");
    call.member = member(&Response::templateDataResponse);
    const QString url = endpointUrl(templatesEndpoint);
    call.store = [url, sub_category_id, catalog_id, page](const QJsonObject &record) {
        if (catalog_id != 0) {
            ResponseCache::store(ResponseCache::key(url, { sub_category_id, catalog_id, page }), record);
            return;
        }
        // The first catalog's page comes with the sub-category's answer: it is kept under both keys.
        ResponseCache::store(ResponseCache::key(url, { sub_category_id }), record);
        const QJsonArray catalogs = record.value(QStringLiteral("category_list")).toArray();
        const QJsonValue first = catalogs.isEmpty() ? QJsonValue() : catalogs.at(0)[QStringLiteral("catalog_id")];
        if (first.isDouble())
            ResponseCache::store(ResponseCache::key(url, { sub_category_id, first.toInteger(), page }), record);
    };
    // A failed `catalog_id` 0 call looks under a key that no answer writes; its screen has read the
    // sub-category entry already.
    call.cached = [this, sub_category_id, catalog_id, page] {
        return cachedTemplateWithCatalogs(sub_category_id, catalog_id, page);
    };
    m_connection.send(call, context, std::move(completion));
}

void ServerClient::searchCardsBySubCategoryId(qint64 sub_category_id, const QString &search_category, qint64 page,
    qint64 item_count, QObject *context, ApiCompletion completion)
{
    GetSearchedJsonListRequest request;
    request.sub_category_id = sub_category_id;
    request.search_category = search_category;
    request.page = page;
    request.item_count = item_count;
    ApiCall call = makeCall(searchEndpoint, request, true);
    call.member = member(&Response::getSearchedJsonResponse);
    call.relatedResults = [](const std::optional<QString> &message) {
        if (message)
            setSearchMessage(*message);
    };
    m_connection.send(call, context, std::move(completion));
}

void ServerClient::getCatalogBySubCategoryId(qint64 sub_category_id, QObject *context, ApiCompletion completion)
{
    ApiCall call = makeCall(catalogsEndpoint, PhotoRequest { sub_category_id }, true);
    call.member = member(&Response::catalogOptionsResponse);
    cacheUnder(call, ResponseCache::key(endpointUrl(catalogsEndpoint), { sub_category_id }), catalogsCacheLog);
    m_connection.send(call, context, std::move(completion));
}

void ServerClient::getImagesByCatalogId(qint64 catalog_id, QObject *context, ApiCompletion completion)
{
    ApiCall call = makeCall(imagesEndpoint, CatalogImagesRequest { catalog_id }, true);
    call.member = member(&Response::categoryImagesResponse);
    cacheUnder(call, ResponseCache::key(endpointUrl(imagesEndpoint), { catalog_id }), imagesCacheLog);
    m_connection.send(call, context, std::move(completion));
}

void ServerClient::getJsonData(qint64 json_id, QObject *context, ApiCompletion completion)
{
    // The template screens log this call themselves.
    ApiCall call = makeCall(jsonDataEndpoint, GetJsonRequest { json_id }, false);
    call.member = member(&Response::jsonResponse);
    cacheUnder(call, ResponseCache::key(endpointUrl(jsonDataEndpoint), { json_id }), QString());
    m_connection.send(call, context, std::move(completion));
}

std::optional<QJsonObject> ServerClient::cachedTemplateWithCatalogs(qint64 sub_category_id) const
{
    return ResponseCache::load(
        ResponseCache::key(endpointUrl(templatesEndpoint), { sub_category_id }), templatesCacheLog);
}

std::optional<QJsonObject> ServerClient::cachedTemplateWithCatalogs(
    qint64 sub_category_id, qint64 catalog_id, qint64 page) const
{
    return ResponseCache::load(
        ResponseCache::key(endpointUrl(templatesEndpoint), { sub_category_id, catalog_id, page }), templatesCacheLog);
}

std::optional<QJsonObject> ServerClient::cachedCatalogBySubCategoryId(qint64 sub_category_id) const
{
    return ResponseCache::load(
        ResponseCache::key(endpointUrl(catalogsEndpoint), { sub_category_id }), catalogsCacheLog);
}

std::optional<QJsonObject> ServerClient::cachedImagesByCatalogId(qint64 catalog_id) const
{
    return ResponseCache::load(ResponseCache::key(endpointUrl(imagesEndpoint), { catalog_id }), imagesCacheLog);
}

std::optional<QJsonObject> ServerClient::cachedJsonData(qint64 json_id) const
{
    return ResponseCache::load(ResponseCache::key(endpointUrl(jsonDataEndpoint), { json_id }), QString());
}
