#pragma once

#include "audiojson.h"
#include "backgroundjson.h"
#include "cgfloattransform.h"
#include "frameimagestickerjson.h"
#include "framejson.h"
#include "imagestickerjson.h"
#include "recordlist.h"
#include "stickerjson.h"
#include "textjson.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

/**
 * A design: one array of records per layer kind, the background, the foreground frame and the music.
 * A template from the server, the editor's live model and a stored design all have this form. Records
 * are shared by reference and changed in place; `copy()` gives a document that shares none of them.
 *
 * The `changed_*` fields are the delta of one undo step and are empty in every resting state.
 */
struct Json
{
    std::optional<qint64> json_id;
    RecordList<TextJson> text_json;
    RecordList<TextJson> changed_text_json;
    RecordList<StickerJson> sticker_json;
    RecordList<StickerJson> changed_sticker_json;
    RecordList<ImageStickerJson> image_sticker_json;
    RecordList<ImageStickerJson> changed_image_sticker_json;
    RecordList<FrameImageStickerJson> frame_image_sticker_json;
    RecordList<FrameImageStickerJson> changed_frame_image_sticker_json;
    std::shared_ptr<FrameJson> frame_json;
    std::shared_ptr<BackgroundJson> background_json;
    std::shared_ptr<BackgroundJson> changed_background_json;
    std::shared_ptr<AudioJson> audio_json;
    std::optional<QString> sample_image; // after a save, the file name of the rendered preview
    std::optional<QString> sample_video;
    std::optional<bool> is_pip = false;
    std::optional<bool> is_sample = false;
    std::optional<double> height; // template units
    std::optional<double> width; // template units
    std::optional<bool> is_free = true;
    std::optional<bool> is_featured = false;
    std::optional<bool> is_portrait = true;
    std::optional<bool> is_offline = false; // image fields name the application's own assets
    std::optional<qint64> img_id;
    std::optional<QString> original_img;
    std::optional<QString> compressed_img;
    std::optional<QString> thumbnail_img;
    std::optional<QString> updated_at;
    std::optional<QString> video_file;
    bool is_editsaved = true; // false after an automatic save of an edit in progress
    bool is_Video = false;
    bool isHighlightCover = false;
    std::optional<QString> prefix_url;

    /**
     * Which of "is_pip", "is_sample" and "is_offline" arrived as JSON null. The template load needs the
     * three flags and refuses a document listed here; a missing key is harmless.
     */
    QStringList nullRequiredFlags;

    /** A deep copy: every record is copied, only an in-memory slot picture is shared. */
    [[nodiscard]] std::shared_ptr<Json> copy() const;

    template<class Map> void mapping(Map &map)
    {
        map("json_id", json_id);
        map("text_json", text_json);
        map("changed_text_json", changed_text_json);
        map("sticker_json", sticker_json);
        map("changed_sticker_json", changed_sticker_json);
        map("image_sticker_json", image_sticker_json);
        map("changed_image_sticker_json", changed_image_sticker_json);
        map("frame_image_sticker_json", frame_image_sticker_json);
        map("changed_frame_image_sticker_json", changed_frame_image_sticker_json);
        map("audio_json", audio_json);
        map("frame_json", frame_json);
        map("background_json", background_json);
        map("changed_background_json", changed_background_json);
        map("sample_image", sample_image);
        map("sample_video", sample_video);
        map.requiredFlag("is_pip", is_pip, nullRequiredFlags);
        map.requiredFlag("is_sample", is_sample, nullRequiredFlags);
        map("height", height, cgFloatTransform);
        map("width", width, cgFloatTransform);
        map("is_free", is_free);
        map("is_featured", is_featured);
        map("is_portrait", is_portrait);
        map.requiredFlag("is_offline", is_offline, nullRequiredFlags);
        map("img_id", img_id);
        map("original_img", original_img);
        map("compressed_img", compressed_img);
        map("thumbnail_img", thumbnail_img);
        map("video_file", video_file);
        map("updated_at", updated_at);
        map("is_editsaved", is_editsaved);
        map("is_Video", is_Video);
        map("isHighlightCover", isHighlightCover);
        map("prefix_url", prefix_url);
    }
};
