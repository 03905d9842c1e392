#include "bgcolor.h"
#include "customratio.h"
#include "json.h"
#include "mapper.h"

#include <QJsonArray>

#include <gtest/gtest.h>

namespace {

std::shared_ptr<Json> document(const char *text)
{
    auto json = Mapper::map<Json>(QString::fromUtf8(text));
    EXPECT_TRUE(json) << text;
    return json ? json : std::make_shared<Json>();
}

std::shared_ptr<TextJson> firstText(const char *layerJson)
{
    auto json
        = document(QStringLiteral(R"({"text_json": [%1]})").arg(QString::fromUtf8(layerJson)).toUtf8().constData());
    EXPECT_TRUE(json->text_json && json->text_json->size() == 1);
    return json->text_json->first();
}

QString printed(const Json &json)
{
    return Mapper::toJSONString(json, false).value_or(QStringLiteral("<none>"));
}

} // namespace

TEST(MapperReading, AbsentKeysKeepTheDefaults)
{
    const auto json = document("{}");
    EXPECT_EQ(json->is_pip, false);
    EXPECT_EQ(json->is_free, true);
    EXPECT_EQ(json->is_portrait, true);
    EXPECT_TRUE(json->is_editsaved);
    EXPECT_FALSE(json->width || json->text_json || json->background_json);

    const auto text = firstText("{}");
    EXPECT_EQ(text->alignment, 2);
    EXPECT_EQ(text->status, 1);
    EXPECT_EQ(text->text_style, 0);
}

TEST(MapperReading, NullMakesAnOptionalAbsentAndLeavesANonOptionalAlone)
{
    const auto json = document(R"({"is_free": null, "is_portrait": null, "width": null, "is_editsaved": null,
                                    "background_json": null, "text_json": null})");
    EXPECT_FALSE(json->is_free.has_value());
    EXPECT_FALSE(json->is_portrait.has_value());
    EXPECT_FALSE(json->width.has_value());
    EXPECT_TRUE(json->is_editsaved);
    EXPECT_FALSE(json->background_json);
    EXPECT_FALSE(json->text_json);
    EXPECT_TRUE(json->nullRequiredFlags.isEmpty());
}

TEST(MapperReading, WrongTypesGiveAbsentOrKeepTheValue)
{
    // A numeric string is not a number, a number is not a text, a text is not a flag.
    const auto text = firstText(R"({"xPos": "12", "yPos": true, "alignment": "1", "status": 2.5,
                                    "text": 5, "index": "3", "underline": [1]})");
    EXPECT_FALSE(text->xPos.has_value());
    EXPECT_FALSE(text->yPos.has_value());
    EXPECT_EQ(text->alignment, 2);
    EXPECT_EQ(text->status, 1);
    EXPECT_FALSE(text->text.has_value());
    EXPECT_FALSE(text->index.has_value());
    EXPECT_FALSE(text->underline.has_value());

    const auto json = document(R"({"is_Video": "true", "isHighlightCover": 1, "is_featured": 2, "sample_image": {}})");
    EXPECT_FALSE(json->is_Video);
    EXPECT_TRUE(json->isHighlightCover);
    EXPECT_FALSE(json->is_featured.has_value());
    EXPECT_FALSE(json->sample_image.has_value());
}

TEST(MapperReading, IntegersAcceptExactNumbersOnly)
{
    const auto text = firstText(R"({"index": 3.0, "alignment": 3, "status": 1e0, "underline": 1.5})");
    EXPECT_EQ(text->index, 3);
    EXPECT_EQ(text->alignment, 3);
    EXPECT_EQ(text->status, 1);
    EXPECT_FALSE(text->underline.has_value());
    const auto json = document(R"({"json_id": 18446744073709551615, "img_id": -9223372036854775808})");
    EXPECT_FALSE(json->json_id.has_value());
    EXPECT_EQ(json->img_id, std::numeric_limits<qint64>::min());
}

