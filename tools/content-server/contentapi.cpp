#include "contentapi.h"

#include "contentpack.h"
#include "tokenregistry.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <ctime>
#include <set>

namespace {

constexpr std::array kMainEndpoints = { "doLoginForGuest", "getRemoteConfig", "getTemplateWithCatalogs",
    "searchCardsBySubCategoryId", "getCatalogBySubCategoryId", "getImagesByCatalogId", "getJsonData",
    "getCatalogsByTypeInWebp", "getAllFontsByCatalogId", "getCatalogBySubCategoryIdWithLastSyncTime",
    "getAudioByCatalogId", "getContentByCatalogId", "getVideosFromPixabay" };
constexpr std::array kPromotionEndpoints = { "getLinkWithLastSyncTime", "getAllAdvertiseInFeaturedAdsForMobile",
    "getAllAdvertiseByCategoryForMobile", "addAnalyticsForAppInstallByAdvertise" };
constexpr int kStockVideosPerPage = 10;

long long number(const nlohmann::json &request, const char *key, long long fallback)
{
    const auto it = request.find(key);
    if (it == request.end())
        return fallback;
    if (it->is_number())
        return it->get<long long>();
    if (it->is_boolean())
        return it->get<bool>() ? 1 : 0;
    return fallback;
}

std::string text(const nlohmann::json &request, const char *key)
{
    const auto it = request.find(key);
    return it != request.end() && it->is_string() ? it->get<std::string>() : std::string();
}

std::string lower(std::string value)
{
    std::transform(value.begin(), value.end(), value.begin(), [](unsigned char c) { return std::tolower(c); });
    return value;
}

std::string trimmed(const std::string &value)
{
    const auto first = value.find_first_not_of(" \t\r\n");
    if (first == std::string::npos)
        return {};
    return value.substr(first, value.find_last_not_of(" \t\r\n") - first + 1);
}

std::vector<std::string> splitTags(const std::string &tags)
{
    std::vector<std::string> out;
    size_t start = 0;
    while (start <= tags.size()) {
        const auto end = std::min(tags.find(',', start), tags.size());
        if (auto tag = lower(trimmed(tags.substr(start, end - start))); !tag.empty())
            out.push_back(std::move(tag));
        start = end + 1;
    }
    return out;
}

/** A catalog as the wire shows it: without the pack's own bookkeeping. */
nlohmann::json publicCatalog(const nlohmann::json &catalog)
{
    nlohmann::json out = catalog;
    out.erase("items");
    out.erase("kind");
    out.erase("category_name");
    return out;
}

const nlohmann::json &items(const nlohmann::json *catalog)
{
    static const nlohmann::json none = nlohmann::json::array();
    if (!catalog)
        return none;
    const auto it = catalog->find("items");
    return it != catalog->end() && it->is_array() ? *it : none;
}

/** One page of `all`: `page` counts from 1; `count` below 1 means everything. */
nlohmann::json pageOf(const nlohmann::json &all, long long page, long long count, nlohmann::json &data)
{
    const long long total = static_cast<long long>(all.size());
    page = std::max(1LL, page);
    if (count < 1)
        count = std::max(1LL, total);
    const long long first = std::min(total, (page - 1) * count);
    const long long last = std::min(total, first + count);
    data["total_record"] = total;
    data["is_next_page"] = last < total;
    return nlohmann::json(all.begin() + first, all.begin() + last);
}

void replaceBase(nlohmann::json &value, const std::string &base)
{
    static const std::string marker = "{base}";
    if (value.is_string()) {
        auto &s = value.get_ref<std::string &>();
        if (s.starts_with(marker))
            s.replace(0, marker.size(), base);
    } else if (value.is_structured()) {
        for (auto &child : value)
            replaceBase(child, base);
    }
}

std::string nowText()
{
    const std::time_t now = std::time(nullptr);
    std::tm utc {};
    gmtime_r(&now, &utc);
    char out[32];
    std::strftime(out, sizeof out, "%Y-%m-%d %H:%M:%S", &utc);
    return out;
}

} // namespace

ContentApi::ContentApi(const ContentPack &pack, TokenRegistry &tokens)
    : m_pack(pack)
    , m_tokens(tokens)
{ }

bool ContentApi::knows(const std::string &endpoint)
{
    return std::find(kMainEndpoints.begin(), kMainEndpoints.end(), endpoint) != kMainEndpoints.end();
}

bool ContentApi::knowsPromotion(const std::string &endpoint)
{
    return std::find(kPromotionEndpoints.begin(), kPromotionEndpoints.end(), endpoint) != kPromotionEndpoints.end();
}

