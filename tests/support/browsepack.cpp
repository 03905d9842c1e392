#include "browsepack.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>

#include <nlohmann/json.hpp>

namespace {

nlohmann::json card(int jsonId, int width, int height, const char *tags, int pictures)
{
    return { { "json_id", jsonId },
        { "sample_image", "{base}resource/card_" + std::to_string(jsonId % pictures) + ".jpg" }, { "width", width },
        { "height", height }, { "is_free", 1 }, { "is_featured", 0 }, { "is_portrait", height >= width ? 1 : 0 },
        { "is_offline", 0 }, { "updated_at", "2024-05-01 10:00:00" }, { "search_category", tags } };
}

nlohmann::json cards(int firstId, int count, const char *tags, int pictures, int width = 1080, int height = 1920)
{
    nlohmann::json list = nlohmann::json::array();
    for (int id = firstId; id < firstId + count; ++id)
        list.push_back(card(id, width, height, tags, pictures));
    return list;
}

nlohmann::json templates(std::optional<int> catalogId, int subCategory, const std::string &name, nlohmann::json items)
{
    nlohmann::json catalog
        = { { "sub_category_id", subCategory }, { "kind", "templates" }, { "name", name }, { "is_free", 1 },
              { "is_featured", 0 }, { "updated_at", "2024-05-01 10:00:00" }, { "items", std::move(items) } };
    if (catalogId)
        catalog["catalog_id"] = *catalogId;
    return catalog;
}

void write(const QString &path, const nlohmann::json &json)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(QByteArray::fromStdString(json.dump()));
}

void writePictures(const QDir &resource, int pictures, QSize size)
{
    for (int kind = 0; kind < pictures; ++kind) {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(QColor::fromHsv((kind * 37) % 360, 160, 230));
        QPainter painter(&picture);
        painter.fillRect(size.width() / 9, size.height() * 5 / 8, size.width() * 7 / 9, size.height() / 12, Qt::white);
        painter.drawText(QRect(QPoint(0, 0), size), Qt::AlignCenter, QString::number(kind));
        painter.end();
        picture.save(resource.filePath(QStringLiteral("card_%1.jpg").arg(kind)), "JPG", 85);
    }
}

} // namespace

BrowsePack::BrowsePack(int storyCards, int pictures, QSize pictureSize)
{
    nlohmann::json catalogs = nlohmann::json::array();
    nlohmann::json travel = templates(301, 47, "Travel", cards(5001, storyCards, "travel, summer", pictures));
    travel["gradient_id"] = 9;
    catalogs.push_back(std::move(travel));
    for (int n = 0; n < 11; ++n)
        catalogs.push_back(
            templates(302 + n, 47, "Catalog " + std::to_string(302 + n), cards(5101 + 2 * n, 2, "party", pictures)));
    catalogs.push_back(templates(std::nullopt, 47, "Unnumbered", cards(5201, 1, "party", pictures)));
    nlohmann::json motion = cards(6001, 3, "motion", pictures);
    motion[0]["width"] = 1920;
    motion[0]["height"] = 1080;
    catalogs.push_back(templates(401, 48, "Motion", std::move(motion)));
    catalogs.push_back(templates(501, 56, "Covers", cards(7001, 50, "fitness", pictures, 1080, 1080)));
    write(m_pack.filePath(QStringLiteral("index.json")), { { "catalogs", std::move(catalogs) } });

    QDir dir(m_pack.path());
    dir.mkdir(QStringLiteral("templates"));
    dir.mkdir(QStringLiteral("resource"));
    writePictures(QDir(dir.filePath(QStringLiteral("resource"))), pictures, pictureSize);
    for (const int id : { 5001, 7001 })
        write(m_pack.filePath(QStringLiteral("templates/%1.json").arg(id)),
            { { "json_id", id }, { "is_sample", true }, { "width", 1080 }, { "height", id == 7001 ? 1080 : 1920 } });
    m_server.setAccessLog(qEnvironmentVariableIsSet("QUILLET_SERVER_LOG"));
    m_server.setRecordRequests(true);
    m_server.start(m_pack.path().toStdString());
}

BrowsePack::~BrowsePack()
{
    m_server.stop();
}

int BrowsePack::templateCalls(long long subCategory, long long catalogId, long long page) const
{
    int calls = 0;
    for (const auto &body : m_server.receivedRequests("getTemplateWithCatalogs")) {
        if (body.value("sub_category_id", -1LL) == subCategory && body.value("catalog_id", -1LL) == catalogId
            && body.value("page", -1LL) == page)
            ++calls;
    }
    return calls;
}
