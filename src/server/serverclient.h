#pragma once

#include "apiconnection.h"

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QUrl>

#include <optional>

class QNetworkAccessManager;

/**
 * The main content API: one operation per endpoint, each ending in one `ApiCompletion` on the GUI
 * thread with the endpoint's record as JSON. Token "token", guest sign-in, no header fallback. The
 * `cached…` reads give the entries that a screen shows before its call goes out.
 */
class ServerClient : public QObject
{
    Q_OBJECT
public:
    /** @param serverUrl the API base, ending in "api/public/api/" */
    ServerClient(QNetworkAccessManager *network, const QUrl &serverUrl, QObject *parent = nullptr);

    /** The API base of a server address; a bare host gets the API's base path. */
    [[nodiscard]] static QUrl apiBase(const QUrl &server);

    [[nodiscard]] ApiConnection &connection() { return m_connection; }
    [[nodiscard]] QString endpointUrl(const QString &endpoint) const { return m_connection.endpointUrl(endpoint); }

    /** The text above search results, for the whole process; a 427 answer replaces it with its message. */
    [[nodiscard]] static QString searchMessage();
    static void setSearchMessage(const QString &message);

    void doLoginForGuest(QObject *context, ApiCompletion completion);
    void getTemplateWithCatalogs(qint64 sub_category_id, qint64 catalog_id, qint64 page, qint64 item_count,
        QObject *context, ApiCompletion completion);
    void searchCardsBySubCategoryId(qint64 sub_category_id, const QString &search_category, qint64 page,
        qint64 item_count, QObject *context, ApiCompletion completion);
    void getCatalogBySubCategoryId(qint64 sub_category_id, QObject *context, ApiCompletion completion);
    void getImagesByCatalogId(qint64 catalog_id, QObject *context, ApiCompletion completion);
    void getJsonData(qint64 json_id, QObject *context, ApiCompletion completion);

    /** The first page of a sub-category, as a `catalog_id` 0 call stored it. */
    [[nodiscard]] std::optional<QJsonObject> cachedTemplateWithCatalogs(qint64 sub_category_id) const;
    [[nodiscard]] std::optional<QJsonObject> cachedTemplateWithCatalogs(
        qint64 sub_category_id, qint64 catalog_id, qint64 page) const;
    [[nodiscard]] std::optional<QJsonObject> cachedCatalogBySubCategoryId(qint64 sub_category_id) const;
    [[nodiscard]] std::optional<QJsonObject> cachedImagesByCatalogId(qint64 catalog_id) const;
    [[nodiscard]] std::optional<QJsonObject> cachedJsonData(qint64 json_id) const;

private:
    ApiConnection m_connection;
};