nlohmann::json ContentApi::envelope(int code, const std::string &message, nlohmann::json data)
{
    if (data.is_null())
        data = nlohmann::json::object();
    return { { "code", code }, { "message", message }, { "cause", "" }, { "data", std::move(data) } };
}

nlohmann::json ContentApi::forced(int code, const std::string &bearer, bool withNewToken) const
{
    nlohmann::json data = nlohmann::json::object();
    if (code == 401 && withNewToken)
        data["new_token"] = m_tokens.replace(bearer);
    return envelope(code, "Forced answer.", std::move(data));
}

nlohmann::json ContentApi::answer(const std::string &endpoint, const nlohmann::json &request, const std::string &bearer,
    const std::string &base, std::chrono::seconds tokenLifetime) const
{
    if (endpoint == "doLoginForGuest")
        return envelope(200, "Login successfully.", { { "token", m_tokens.issue() } });
    if (endpoint == "getRemoteConfig") {
        nlohmann::json data = m_pack.remoteConfig();
        replaceBase(data, base);
        return envelope(200, "Configuration fetched successfully.", std::move(data));
    }
    switch (m_tokens.check(bearer, tokenLifetime)) {
    case TokenRegistry::Status::Unknown:
        return envelope(400, "Token is invalid. Please sign in again.");
    case TokenRegistry::Status::Expired:
        return envelope(401, "Token expired.", { { "new_token", m_tokens.replace(bearer) } });
    case TokenRegistry::Status::Valid:
        break;
    }
    if (!request.is_object())
        return envelope(201, "Request body must be a JSON object.");

    nlohmann::json result;
    if (endpoint == "getTemplateWithCatalogs")
        result = templateWithCatalogs(request);
    else if (endpoint == "searchCardsBySubCategoryId")
        result = searchCards(request);
    else if (endpoint == "getCatalogBySubCategoryId")
        result = catalogsOfSubCategory(request);
    else if (endpoint == "getImagesByCatalogId")
        result = imagesOfCatalog(request);
    else if (endpoint == "getJsonData")
        result = templateDocument(request, base);
    else if (endpoint == "getCatalogsByTypeInWebp")
        result = fontCatalogs(request);
    else if (endpoint == "getAllFontsByCatalogId")
        result = fontsOfCatalog(request);
    else if (endpoint == "getCatalogBySubCategoryIdWithLastSyncTime")
        result = audioCatalogs(request);
    else if (endpoint == "getAudioByCatalogId")
        result = audioOfCatalog(request);
    else if (endpoint == "getContentByCatalogId")
        result = contentOfCatalog(request);
    else if (endpoint == "getVideosFromPixabay")
        result = stockVideos(request);
    else
        return envelope(404, "Unknown endpoint.");
    replaceBase(result, base);
    return result;
}

nlohmann::json ContentApi::templateWithCatalogs(const nlohmann::json &request) const
{
    if (!request.contains("sub_category_id"))
        return envelope(201, "Required field sub_category_id is missing.");
    const int subCategory = static_cast<int>(number(request, "sub_category_id", 0));
    const int catalogId = static_cast<int>(number(request, "catalog_id", 0));
    const auto catalogs = m_pack.catalogs(subCategory, "templates");

    nlohmann::json data = { { "category_list", nlohmann::json::array() } };
    for (const auto *catalog : catalogs)
        data["category_list"].push_back(publicCatalog(*catalog));
    const nlohmann::json *chosen = nullptr;
    if (catalogId == 0)
        chosen = catalogs.empty() ? nullptr : catalogs.front();
    else if (const auto *catalog = m_pack.catalog(catalogId); catalog && catalog->value("kind", "") == "templates")
        chosen = catalog;
    data["sample_cards"] = pageOf(items(chosen), number(request, "page", 1), number(request, "item_count", 20), data);
    return envelope(200, "Templates fetched successfully.", std::move(data));
}

