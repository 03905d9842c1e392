#include "catalogserver.h"

#include <QFile>
#include <QTest>

#include <nlohmann/json.hpp>

namespace {

nlohmann::json card(int jsonId, const char *tags)
{
    return { { "json_id", jsonId }, { "sample_image", "{base}resource/sample_" + std::to_string(jsonId) + ".jpg" },
        { "width", 1080 }, { "height", 1920 }, { "is_free", 1 }, { "is_featured", 0 }, { "is_portrait", 1 },
        { "is_offline", 0 }, { "updated_at", "2024-05-01 10:00:00" }, { "search_category", tags },
        { "server_only_key", "dropped by the client" } };
}

nlohmann::json templates(int catalogId, const char *name, nlohmann::json items)
{
    return { { "catalog_id", catalogId }, { "sub_category_id", 47 }, { "kind", "templates" }, { "name", name },
        { "thumbnail_img", "{base}resource/catalog_" + std::to_string(catalogId) + ".jpg" }, { "is_free", 1 },
        { "is_featured", 0 }, { "updated_at", "2024-05-01 10:00:00" }, { "items", std::move(items) } };
}

void write(const QString &path, const nlohmann::json &json)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(QByteArray::fromStdString(json.dump()));
}

} // namespace

CatalogServer::CatalogServer()
{
    const nlohmann::json index = { { "catalogs",
        { templates(101, "Sale", { card(1, "sale,summer"), card(2, "sale"), card(3, "winter") }),
            templates(102, "Party", { card(4, "party,birthday") }),
            { { "catalog_id", 201 }, { "sub_category_id", 51 }, { "kind", "images" }, { "name", "Marble" },
                { "category_name", "Backgrounds" }, { "is_free", 1 },
                { "items", { { { "img_id", 7 }, { "original_img", "{base}resource/marble.jpg" } } } } } } } };
    write(m_pack.filePath(QStringLiteral("index.json")), index);
    QDir(m_pack.path()).mkdir(QStringLiteral("templates"));
    for (int id = 1; id <= 4; ++id)
        write(m_pack.filePath(QStringLiteral("templates/%1.json").arg(id)),
            { { "json_id", id }, { "is_sample", true }, { "width", 1080 }, { "height", 1920 } });
    m_server.setAccessLog(false);
    m_server.start(m_pack.path().toStdString());
}

CatalogServer::~CatalogServer()
{
    m_server.stop();
}

QUrl CatalogServer::apiBase() const
{
    return QUrl(QString::fromStdString(m_server.apiBase()));
}

ApiCompletion CompletionLog::completion()
{
    return [this](const std::optional<QJsonObject> &dictionary, const std::optional<ApiError> &error, bool usable) {
        outcomes.append(Outcome { dictionary, error, usable });
    };
}

bool CompletionLog::waitForOne()
{
    if (!QTest::qWaitFor([this] { return !outcomes.isEmpty(); }, 15000))
        return false;
    QTest::qWait(100);
    return outcomes.size() == 1;
}
