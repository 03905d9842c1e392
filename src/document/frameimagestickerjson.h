#pragma once

#include "imagestickerjson.h"

/**
 * A picture slot with a shaped outline: the keys of ImageStickerJson, with an opacity after the angle
 * and the placement of the user's picture inside the outline at the end.
 */
struct FrameImageStickerJson : ImageStickerJson
{
    std::optional<double> opacity; // 0 to 100
    std::optional<double> xPosImage;
    std::optional<double> yPosImage;
    std::optional<double> heightImage;
    std::optional<double> widthImage;
    std::optional<double> angleImage; // set to 0 by the template load

    /** A copy that shares the in-memory picture. */
    [[nodiscard]] std::shared_ptr<FrameImageStickerJson> copy() const
    {
        return std::make_shared<FrameImageStickerJson>(*this);
    }

    template<class Map> void mapping(Map &map)
    {
        mapSlot(map, [this, &map] { map("opacity", opacity, cgFloatTransform); });
        map("xPosImage", xPosImage, cgFloatTransform);
        map("yPosImage", yPosImage, cgFloatTransform);
        map("heightImage", heightImage, cgFloatTransform);
        map("widthImage", widthImage, cgFloatTransform);
        map("angleImage", angleImage, cgFloatTransform);
    }
};