nlohmann::json ContentApi::searchCards(const nlohmann::json &request) const
{
    const int subCategory = static_cast<int>(number(request, "sub_category_id", 0));
    const std::string query = lower(trimmed(text(request, "search_category")));
    nlohmann::json exact = nlohmann::json::array();
    nlohmann::json related = nlohmann::json::array();
    nlohmann::json featured = nlohmann::json::array();
    for (const auto *catalog : m_pack.catalogs(subCategory, "templates")) {
        const std::string catalogName = lower(catalog->value("name", ""));
        for (const auto &card : items(catalog)) {
            const auto tags = splitTags(card.value("search_category", ""));
            const bool tagged = std::find(tags.begin(), tags.end(), query) != tags.end();
            if (query.empty() || tagged || catalogName == query) {
                exact.push_back(card);
                continue;
            }
            const bool near = catalogName.find(query) != std::string::npos
                || std::any_of(tags.begin(), tags.end(), [&](const std::string &tag) {
                       return tag.find(query) != std::string::npos || query.find(tag) != std::string::npos;
                   });
            if (near)
                related.push_back(card);
            else if (card.value("is_featured", 0) == 1)
                featured.push_back(card);
        }
    }
    nlohmann::json data = { { "last_sync_time", nowText() } };
    const long long page = number(request, "page", 1);
    const long long count = number(request, "item_count", 20);
    if (!exact.empty()) {
        data["result"] = pageOf(exact, page, count, data);
        return envelope(200, "Templates fetched successfully.", std::move(data));
    }
    for (auto &card : featured)
        related.push_back(std::move(card));
    data["result"] = pageOf(related, page, count, data);
    return envelope(427,
        "Sorry, we couldn't find any templates for \"" + trimmed(text(request, "search_category"))
            + "\". Here are some related templates.",
        std::move(data));
}

nlohmann::json ContentApi::catalogsOfSubCategory(const nlohmann::json &request) const
{
    const int subCategory = static_cast<int>(number(request, "sub_category_id", 0));
    const auto catalogs = m_pack.catalogs(subCategory, "images");
    nlohmann::json data = { { "category_list", nlohmann::json::array() }, { "total_record", catalogs.size() },
        { "is_next_page", false } };
    data["category_name"] = catalogs.empty() ? "" : catalogs.front()->value("category_name", "");
    for (const auto *catalog : catalogs)
        data["category_list"].push_back(publicCatalog(*catalog));
    return envelope(200, "Catalogs fetched successfully.", std::move(data));
}

nlohmann::json ContentApi::imagesOfCatalog(const nlohmann::json &request) const
{
    const auto *catalog = m_pack.catalog(static_cast<int>(number(request, "catalog_id", 0)));
    const auto &list = items(catalog);
    nlohmann::json data = { { "image_list", list }, { "total_record", list.size() }, { "is_next_page", false },
        { "category_name", catalog ? catalog->value("name", "") : "" } };
    return envelope(200, "Images fetched successfully.", std::move(data));
}

nlohmann::json ContentApi::templateDocument(const nlohmann::json &request, const std::string &base) const
{
    const auto *document = m_pack.templateDocument(number(request, "json_id", 0));
    if (!document)
        return envelope(404, "Template not found.");
    nlohmann::json data = *document;
    data["prefix_url"] = base;
    return envelope(200, "Template fetched successfully.", std::move(data));
}

nlohmann::json ContentApi::fontCatalogs(const nlohmann::json &request) const
{
    const int subCategory = static_cast<int>(number(request, "sub_category_id", 0));
    const long long freeSelector = number(request, "is_free", -1);
    nlohmann::json list = nlohmann::json::array();
    for (const auto *catalog : m_pack.catalogs(subCategory, "fonts")) {
        if (freeSelector < 0 || catalog->value("is_free", 1) == freeSelector)
            list.push_back(publicCatalog(*catalog));
    }
    nlohmann::json data = { { "total_record", list.size() }, { "catalogs", std::move(list) } };
    return envelope(200, "Catalogs fetched successfully.", std::move(data));
}

nlohmann::json ContentApi::fontsOfCatalog(const nlohmann::json &request) const
{
    const auto *catalog = m_pack.catalog(static_cast<int>(number(request, "catalog_id", 0)));
    if (!catalog || catalog->value("kind", "") != "fonts")
        return envelope(404, "Font catalog not found.");
    return envelope(200, "Fonts fetched successfully.", { { "downloadFonts", items(catalog) } });
}

nlohmann::json ContentApi::audioCatalogs(const nlohmann::json &request) const
{
    const int subCategory = static_cast<int>(number(request, "sub_category_id", 0));
    nlohmann::json list = nlohmann::json::array();
    for (const auto *catalog : m_pack.catalogs(subCategory, "audio"))
        list.push_back(publicCatalog(*catalog));
    nlohmann::json data
        = { { "total_record", list.size() }, { "last_sync_time", nowText() }, { "category_list", std::move(list) } };
    return envelope(200, "Catalogs fetched successfully.", std::move(data));
}

