// The generated pack as a client uses it: every template's assets download, fonts are real fonts, and the
// documents follow the template format (template units, degrees, indexes per kind).
#include "apiclient.h"
#include "contentserverfixture.h"

#include <set>

namespace {

class ContentPackTest : public ::testing::Test
{
protected:
    TestContentServer server;
    ApiClient client { server.baseUrl() };
    std::string token = client.signIn();

    std::vector<nlohmann::json> allDocuments()
    {
        std::vector<nlohmann::json> documents;
        for (int subCategory : { 47, 48, 56 }) {
            const auto first = client.call(
                "getTemplateWithCatalogs", { { "sub_category_id", subCategory }, { "catalog_id", 0 } }, token);
            for (const auto &catalog : first->at("data")["category_list"]) {
                const auto cards = client.call("getTemplateWithCatalogs",
                    { { "sub_category_id", subCategory }, { "catalog_id", catalog["catalog_id"] },
                        { "item_count", 50 } },
                    token);
                for (const auto &card : cards->at("data")["sample_cards"]) {
                    const auto document = client.call("getJsonData", { { "json_id", card["json_id"] } }, token);
                    documents.push_back(document->at("data"));
                }
            }
        }
        return documents;
    }

    /** The content type of an asset, or the HTTP status as text when it did not download. */
    std::string fetch(const std::string &url)
    {
        const std::string base = server.baseUrl().chopped(1).toStdString();
        if (!url.starts_with(base))
            return "foreign address " + url;
        auto res = client.http().Get(url.substr(base.size()).c_str());
        if (!res || res->status != 200 || res->body.empty())
            return "status " + std::to_string(res ? res->status : -1);
        return res->get_header_value("Content-Type");
    }
};

TEST_F(ContentPackTest, HasTheCatalogsTheScreensExpect)
{
    auto count = [&](int subCategory) {
        const auto answer = client.call("getTemplateWithCatalogs", { { "sub_category_id", subCategory } }, token);
        return answer->at("data")["category_list"].size();
    };
    EXPECT_EQ(count(47), 4u);
    EXPECT_EQ(count(48), 2u);
    EXPECT_EQ(count(56), 2u);
    for (int subCategory : { 47, 49, 50, 57, 58, 51, 52 }) {
        const auto catalogs = client.call("getCatalogBySubCategoryId", { { "sub_category_id", subCategory } }, token);
        EXPECT_FALSE(catalogs->at("data")["category_list"].empty()) << subCategory;
    }
}

TEST_F(ContentPackTest, EveryTemplateNamesOnlyAssetsThatDownload)
{
    const auto documents = allDocuments();
    ASSERT_EQ(documents.size(), 48u);
    std::set<std::string> checked;
    for (const auto &doc : documents) {
        SCOPED_TRACE(doc["json_id"].get<long long>());
        const std::string prefix = doc["prefix_url"];
        std::vector<std::string> images;
        const auto &bg = doc["background_json"];
        if (bg.contains("background_image"))
            images.push_back(bg["background_image"]);
        if (doc["frame_json"].contains("frame_image"))
            images.push_back(doc["frame_json"]["frame_image"]);
        for (const char *list : { "sticker_json", "image_sticker_json", "frame_image_sticker_json" }) {
            for (const auto &record : doc[list])
                images.push_back(
                    record.value(list == std::string("sticker_json") ? "sticker_image" : "image_sticker_image", ""));
        }
        const bool video = doc.value("is_Video", false);
        for (const auto &name : images) {
            ASSERT_FALSE(name.empty());
            const bool isVideo = video && name == bg.value("background_image", "");
            const std::string url = prefix + (isVideo ? "video/" : "resource/") + name;
            if (checked.insert(url).second) {
                EXPECT_TRUE(fetch(url).starts_with(isVideo ? "video/" : "image/")) << url;
            }
        }
        for (const auto &text : doc["text_json"]) {
            const std::string path = text["fontPath"];
            const std::string url = prefix + "fonts/" + path.substr(path.rfind('/') + 1);
            if (checked.insert(url).second) {
                EXPECT_TRUE(fetch(url).starts_with("font/")) << url;
            }
            EXPECT_FALSE(text.value("fontName", "").empty());
        }
        if (bg.contains("texture_image")) {
            EXPECT_TRUE(fetch(bg["texture_image"]).starts_with("image/"));
        }
    }
}

TEST_F(ContentPackTest, DocumentsFollowTheTemplateFormat)
{
    std::set<std::string> sizes;
    bool pip = false, offline = false, outlined = false, round = false, textured = false, shadowed = false;
    std::set<std::string> backgrounds;
    for (const auto &doc : allDocuments()) {
        SCOPED_TRACE(doc["json_id"].get<long long>());
        const double width = doc["width"], height = doc["height"];
        sizes.insert(std::to_string(int(width)) + "x" + std::to_string(int(height)));
        EXPECT_EQ(doc["is_portrait"].get<bool>(), height >= width);
        EXPECT_TRUE(doc.contains("is_sample") && doc.contains("is_pip") && doc.contains("is_offline"));
        pip |= doc["is_pip"].get<bool>();
        offline |= doc["is_offline"].get<bool>();
        for (const auto &[key, value] : doc["background_json"].items())
            backgrounds.insert(key);
        for (const char *list : { "text_json", "sticker_json", "image_sticker_json", "frame_image_sticker_json" }) {
            std::set<long long> indexes;
            for (const auto &record : doc[list]) {
                EXPECT_TRUE(indexes.insert(record["index"].get<long long>()).second) << list << " index repeats";
                EXPECT_LE(record.value("xPos", 0.0), width);
                EXPECT_LE(record.value("yPos", 0.0), height);
                EXPECT_LE(std::abs(record.value("angle", 0.0)), 360.0) << "angles are degrees";
            }
        }
        outlined |= !doc["frame_image_sticker_json"].empty();
        for (const auto &slot : doc["image_sticker_json"])
            round |= slot.value("is_round", false);
        for (const auto &text : doc["text_json"]) {
            textured |= text.contains("texture_image");
            shadowed |= text.contains("shadowRadius");
        }
    }
    EXPECT_TRUE(sizes.contains("1080x1920"));
    EXPECT_TRUE(sizes.contains("1080x1080"));
    EXPECT_TRUE(sizes.contains("1920x1080"));
    EXPECT_TRUE(pip && offline && outlined && round && textured && shadowed);
    for (const char *kind : { "background_image", "background_color", "gradient_colors", "texture_image" })
        EXPECT_TRUE(backgrounds.contains(kind)) << kind;
}

TEST_F(ContentPackTest, StickerCatalogsOfferTransparentPicturesSomeInWebp)
{
    int webp = 0;
    for (int subCategory : { 47, 49, 50, 57, 58 }) {
        const auto catalogs = client.call("getCatalogBySubCategoryId", { { "sub_category_id", subCategory } }, token);
        const int id = catalogs->at("data")["category_list"][0]["catalog_id"];
        const auto images
            = client.call("getImagesByCatalogId", { { "catalog_id", id } }, token)->at("data")["image_list"];
        EXPECT_GE(images.size(), 12u) << subCategory;
        for (const auto &image : images) {
            const std::string type = fetch(image["original_img"]);
            EXPECT_TRUE(type == "image/png" || type == "image/webp") << image["original_img"];
            webp += type == "image/webp";
        }
    }
    EXPECT_GT(webp, 0);
}

} // namespace
