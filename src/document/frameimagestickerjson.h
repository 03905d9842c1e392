#pragma once

#include "cgfloattransform.h"

#include <QImage>
#include <QString>

#include <memory>
#include <optional>

/**
 * A picture slot with a shaped outline: the keys of ImageStickerJson plus an opacity and the placement
 * of the user's picture inside the outline.
 */
struct FrameImageStickerJson
{
    std::optional<double> xPos;
    std::optional<double> yPos;
    std::optional<double> height;
    std::optional<double> width;
    std::optional<bool> is_round;
    std::optional<double> angle;
    std::optional<double> opacity; // 0 to 100
    std::optional<QString> image_sticker_image;
    /** The picture the user put in the slot; wins over image_sticker_image. Never written to JSON. */
    std::optional<QImage> image_sticker_selected_image;
    std::optional<QString> color;
    std::optional<qint64> index;
    std::optional<double> centerX;
    std::optional<double> centerY;
    std::optional<QString> pip_image;
    std::optional<double> zScale;
    qint64 status = 1;
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
        map("xPos", xPos, cgFloatTransform);
        map("yPos", yPos, cgFloatTransform);
        map("height", height, cgFloatTransform);
        map("width", width, cgFloatTransform);
        map("is_round", is_round);
        map("angle", angle, cgFloatTransform);
        map("opacity", opacity, cgFloatTransform);
        map("image_sticker_image", image_sticker_image);
        map("color", color);
        map("index", index);
        map("centerX", centerX, cgFloatTransform);
        map("centerY", centerY, cgFloatTransform);
        map("pip_image", pip_image);
        map("zScale", zScale, cgFloatTransform);
        map("status", status);
        map("xPosImage", xPosImage, cgFloatTransform);
        map("yPosImage", yPosImage, cgFloatTransform);
        map("heightImage", heightImage, cgFloatTransform);
        map("widthImage", widthImage, cgFloatTransform);
        map("angleImage", angleImage, cgFloatTransform);
    }
};
