// The API contract as a client sees it: sign-in and token rotation, catalogs, paging, search, templates.
#include "apiclient.h"
#include "contentserverfixture.h"

#include <chrono>
#include <thread>

namespace {

class ContentApiTest : public ::testing::Test
{
protected:
    TestContentServer server;
    ApiClient client { server.baseUrl() };
    std::string token = client.signIn();

    nlohmann::json data(const std::string &endpoint, const nlohmann::json &body)
    {
        const auto answer = client.call(endpoint, body, token);
        EXPECT_TRUE(answer.has_value());
        EXPECT_EQ(answer.value_or(nlohmann::json::object()).value("code", 0), 200) << endpoint;
        return answer ? answer->at("data") : nlohmann::json::object();
    }
};

TEST_F(ContentApiTest, GuestSignInIssuesATokenThatDataCallsNeed)
{
    ASSERT_FALSE(token.empty());
    const auto withoutToken = client.call("getTemplateWithCatalogs", { { "sub_category_id", 47 } });
    ASSERT_TRUE(withoutToken);
    EXPECT_EQ(withoutToken->value("code", 0), 400);
    EXPECT_EQ(client.lastStatus, 200) << "the code travels in the body, the HTTP status stays 200";
    const auto unknownToken = client.call("getTemplateWithCatalogs", { { "sub_category_id", 47 } }, "not-a-token");
    EXPECT_EQ(unknownToken->value("code", 0), 400);
    EXPECT_EQ(client.call("getTemplateWithCatalogs", { { "sub_category_id", 47 } }, token)->value("code", 0), 200);
    for (const char *key : { "code", "message", "cause", "data" })
        EXPECT_TRUE(unknownToken->contains(key)) << key;
}

TEST_F(ContentApiTest, ExpiredTokenGets401WithItsReplacementOnce)
{
    server.server().setTokenLifetime(std::chrono::seconds(1));
    std::this_thread::sleep_for(std::chrono::milliseconds(1100));
    const auto expired = client.call("getCatalogBySubCategoryId", { { "sub_category_id", 51 } }, token);
    ASSERT_TRUE(expired);
    ASSERT_EQ(expired->value("code", 0), 401);
    const std::string replacement = expired->at("data").value("new_token", "");
    ASSERT_FALSE(replacement.empty());
    EXPECT_NE(replacement, token);
    EXPECT_EQ(
        client.call("getCatalogBySubCategoryId", { { "sub_category_id", 51 } }, replacement)->value("code", 0), 200);
    EXPECT_EQ(client.call("getCatalogBySubCategoryId", { { "sub_category_id", 51 } }, token)->value("code", 0), 400)
        << "the replaced token is withdrawn";
}

TEST_F(ContentApiTest, CatalogZeroGivesTheCatalogsAndTheFirstCatalogsCards)
{
    const auto first = data("getTemplateWithCatalogs",
        { { "sub_category_id", 47 }, { "catalog_id", 0 }, { "is_get_data_for_1st_catalog", 1 }, { "page", 1 },
            { "item_count", 20 } });
    ASSERT_EQ(first["category_list"].size(), 4u);
    const int firstCatalog = first["category_list"][0]["catalog_id"];
    const auto direct = data("getTemplateWithCatalogs",
        { { "sub_category_id", 47 }, { "catalog_id", firstCatalog }, { "page", 1 }, { "item_count", 20 } });
    EXPECT_EQ(first["sample_cards"], direct["sample_cards"]);
    const int second = first["category_list"][1]["catalog_id"];
    const auto other
        = data("getTemplateWithCatalogs", { { "sub_category_id", 47 }, { "catalog_id", second }, { "page", 1 } });
    EXPECT_NE(other["sample_cards"], first["sample_cards"]);
    for (const auto &catalog : first["category_list"]) {
        EXPECT_FALSE(catalog.contains("items"));
        EXPECT_TRUE(catalog["name"].is_string());
    }
}

TEST_F(ContentApiTest, PagesSplitACatalogAndSayWhetherMoreFollow)
{
    const nlohmann::json ask = { { "sub_category_id", 56 }, { "catalog_id", 0 }, { "item_count", 3 } };
    nlohmann::json seen = nlohmann::json::array();
    for (int page = 1;; ++page) {
        auto body = ask;
        body["page"] = page;
        const auto answer = data("getTemplateWithCatalogs", body);
        EXPECT_EQ(answer["total_record"], 8);
        EXPECT_LE(answer["sample_cards"].size(), 3u);
        for (const auto &card : answer["sample_cards"])
            seen.push_back(card["json_id"]);
        if (!answer["is_next_page"].get<bool>()) {
            EXPECT_EQ(page, 3);
            break;
        }
        ASSERT_LT(page, 5);
    }
    EXPECT_EQ(seen.size(), 8u);
    auto beyond = ask;
    beyond["page"] = 9;
    EXPECT_TRUE(data("getTemplateWithCatalogs", beyond)["sample_cards"].empty());
}

TEST_F(ContentApiTest, CardsCarryAbsoluteAddressesAndVideoCardsTheirVideo)
{
    const auto video
        = data("getTemplateWithCatalogs", { { "sub_category_id", 48 }, { "catalog_id", 0 }, { "page", 1 } });
    ASSERT_FALSE(video["sample_cards"].empty());
    for (const auto &card : video["sample_cards"]) {
        for (const char *key : { "json_id", "sample_image", "width", "height", "is_free", "is_featured", "is_portrait",
                 "is_offline", "updated_at", "sample_video", "video_file" })
            EXPECT_TRUE(card.contains(key)) << key;
        EXPECT_TRUE(card["sample_image"].get<std::string>().starts_with(server.contentBase().toStdString()));
        EXPECT_TRUE(card["video_file"].get<std::string>().ends_with(".mp4"));
    }
}

TEST_F(ContentApiTest, SearchByTagAnswersExactMatchesOr427WithRelatedCards)
{
    const auto exact = client.call("searchCardsBySubCategoryId",
        { { "sub_category_id", 47 }, { "search_category", "travel" }, { "page", 1 }, { "item_count", 20 } }, token);
    ASSERT_TRUE(exact);
    EXPECT_EQ(exact->value("code", 0), 200);
    const auto &result = exact->at("data")["result"];
    ASSERT_FALSE(result.empty());
    for (const auto &card : result)
        EXPECT_NE(card["search_category"].get<std::string>().find("Travel"), std::string::npos);
    EXPECT_TRUE(exact->at("data").contains("last_sync_time"));

    const auto near = client.call("searchCardsBySubCategoryId",
        { { "sub_category_id", 47 }, { "search_category", "Surfing" }, { "page", 1 }, { "item_count", 20 } }, token);
    ASSERT_TRUE(near);
    EXPECT_EQ(near->value("code", 0), 427);
    EXPECT_FALSE(near->value("message", "").empty());
    EXPECT_FALSE(near->at("data")["result"].empty()) << "427 still brings related cards";
}

TEST_F(ContentApiTest, EveryTagOfTheSearchScreensFindsTemplates)
{
    for (const char *tag : { "Fashion", "Food and Drink", "Travel", "Offers & Sales", "Home Decor", "Sports",
             "Healthcare", "Event", "Photography", "Fitness", "Grand Opening" }) {
        const auto answer = client.call(
            "searchCardsBySubCategoryId", { { "sub_category_id", 47 }, { "search_category", tag } }, token);
        EXPECT_EQ(answer.value_or(nlohmann::json::object()).value("code", 0), 200) << tag;
    }
    for (const char *tag : { "Food", "Fitness", "Beauty", "Fashion", "Travel", "Art", "Business", "Dance", "Music",
             "Writer", "Entertainment", "Logo", "Pets", "Building", "Sports", "Photography", "Event", "NGO", "Club",
             "Education" }) {
        const auto answer = client.call(
            "searchCardsBySubCategoryId", { { "sub_category_id", 56 }, { "search_category", tag } }, token);
        EXPECT_EQ(answer.value_or(nlohmann::json::object()).value("code", 0), 200) << tag;
    }
}

TEST_F(ContentApiTest, StickerSubCategory47IsGraphicsNotTemplates)
{
    const auto graphics = data("getCatalogBySubCategoryId", { { "sub_category_id", 47 } });
    EXPECT_EQ(graphics["category_name"], "Graphics");
    ASSERT_FALSE(graphics["category_list"].empty());
    const int catalogId = graphics["category_list"][0]["catalog_id"];
    const auto images = data("getImagesByCatalogId", { { "catalog_id", catalogId } });
    EXPECT_GE(images["image_list"].size(), 12u);
    EXPECT_EQ(images["is_next_page"], false);
}

TEST_F(ContentApiTest, TemplateDocumentCarriesThePrefixTheClientReachedItBy)
{
    const auto cards = data("getTemplateWithCatalogs", { { "sub_category_id", 47 }, { "catalog_id", 0 } });
    const long long id = cards["sample_cards"][0]["json_id"];
    const auto document = data("getJsonData", { { "json_id", id } });
    EXPECT_EQ(document["json_id"], id);
    EXPECT_EQ(document["prefix_url"], server.contentBase().toStdString());
    const auto missing = client.call("getJsonData", { { "json_id", 999999 } }, token);
    EXPECT_NE(missing->value("code", 200), 200);
}

TEST_F(ContentApiTest, LibraryEndpointsAnswerFromTheSameBase)
{
    const auto free
        = data("getCatalogsByTypeInWebp", { { "sub_category_id", 37 }, { "is_free", 1 }, { "is_featured", 0 } });
    const auto paid
        = data("getCatalogsByTypeInWebp", { { "sub_category_id", 37 }, { "is_free", 0 }, { "is_featured", 0 } });
    ASSERT_FALSE(free["catalogs"].empty());
    ASSERT_FALSE(paid["catalogs"].empty());
    size_t fonts = 0;
    for (const auto *list : { &free, &paid }) {
        for (const auto &catalog : (*list)["catalogs"]) {
            const auto downloaded = data("getAllFontsByCatalogId", { { "catalog_id", catalog["catalog_id"] } });
            fonts += downloaded["downloadFonts"].size();
            for (const auto &font : downloaded["downloadFonts"])
                EXPECT_FALSE(font["ios_font_name"].get<std::string>().empty());
        }
    }
    EXPECT_GE(fonts, 12u);

    const auto audio
        = data("getCatalogBySubCategoryIdWithLastSyncTime", { { "sub_category_id", 13 }, { "last_sync_time", "" } });
    ASSERT_EQ(audio["category_list"].size(), 3u);
    const auto songs = data("getAudioByCatalogId",
        { { "catalog_id", audio["category_list"][0]["catalog_id"] }, { "page", 1 }, { "item_count", 2 } });
    EXPECT_EQ(songs["result"].size(), 2u);
    EXPECT_TRUE(songs["is_next_page"].get<bool>());

    const auto shapes = data("getContentByCatalogId", { { "catalog_id", 61 }, { "page", 1 }, { "item_count", 10 } });
    EXPECT_EQ(shapes["result"].size(), 10u);
    EXPECT_TRUE(shapes["is_next_page"].get<bool>());
    EXPECT_GE(data("getImagesByCatalogId", { { "catalog_id", 62 } })["image_list"].size(), 6u);

    const auto stock = data("getVideosFromPixabay", { { "page", 1 }, { "search_query", "nature" } });
    ASSERT_FALSE(stock["result"]["hits"].empty());
    for (const auto &hit : stock["result"]["hits"])
        EXPECT_NE(hit["tags"].get<std::string>().find("nature"), std::string::npos);
    const auto all = data("getVideosFromPixabay", { { "page", 1 }, { "search_query", "" } });
    EXPECT_GE(all["result"]["totalHits"].get<int>(), 20);
    EXPECT_TRUE(all["is_next_page"].get<bool>());
}

TEST_F(ContentApiTest, PromotionSyncNeedsNoTokenAndSendsOnlyWhatChanged)
{
    const auto first = client.call("getLinkWithLastSyncTime",
        { { "app_id", 1 }, { "platform", 2 }, { "last_sync_time", "" },
            { "advertise_id_list", nlohmann::json::array() } },
        {}, "/promo/api/public/api/");
    ASSERT_TRUE(first);
    ASSERT_EQ(first->value("code", 0), 200);
    const auto &links = first->at("data");
    ASSERT_GE(links["link_list"].size(), 6u);
    const auto again = client.call("getLinkWithLastSyncTime",
        { { "app_id", 1 }, { "platform", 2 }, { "last_sync_time", links["sync_time"] },
            { "advertise_id_list", links["advertise_id_list"] } },
        {}, "/promo/api/public/api/");
    EXPECT_TRUE(again->at("data")["link_list"].empty());
    EXPECT_EQ(again->at("data")["advertise_id_list"], links["advertise_id_list"]);
    const auto featured = client.call(
        "getAllAdvertiseInFeaturedAdsForMobile", { { "app_id", 1 }, { "platform", 2 } }, {}, "/promo/api/public/api/");
    EXPECT_FALSE(featured->at("data")["featured_ads"].empty());
}

TEST_F(ContentApiTest, RemoteConfigurationNeedsNoToken)
{
    const auto config = client.call("getRemoteConfig");
    ASSERT_TRUE(config);
    EXPECT_EQ(config->at("data").value("is_iha_ads_enable", 0), 1);
    const auto update = nlohmann::json::parse(config->at("data").value("ios_quillet_force_update", ""), nullptr, false);
    EXPECT_TRUE(update.contains("minimum_os_version"));
}

TEST_F(ContentApiTest, BadRequestsGetAnEnvelopeNotACrash)
{
    httplib::Headers headers { { "Authorization", "Bearer " + token } };
    auto res = client.http().Post("/api/public/api/getTemplateWithCatalogs", headers, "{not json", "application/json");
    ASSERT_TRUE(res);
    EXPECT_NE(nlohmann::json::parse(res->body).value("code", 200), 200);
    res = client.http().Post("/api/public/api/noSuchEndpoint", headers, "{}", "application/json");
    ASSERT_TRUE(res);
    EXPECT_EQ(nlohmann::json::parse(res->body).value("code", 0), 404);
    EXPECT_EQ(
        data("getTemplateWithCatalogs", { { "sub_category_id", "47" }, { "catalog_id", nullptr } })["sample_cards"]
            .size(),
        0u)
        << "values of the wrong type count as absent";
}

} // namespace
