#include "mapper.h"
#include "storeddesign.h"

#include <gtest/gtest.h>

TEST(StoredDesign, ADocumentWithASampleImageIsReadAsItIs)
{
    const auto json = readStoredDesign(QStringLiteral(R"({"sample_image": "1.png", "width": 300,
        "text_json": [{"text": "a"}], "is_editsaved": false})"));
    EXPECT_EQ(json->sample_image, QStringLiteral("1.png"));
    EXPECT_EQ(json->width, 300);
    EXPECT_FALSE(json->is_editsaved);
    EXPECT_EQ(json->text_json->first()->text, QStringLiteral("a"));
}

TEST(StoredDesign, AnOlderSnapshotIsConverted)
{
    const auto json = readStoredDesign(QStringLiteral(R"({
        "image": "old.jpg", "is_portrait": false,
        "backgroundImage": {"image": "bg.png", "backgroundColor": "ffffff", "pattern_image": "tile.png",
                            "gradientLayer": ["111111", "222222"], "height": 500.123456789, "width": 400},
        "fgImage": {"image": "frame.png", "height": 800, "width": 0},
        "resizableImages": [{"sticker_image": "s.png"}], "staticResizableImages": [{"index": 4}],
        "frameResizableImages": [{"opacity": 20}], "resizables": [{"text": "t"}]})"));
    EXPECT_EQ(json->sample_image, QStringLiteral("old.jpg"));
    EXPECT_EQ(json->background_json->background_image, QStringLiteral("bg.png"));
    EXPECT_EQ(json->background_json->background_color, QStringLiteral("ffffff"));
    EXPECT_EQ(json->background_json->texture_image, QStringLiteral("tile.png"));
    EXPECT_EQ(
        json->background_json->gradient_colors, (QStringList { QStringLiteral("111111"), QStringLiteral("222222") }));
    EXPECT_EQ(json->frame_json->frame_image, QStringLiteral("frame.png"));
    EXPECT_EQ(json->sticker_json->first()->sticker_image, QStringLiteral("s.png"));
    EXPECT_EQ(json->image_sticker_json->first()->index, 4);
    EXPECT_EQ(json->frame_image_sticker_json->first()->opacity, 20);
    EXPECT_EQ(json->text_json->first()->text, QStringLiteral("t"));
    EXPECT_EQ(json->is_portrait, false);
    // The frame's height wins; its width of 0 leaves the background's.
    EXPECT_EQ(json->height, 800);
    EXPECT_EQ(json->width, 400);
    // The converted document is written in the current form.
    EXPECT_TRUE(Mapper::toJSONString(*json, true)->contains(QStringLiteral("\"sample_image\": \"old.jpg\"")));
}

TEST(StoredDesign, SizesOfZeroLeaveTheSizeAbsent)
{
    const auto json = readStoredDesign(QStringLiteral(R"({"backgroundImage": {"height": 0, "width": -5},
                                                         "fgImage": {"height": 0}})"));
    EXPECT_FALSE(json->height.has_value());
    EXPECT_FALSE(json->width.has_value());
    EXPECT_TRUE(json->background_json);
}

TEST(StoredDesign, TheKeySampleImageAloneMakesTheCurrentFormWhateverItsValue)
{
    // A design stored before it had a preview keeps its layers.
    for (const char *sample : { "null", "\"\"", "7" }) {
        const auto json = readStoredDesign(QStringLiteral(R"({"sample_image": %1, "image": "x.png",
                                                             "text_json": [{"text": "kept"}]})")
                                               .arg(QLatin1String(sample)));
        ASSERT_TRUE(json->text_json) << sample;
        EXPECT_EQ(json->text_json->first()->text, QStringLiteral("kept"));
        EXPECT_NE(json->sample_image, QStringLiteral("x.png"));
    }
}

TEST(StoredDesign, UnreadableTextGivesAnEmptyDesign)
{
    for (const QString &text :
        { QString(), QStringLiteral("not json"), QStringLiteral("[1, 2]"), QStringLiteral("{") }) {
        const auto json = readStoredDesign(text);
        ASSERT_TRUE(json) << qPrintable(text);
        EXPECT_FALSE(json->sample_image || json->text_json || json->background_json || json->height);
        // Converted from the empty snapshot, whose orientation is unknown.
        EXPECT_FALSE(json->is_portrait.has_value());
        EXPECT_TRUE(json->is_editsaved);
    }
}