TEST(MapperReading, RecordsAndArraysNeedObjects)
{
    const auto json = document(R"({"sticker_json": [{"index": 1}, 7], "image_sticker_json": [],
                                    "frame_json": "x", "background_json": {"gradient_colors": ["a", 1]},
                                    "audio_json": {"audio_url": "song.mp3"}})");
    EXPECT_FALSE(json->sticker_json.has_value());
    ASSERT_TRUE(json->image_sticker_json.has_value());
    EXPECT_TRUE(json->image_sticker_json->isEmpty());
    EXPECT_FALSE(json->frame_json);
    ASSERT_TRUE(json->background_json);
    EXPECT_FALSE(json->background_json->gradient_colors.has_value());
    EXPECT_EQ(json->audio_json->audio_url, QStringLiteral("song.mp3"));
}

TEST(MapperReading, NullRequiredFlagsAreNoted)
{
    const auto json
        = document(R"({"is_pip": null, "is_sample": true, "is_offline": null, "image_sticker_json": [{}]})");
    EXPECT_EQ(json->nullRequiredFlags, (QStringList { QStringLiteral("is_pip"), QStringLiteral("is_offline") }));
    EXPECT_FALSE(json->is_pip.has_value());
    EXPECT_TRUE(document(R"({"is_sample": false})")->nullRequiredFlags.isEmpty());
    // The note travels with the copy that an editor gets.
    EXPECT_EQ(json->copy()->nullRequiredFlags.size(), 2);
}

TEST(MapperReading, TextThatIsNoObjectGivesNothing)
{
    EXPECT_FALSE(Mapper::map<Json>(QStringLiteral("")));
    EXPECT_FALSE(Mapper::map<Json>(QStringLiteral("[{}]")));
    EXPECT_FALSE(Mapper::map<Json>(QStringLiteral("{\"width\": 1")));
    EXPECT_FALSE(Mapper::map<Json>(QStringLiteral("null")));
    EXPECT_TRUE(Mapper::map<Json>(QStringLiteral(" {} ")));
}

TEST(MapperWriting, AbsentOptionalsAreLeftOutAndNonOptionalsWritten)
{
    Json json;
    json.is_pip.reset();
    json.is_sample.reset();
    json.is_free.reset();
    json.is_featured.reset();
    json.is_portrait.reset();
    json.is_offline.reset();
    EXPECT_EQ(printed(json), QStringLiteral(R"({"is_editsaved":true,"is_Video":false,"isHighlightCover":false})"));
    EXPECT_EQ(Mapper::toJSONString(TextJson(), false), QStringLiteral(R"({"alignment":2,"status":1,"text_style":0})"));
}

TEST(MapperWriting, KeysFollowTheMappedOrder)
{
    const auto json = document(R"({"prefix_url": "p", "updated_at": "u", "video_file": "v", "audio_json": {},
                                    "frame_json": {}, "json_id": 4, "zzz": 1,
                                    "text_json": [{"fontPath": "f", "index": 2, "vert_space": 1, "xPos": 0}]})");
    const nlohmann::ordered_json out = Mapper::toJSON(*json);
    std::vector<std::string> keys;
    for (const auto &item : out.items())
        keys.push_back(item.key());
    const std::vector<std::string> expected { "json_id", "text_json", "audio_json", "frame_json", "is_pip", "is_sample",
        "is_free", "is_featured", "is_portrait", "is_offline", "video_file", "updated_at", "is_editsaved", "is_Video",
        "isHighlightCover", "prefix_url" };
    EXPECT_EQ(keys, expected);
    std::vector<std::string> textKeys;
    for (const auto &item : out["text_json"][0].items())
        textKeys.push_back(item.key());
    EXPECT_EQ(textKeys,
        (std::vector<std::string> { "xPos", "vert_space", "index", "alignment", "status", "text_style", "fontPath" }));
}

TEST(MapperWriting, PrettyPrintIndentsByTwo)
{
    BgColor color;
    color.colorName = QStringLiteral("Rose");
    EXPECT_EQ(Mapper::toJSONString(color, true), QStringLiteral("{\n  \"colorName\": \"Rose\"\n}"));
    Json json;
    json.text_json.emplace();
    EXPECT_TRUE(Mapper::toJSONString(json, true)->startsWith(QStringLiteral("{\n  \"text_json\": [],\n  \"is_pip\"")));
}

