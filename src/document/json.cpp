#include "json.h"

std::shared_ptr<Json> Json::copy() const
{
    auto result = std::make_shared<Json>(*this);
    result->text_json = copyRecords(text_json);
    result->changed_text_json = copyRecords(changed_text_json);
    result->sticker_json = copyRecords(sticker_json);
    result->changed_sticker_json = copyRecords(changed_sticker_json);
    result->image_sticker_json = copyRecords(image_sticker_json);
    result->changed_image_sticker_json = copyRecords(changed_image_sticker_json);
    result->frame_image_sticker_json = copyRecords(frame_image_sticker_json);
    result->changed_frame_image_sticker_json = copyRecords(changed_frame_image_sticker_json);
    result->frame_json = frame_json ? std::make_shared<FrameJson>(*frame_json) : nullptr;
    result->audio_json = audio_json ? std::make_shared<AudioJson>(*audio_json) : nullptr;
    result->background_json = background_json ? background_json->copy() : nullptr;
    result->changed_background_json = changed_background_json ? changed_background_json->copy() : nullptr;
    return result;
}
