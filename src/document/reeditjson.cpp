#include "reeditjson.h"

#include "json.h"

namespace {

// A size of the snapshot counts only when it is above 0.
void takeSize(std::optional<double> &target, const std::optional<double> &source)
{
    if (source && *source > 0)
        target = source;
}

} // namespace

std::shared_ptr<Json> ReEditJson::toDocument() const
{
    auto document = std::make_shared<Json>();
    document->sample_image = image;
    if (backgroundImage) {
        auto background = std::make_shared<BackgroundJson>();
        background->background_image = backgroundImage->image;
        background->background_color = backgroundImage->backgroundColor;
        background->texture_image = backgroundImage->pattern_image;
        background->gradient_colors = backgroundImage->gradientLayer;
        document->background_json = background;
    }
    if (fgImage) {
        document->frame_json = std::make_shared<FrameJson>();
        document->frame_json->frame_image = fgImage->image;
    }
    document->sticker_json = resizableImages;
    document->image_sticker_json = staticResizableImages;
    document->frame_image_sticker_json = frameResizableImages;
    document->text_json = resizables;
    document->is_portrait = is_portrait;
    // The frame's size wins where both are set.
    if (backgroundImage) {
        takeSize(document->height, backgroundImage->height);
        takeSize(document->width, backgroundImage->width);
    }
    if (fgImage) {
        takeSize(document->height, fgImage->height);
        takeSize(document->width, fgImage->width);
    }
    return document;
}