nlohmann::json ContentApi::audioOfCatalog(const nlohmann::json &request) const
{
    const auto *catalog = m_pack.catalog(static_cast<int>(number(request, "catalog_id", 0)));
    nlohmann::json data;
    data["result"] = pageOf(items(catalog), number(request, "page", 1), number(request, "item_count", 50), data);
    return envelope(200, "Audio fetched successfully.", std::move(data));
}

nlohmann::json ContentApi::contentOfCatalog(const nlohmann::json &request) const
{
    const auto *catalog = m_pack.catalog(static_cast<int>(number(request, "catalog_id", 0)));
    nlohmann::json data;
    data["result"] = pageOf(items(catalog), number(request, "page", 1), number(request, "item_count", 30), data);
    return envelope(200, "Content fetched successfully.", std::move(data));
}

nlohmann::json ContentApi::stockVideos(const nlohmann::json &request) const
{
    const auto &stock = m_pack.stockVideos();
    const std::string query = lower(trimmed(text(request, "search_query")));
    nlohmann::json matching = nlohmann::json::array();
    for (const auto &hit : stock.value("hits", nlohmann::json::array())) {
        const auto tags = splitTags(hit.value("tags", ""));
        const bool match = query.empty() || std::any_of(tags.begin(), tags.end(), [&](const std::string &tag) {
            return tag.find(query) != std::string::npos;
        });
        if (match)
            matching.push_back(hit);
    }
    nlohmann::json data = { { "is_cache", 0 }, { "thumbnail_url", stock.value("thumbnail_url", "") },
        { "thumbnail_size", stock.value("thumbnail_size", "") },
        { "user_profile_url", stock.value("user_profile_url", "") } };
    nlohmann::json paging;
    auto hits = pageOf(matching, number(request, "page", 1), kStockVideosPerPage, paging);
    data["is_next_page"] = paging["is_next_page"];
    data["result"] = { { "totalHits", matching.size() }, { "total", matching.size() }, { "hits", std::move(hits) } };
    return envelope(200, "Videos fetched successfully.", std::move(data));
}

nlohmann::json ContentApi::answerPromotion(
    const std::string &endpoint, const nlohmann::json &request, const std::string &base) const
{
    if (!request.is_object())
        return envelope(201, "Request body must be a JSON object.");
    const auto &cards = m_pack.promotions().value("link_list", nlohmann::json::array());
    nlohmann::json result;
    if (endpoint == "getLinkWithLastSyncTime") {
        result = promotionLinks(request);
    } else if (endpoint == "getAllAdvertiseInFeaturedAdsForMobile") {
        nlohmann::json featured = nlohmann::json::array();
        for (const auto &card : cards) {
            if (card.value("is_featured", 0) == 1)
                featured.push_back(card);
        }
        result = envelope(200, "Advertisements fetched successfully.", { { "featured_ads", std::move(featured) } });
    } else if (endpoint == "getAllAdvertiseByCategoryForMobile") {
        const long long category = number(request, "category_id", -1);
        nlohmann::json list = nlohmann::json::array();
        for (const auto &card : cards) {
            if (card.value("category_id", -2) == category)
                list.push_back(card);
        }
        result = envelope(200, "Advertisements fetched successfully.", { { "result", std::move(list) } });
    } else if (endpoint == "addAnalyticsForAppInstallByAdvertise") {
        result = envelope(200, "Analytics added successfully.");
    } else {
        return envelope(404, "Unknown endpoint.");
    }
    replaceBase(result, base);
    return result;
}

nlohmann::json ContentApi::promotionLinks(const nlohmann::json &request) const
{
    const auto &cards = m_pack.promotions().value("link_list", nlohmann::json::array());
    const std::string since = text(request, "last_sync_time");
    std::set<long long> known;
    if (const auto it = request.find("advertise_id_list"); it != request.end() && it->is_array()) {
        for (const auto &id : *it) {
            if (id.is_number_integer())
                known.insert(id.get<long long>());
        }
    }
    nlohmann::json changed = nlohmann::json::array();
    nlohmann::json ids = nlohmann::json::array();
    std::string syncTime = since;
    for (const auto &card : cards) {
        const std::string updated = card.value("update_time", "");
        const long long id = card.value("ads_id", 0LL);
        ids.push_back(id);
        syncTime = std::max(syncTime, updated);
        if (since.empty() || updated > since || !known.contains(id))
            changed.push_back(card);
    }
    nlohmann::json data = { { "total_record", changed.size() }, { "link_list", std::move(changed) },
        { "sync_time", syncTime }, { "advertise_id_list", std::move(ids) } };
    return envelope(200, "Links fetched successfully.", std::move(data));
}
