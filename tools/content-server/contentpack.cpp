#include "contentpack.h"

#include <fstream>

namespace {

bool readJson(const std::filesystem::path &file, nlohmann::json &out, std::string &error)
{
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        error = "cannot open " + file.string();
        return false;
    }
    out = nlohmann::json::parse(in, nullptr, false);
    if (out.is_discarded()) {
        error = "not valid JSON: " + file.string();
        return false;
    }
    return true;
}

} // namespace

bool ContentPack::load(const std::filesystem::path &dir, std::string &error)
{
    nlohmann::json index;
    if (!readJson(dir / "index.json", index, error))
        return false;
    if (!index.is_object() || !index.value("catalogs", nlohmann::json()).is_array()) {
        error = "index.json has no catalogs list";
        return false;
    }
    std::map<long long, nlohmann::json> templates;
    std::error_code ec;
    for (const auto &entry : std::filesystem::directory_iterator(dir / "templates", ec)) {
        if (entry.path().extension() != ".json")
            continue;
        nlohmann::json document;
        if (!readJson(entry.path(), document, error))
            return false;
        if (!document.is_object() || !document.value("json_id", nlohmann::json()).is_number_integer()) {
            error = "template without json_id: " + entry.path().string();
            return false;
        }
        const long long id = document["json_id"].get<long long>();
        templates.emplace(id, std::move(document));
    }
    m_dir = dir;
    m_index = std::move(index);
    m_templates = std::move(templates);
    return true;
}

std::vector<const nlohmann::json *> ContentPack::catalogs(int subCategoryId, const std::string &kind) const
{
    std::vector<const nlohmann::json *> found;
    for (const auto &catalog : m_index["catalogs"]) {
        if (catalog.value("sub_category_id", -1) == subCategoryId
            && (kind.empty() || catalog.value("kind", std::string()) == kind))
            found.push_back(&catalog);
    }
    return found;
}

const nlohmann::json *ContentPack::catalog(int catalogId) const
{
    for (const auto &catalog : m_index["catalogs"]) {
        if (catalog.value("catalog_id", -1) == catalogId)
            return &catalog;
    }
    return nullptr;
}

const nlohmann::json *ContentPack::templateDocument(long long jsonId) const
{
    const auto it = m_templates.find(jsonId);
    return it == m_templates.end() ? nullptr : &it->second;
}

const nlohmann::json &ContentPack::section(const char *key) const
{
    static const nlohmann::json empty = nlohmann::json::object();
    const auto it = m_index.find(key);
    return it == m_index.end() ? empty : *it;
}
