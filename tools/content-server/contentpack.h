#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

/**
 * The generated content pack as the server reads it: "index.json" (catalogs with their items, stock videos,
 * promotion cards, remote configuration) and one document per template under "templates/". Address fields
 * in the pack start with "{base}", which the server replaces with its own content base when it answers.
 */
class ContentPack
{
public:
    /** Loads the pack; on failure returns false and says why in `error`. */
    bool load(const std::filesystem::path &dir, std::string &error);

    [[nodiscard]] const std::filesystem::path &dir() const { return m_dir; }
    /** Catalogs of one sub-category, in pack order, optionally of one kind ("templates", "images", ...). */
    [[nodiscard]] std::vector<const nlohmann::json *> catalogs(int subCategoryId, const std::string &kind = {}) const;
    /** A catalog by id, or null. */
    [[nodiscard]] const nlohmann::json *catalog(int catalogId) const;
    /** A template document by `json_id`, or null. */
    [[nodiscard]] const nlohmann::json *templateDocument(long long jsonId) const;
    [[nodiscard]] const nlohmann::json &stockVideos() const { return section("stock_videos"); }
    [[nodiscard]] const nlohmann::json &promotions() const { return section("promotions"); }
    [[nodiscard]] const nlohmann::json &remoteConfig() const { return section("remote_config"); }

private:
    [[nodiscard]] const nlohmann::json &section(const char *key) const;

    std::filesystem::path m_dir;
    nlohmann::json m_index;
    std::map<long long, nlohmann::json> m_templates;
};