TEST(NumberTransform, WrittenNumbersHaveSinglePrecision)
{
    StickerJson sticker;
    sticker.xPos = 123.456789012345;
    sticker.yPos = 0.1;
    sticker.width = 12.0;
    sticker.height = -0.0;
    sticker.angle = 3.0e38 * 10; // beyond a float
    EXPECT_FALSE(Mapper::toJSONString(sticker, false).has_value());
    sticker.angle = 1e-7;
    EXPECT_EQ(Mapper::toJSONString(sticker, false),
        QStringLiteral(
            R"({"xPos":123.45679,"yPos":0.1,"height":0,"width":12,"angle":1e-07,"status":1,"is_brand_logo":false})"));

    // Read back, the value has the digits of the single-precision one, and another trip changes nothing.
    const auto back = Mapper::map<StickerJson>(Mapper::toJSON(sticker));
    EXPECT_EQ(back->xPos, 123.45679);
    EXPECT_EQ(float(*back->xPos), float(123.456789012345));
    EXPECT_NE(back->xPos, sticker.xPos);
    EXPECT_EQ(Mapper::toJSONString(*back, false), Mapper::toJSONString(sticker, false));
}

TEST(NumberTransform, SnapshotRecordsKeepDoublePrecision)
{
    const auto ratio
        = Mapper::map<CustomRatio>(QStringLiteral(R"({"no": 2, "width": 1080.123456789, "height": 1920})"));
    EXPECT_EQ(ratio->width, 1080.123456789);
    EXPECT_EQ(Mapper::toJSONString(*ratio, false), QStringLiteral(R"({"no":2,"width":1080.123456789,"height":1920})"));
}

TEST(MapperRoundTrip, AFullDocumentComesBackUnchanged)
{
    const char *source = R"({"json_id":7,"text_json":[{"xPos":10.5,"text":"Hello \"you\"","color":"ff0000","index":1,
        "alignment":1,"status":2,"underline":1,"text_style":3,"fontPath":"/f/x.ttf"}],"changed_text_json":[],
        "sticker_json":[{"xPos":1,"sticker_image":"s.png","index":1,"status":1,"selected_sticker_id":9,
        "is_brand_logo":true}],"image_sticker_json":[{"is_round":true,"image_sticker_image":"i.jpg","zScale":1.5,
        "status":1}],"frame_image_sticker_json":[{"opacity":50,"status":3,"angleImage":0}],"audio_json":
        {"audio_url":"a.mp3"},"frame_json":{"frame_image":"f.png"},"background_json":{"background_color":"fff",
        "gradient_colors":["a","b"]},"changed_background_json":{},"sample_image":"1.png","is_pip":true,
        "is_sample":false,"height":1920,"width":1080,"is_free":false,"is_featured":true,"is_portrait":true,
        "is_offline":false,"img_id":3,"thumbnail_img":"t.jpg","updated_at":"2024","is_editsaved":false,
        "is_Video":true,"isHighlightCover":true,"prefix_url":"http://x/"})";
    const auto json = document(source);
    EXPECT_EQ(printed(*json), QString::fromUtf8(source).remove(QLatin1Char('\n')).remove(QStringLiteral("        ")));
    EXPECT_EQ(printed(*Mapper::map<Json>(Mapper::toJSONObject(*json))), printed(*json));
    EXPECT_EQ(Mapper::toJSONObject(*json).value(QStringLiteral("text_json")).toArray().first()[QStringLiteral("text")],
        QStringLiteral("Hello \"you\""));
}

TEST(MapperRoundTrip, ThePictureInMemoryNeverReachesJson)
{
    ImageStickerJson slot;
    slot.image_sticker_selected_image = QImage(4, 4, QImage::Format_ARGB32);
    EXPECT_EQ(Mapper::toJSONString(slot, false), QStringLiteral(R"({"status":1})"));
}
