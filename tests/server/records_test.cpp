#include "catalog.h"
#include "gettemplaterequest.h"
#include "mapper.h"
#include "response.h"

#include <gtest/gtest.h>

TEST(ServerRecords, DataIsReadIntoEveryMemberAtOnce)
{
    const auto response = Mapper::map<Response>(Mapper::parse(QStringLiteral(
        R"({"code": 401, "message": "Token expired.", "data": {"new_token": "fresh", "token": "t", "json_id": 9,
            "image_list": [], "category_list": [{"catalog_id": 3}]}})")));
    ASSERT_TRUE(response);
    EXPECT_EQ(response->code, 401);
    EXPECT_EQ(response->message, QStringLiteral("Token expired."));
    EXPECT_FALSE(response->cause.has_value());
    EXPECT_EQ(response->loginResponse->token, QStringLiteral("t"));
    EXPECT_EQ(response->templateDataResponse->new_token, QStringLiteral("fresh"));
    EXPECT_EQ(response->categoryImagesResponse->new_token, QStringLiteral("fresh"));
    EXPECT_EQ(response->jsonResponse->json_id, 9);
    EXPECT_EQ(response->categoryImagesResponse->image_list->size(), 0);
    EXPECT_EQ(response->catalogOptionsResponse->category_list->first()->catalog_id, 3);

    // Without a data object no member exists.
    const auto bare = Mapper::map<Response>(Mapper::parse(QStringLiteral(R"({"code": 200, "data": null})")));
    EXPECT_FALSE(bare->templateDataResponse);
    EXPECT_FALSE(bare->jsonResponse);
}

TEST(ServerRecords, RenamedKeysAndNonOptionalFields)
{
    const auto search = Mapper::map<GetSearchedJsonResponse>(
        Mapper::parse(QStringLiteral(R"({"last_sync_time": "2024-01-02 03:04:05", "sync_time": "ignored"})")));
    EXPECT_EQ(search->sync_time, QStringLiteral("2024-01-02 03:04:05"));
    EXPECT_EQ(Mapper::toJSON(*search).dump(), R"({"last_sync_time":"2024-01-02 03:04:05"})");

    // A catalog tab: a missing or null name is the empty text, gradient_id is always there.
    const auto tabs = Mapper::map<TemplateDataResponse>(Mapper::parse(QStringLiteral(
        R"({"category_list": [{"catalog_id": 1}, {"name": null, "gradient_id": "2"}, {"name": "A"}]})")));
    ASSERT_EQ(tabs->category_list->size(), 3);
    EXPECT_EQ(tabs->category_list->at(0)->name, QString());
    EXPECT_EQ(tabs->category_list->at(1)->name, QString());
    EXPECT_EQ(tabs->category_list->at(1)->gradient_id, 0);
    EXPECT_EQ(tabs->category_list->at(2)->name, QStringLiteral("A"));
    EXPECT_EQ(Mapper::toJSON(*tabs->category_list->at(0)).dump(), R"({"catalog_id":1,"name":"","gradient_id":0})");

    const auto catalog = Mapper::map<Catalog>(
        Mapper::parse(QStringLiteral(R"({"catalog_id": 5, "updated_at": "x", "is_free": 1, "current_page": null})")));
    EXPECT_EQ(catalog->update_time, QStringLiteral("x"));
    EXPECT_EQ(catalog->is_free, true);
    EXPECT_EQ(catalog->current_page, 0);
    const auto undated = Mapper::map<Catalog>(Mapper::parse(QStringLiteral(R"({"update_time": "y"})")));
    EXPECT_FALSE(undated->update_time.has_value());
}

TEST(ServerRecords, FirstCatalogFlagFollowsTheCatalog)
{
    EXPECT_EQ(Mapper::toJSON(GetTemplateRequest(47, 0, 1, 20)).dump(),
        R"({"sub_category_id":47,"catalog_id":0,"is_get_data_for_1st_catalog":1,"page":1,"item_count":20})");
    EXPECT_EQ(GetTemplateRequest(47, 12, 3, 20).is_get_data_for_1st_catalog, 0);
}
