#include "json.h"
#include "mapper.h"

#include <gtest/gtest.h>

namespace {

std::shared_ptr<Json> fullDocument()
{
    return Mapper::map<Json>(QStringLiteral(R"({
        "text_json": [{"index": 1}, {"index": 2}], "changed_text_json": [{"index": 2}],
        "sticker_json": [{"index": 1}], "changed_sticker_json": [{"index": 1}],
        "image_sticker_json": [{"index": 1}], "changed_image_sticker_json": [{"index": 1}],
        "frame_image_sticker_json": [{"index": 1}], "changed_frame_image_sticker_json": [{"index": 1}],
        "frame_json": {"frame_image": "f"}, "audio_json": {"audio_url": "a"},
        "background_json": {"gradient_colors": ["a"]}, "changed_background_json": {"background_color": "b"},
        "width": 100, "is_pip": true})"));
}

template<class T> void expectDistinct(const RecordList<T> &a, const RecordList<T> &b)
{
    ASSERT_TRUE(a && b);
    ASSERT_EQ(a->size(), b->size());
    for (qsizetype i = 0; i < a->size(); ++i) {
        EXPECT_NE(a->at(i), b->at(i));
        EXPECT_EQ(a->at(i)->index, b->at(i)->index); // same order
    }
}

} // namespace

TEST(DeepCopy, SharesNoRecordWithItsSource)
{
    const auto source = fullDocument();
    const auto copy = source->copy();
    expectDistinct(source->text_json, copy->text_json);
    expectDistinct(source->changed_text_json, copy->changed_text_json);
    expectDistinct(source->sticker_json, copy->sticker_json);
    expectDistinct(source->changed_sticker_json, copy->changed_sticker_json);
    expectDistinct(source->image_sticker_json, copy->image_sticker_json);
    expectDistinct(source->changed_image_sticker_json, copy->changed_image_sticker_json);
    expectDistinct(source->frame_image_sticker_json, copy->frame_image_sticker_json);
    expectDistinct(source->changed_frame_image_sticker_json, copy->changed_frame_image_sticker_json);
    EXPECT_NE(source->frame_json, copy->frame_json);
    EXPECT_NE(source->audio_json, copy->audio_json);
    EXPECT_NE(source->background_json, copy->background_json);
    EXPECT_NE(source->changed_background_json, copy->changed_background_json);

    copy->text_json->first()->status = 2;
    copy->text_json->append(std::make_shared<TextJson>());
    copy->frame_json->frame_image = QStringLiteral("other");
    copy->background_json->gradient_colors->append(QStringLiteral("b"));
    EXPECT_EQ(source->text_json->first()->status, 1);
    EXPECT_EQ(source->text_json->size(), 2);
    EXPECT_EQ(source->frame_json->frame_image, QStringLiteral("f"));
    EXPECT_EQ(source->background_json->gradient_colors->size(), 1);
    EXPECT_EQ(Mapper::toJSONString(*fullDocument(), false), Mapper::toJSONString(*source, false));
}

TEST(DeepCopy, KeepsAbsenceAndSharesTheSlotPicture)
{
    Json empty;
    const auto copy = empty.copy();
    EXPECT_FALSE(copy->text_json || copy->frame_json || copy->background_json);

    auto slot = std::make_shared<ImageStickerJson>();
    slot->image_sticker_selected_image = QImage(8, 8, QImage::Format_RGB32);
    const auto slotCopy = slot->copy();
    EXPECT_EQ(slotCopy->image_sticker_selected_image->cacheKey(), slot->image_sticker_selected_image->cacheKey());
}
