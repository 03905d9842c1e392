#include "designsaver.h"
#include "mapper.h"
#include "sampledocument.h"
#include "sqlitedatabase.h"
#include "storeddesign.h"
#include "testhome.h"
#include "tracecapture.h"

#include <gtest/gtest.h>

#include <limits>

TEST(DesignSaver, TheFirstStoreMakesTheRowAndLaterOnesOverwriteIt)
{
    TestHome home;
    TraceCapture trace;
    DesignStore store;
    store.saveDesign(QStringLiteral("{}"), std::nullopt, false); // another design
    DesignSaver saver(store);
    EXPECT_FALSE(saver.objectId());

    auto json = makeSampleDocument(8);
    json->is_Video = true;
    ASSERT_TRUE(saver.saveEdit(*json));
    ASSERT_TRUE(saver.objectId());
    EXPECT_EQ(saver.objectId(), store.lastDesignObjectID());
    const ObjectId first = *saver.objectId();
    json->text_json->first()->text = QStringLiteral("changed");
    ASSERT_TRUE(saver.saveEdit(*json));
    EXPECT_EQ(saver.objectId(), first);

    const QList<SavePhoto> rows = store.allDesigns();
    ASSERT_EQ(rows.size(), 2);
    const SavePhoto &row = rows.first().objectID == first ? rows.first() : rows.last();
    EXPECT_TRUE(row.is_video);
    EXPECT_TRUE(row.jsonString.startsWith(QStringLiteral("{\n  \"json_id\": 0,\n  \"text_json\": [\n    {\n")));
    const auto stored = readStoredDesign(row.jsonString);
    EXPECT_FALSE(stored->is_editsaved);
    EXPECT_EQ(stored->text_json->first()->text, QStringLiteral("changed"));
}

TEST(DesignSaver, TheUsersSaveDropsTheDeltasAndNamesThePreview)
{
    TestHome home;
    TraceCapture trace;
    DesignStore store;
    const auto existing = store.saveDesign(QStringLiteral("{}"), std::nullopt, false);
    DesignSaver saver(store, existing);

    auto json = makeSampleDocument(8);
    json->is_editsaved = false;
    json->changed_text_json = json->text_json;
    json->changed_sticker_json = json->sticker_json;
    json->changed_image_sticker_json.emplace();
    json->changed_frame_image_sticker_json.emplace();
    json->changed_background_json = json->background_json;
    auto back = std::make_shared<StickerJson>();
    back->index = 7;
    RecordList<StickerJson> stacking = QList { back, json->sticker_json->first() };
    ASSERT_TRUE(saver.saveFinal(*json, QStringLiteral("1.png"), QStringLiteral("2.jpg"), stacking));

    ASSERT_EQ(store.allDesigns().size(), 1);
    const auto stored = readStoredDesign(store.allDesigns().first().jsonString);
    EXPECT_TRUE(stored->is_editsaved);
    EXPECT_FALSE(stored->changed_text_json || stored->changed_sticker_json || stored->changed_image_sticker_json
        || stored->changed_frame_image_sticker_json || stored->changed_background_json);
    EXPECT_EQ(stored->sample_image, QStringLiteral("1.png"));
    EXPECT_EQ(stored->thumbnail_img, QStringLiteral("2.jpg"));
    ASSERT_EQ(stored->sticker_json->size(), 2);
    EXPECT_EQ(stored->sticker_json->first()->index, 7);
}

TEST(DesignSaver, ADocumentWithoutJsonTextLeavesTheStoreAlone)
{
    TestHome home;
    TraceCapture trace;
    DesignStore store;
    DesignSaver saver(store);
    auto json = makeSampleDocument(4);
    json->text_json->first()->xPos = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(saver.saveEdit(*json));
    EXPECT_FALSE(saver.objectId());
    EXPECT_TRUE(store.allDesigns().isEmpty());
    EXPECT_TRUE(trace.text().isEmpty());
}

TEST(DesignSaver, AFailedInsertNeverAdoptsAnotherDesignsRow)
{
    TestHome home;
    TraceCapture trace;
    DesignStore store;
    const auto other = store.saveDesign(QStringLiteral(R"({"sample_image": "other.png"})"), std::nullopt, false);
    ASSERT_TRUE(other);
    {
        // The disk refuses new rows for a while.
        SqliteDatabase db;
        ASSERT_TRUE(db.open(DesignStore::defaultPath()));
        ASSERT_TRUE(db.exec(QStringLiteral(
            "CREATE TRIGGER refuse BEFORE INSERT ON SavePhoto BEGIN SELECT RAISE(ABORT, 'disk full'); END")));
    }
    DesignSaver saver(store);
    auto mine = Mapper::map<Json>(QStringLiteral(R"({"sample_image": "mine.png", "json_id": 5})"));
    saver.saveEdit(*mine);
    EXPECT_FALSE(saver.objectId());
    {
        SqliteDatabase db;
        ASSERT_TRUE(db.open(DesignStore::defaultPath()));
        ASSERT_TRUE(db.exec(QStringLiteral("DROP TRIGGER refuse")));
    }
    saver.saveEdit(*mine);
    ASSERT_TRUE(saver.objectId());
    EXPECT_NE(*saver.objectId(), *other);
    const QList<SavedDesign> designs = store.savedDesigns();
    ASSERT_EQ(designs.size(), 2);
    const SavedDesign &untouched = designs.first().row.objectID == *other ? designs.first() : designs.last();
    EXPECT_EQ(untouched.document->sample_image, QStringLiteral("other.png"));
}
