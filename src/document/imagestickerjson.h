#pragma once

#include "cgfloattransform.h"

#include <QImage>
#include <QString>

#include <memory>
#include <optional>

/** One picture slot of a design; the user's photographs go here. */
struct ImageStickerJson
{
    std::optional<double> xPos;
    std::optional<double> yPos;
    std::optional<double> height;
    std::optional<double> width;
    std::optional<bool> is_round; // clipped to a circle
    std::optional<double> angle;
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

    /** A copy that shares the in-memory picture. */
    [[nodiscard]] std::shared_ptr<ImageStickerJson> copy() const { return std::make_shared<ImageStickerJson>(*this); }

    template<class Map> void mapping(Map &map)
    {
        mapSlot(map, [] {});
    }

protected:
    /** The keys of a slot in their order; `afterAngle` maps what a kind of slot adds there. */
    template<class Map, class AfterAngle> void mapSlot(Map &map, AfterAngle afterAngle)
    {
        map("xPos", xPos, cgFloatTransform);
        map("yPos", yPos, cgFloatTransform);
        map("height", height, cgFloatTransform);
        map("width", width, cgFloatTransform);
        map("is_round", is_round);
        map("angle", angle, cgFloatTransform);
        afterAngle();
        map("image_sticker_image", image_sticker_image);
        map("color", color);
        map("index", index);
        map("centerX", centerX, cgFloatTransform);
        map("centerY", centerY, cgFloatTransform);
        map("pip_image", pip_image);
        map("zScale", zScale, cgFloatTransform);
        map("status", status);
    }
};
