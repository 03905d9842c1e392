#include "catalogserver.h"
#include "contentserverfixture.h"
#include "json.h"
#include "mapper.h"
#include "serverclient.h"
#include "templatedataresponse.h"
#include "testhome.h"

#include <QJsonArray>
#include <QNetworkAccessManager>

#include <gtest/gtest.h>

// The road of the home screen over the generated pack: tabs, cards, one template, and the picker lists.
TEST(SamplePack, EveryCatalogRequestMapsIntoItsRecord)
{
    TestHome home;
    TestContentServer content;
    QNetworkAccessManager network;
    ServerClient client(&network, QUrl(content.apiBase()));

    CompletionLog templates;
    client.getTemplateWithCatalogs(47, 0, 1, 20, nullptr, templates.completion());
    ASSERT_TRUE(templates.waitForOne());
    ASSERT_TRUE(templates.only().usable);
    const auto page = Mapper::map<TemplateDataResponse>(*templates.only().dictionary);
    ASSERT_TRUE(page->category_list && !page->category_list->isEmpty());
    ASSERT_TRUE(page->sample_cards && !page->sample_cards->isEmpty());
    const std::shared_ptr<Json> card = page->sample_cards->first();
    ASSERT_TRUE(card->json_id);
    EXPECT_TRUE(card->sample_image->startsWith(content.contentBase()));

    CompletionLog document;
    client.getJsonData(*card->json_id, nullptr, document.completion());
    ASSERT_TRUE(document.waitForOne());
    ASSERT_TRUE(document.only().usable);
    const auto json = Mapper::map<Json>(*document.only().dictionary);
    EXPECT_EQ(json->json_id, card->json_id);
    EXPECT_EQ(json->prefix_url, content.contentBase());
    EXPECT_EQ(client.cachedJsonData(*card->json_id), document.only().dictionary);

    for (const qint64 subCategory : { 51, 52, 49, 50 }) {
        CompletionLog catalogs;
        client.getCatalogBySubCategoryId(subCategory, nullptr, catalogs.completion());
        ASSERT_TRUE(catalogs.waitForOne());
        ASSERT_TRUE(catalogs.only().usable) << subCategory;
        const QJsonArray list = catalogs.only().dictionary->value(QLatin1String("category_list")).toArray();
        ASSERT_FALSE(list.isEmpty()) << subCategory;
        CompletionLog images;
        client.getImagesByCatalogId(list.at(0)[QLatin1String("catalog_id")].toInteger(), nullptr, images.completion());
        ASSERT_TRUE(images.waitForOne());
        EXPECT_FALSE(images.only().dictionary->value(QLatin1String("image_list")).toArray().isEmpty()) << subCategory;
    }
}
