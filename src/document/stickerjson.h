#pragma once

#include "cgfloattransform.h"

#include <QString>

#include <memory>
#include <optional>

/** One sticker layer of a design. */
struct StickerJson
{
    std::optional<double> xPos;
    std::optional<double> yPos;
    std::optional<double> height;
    std::optional<double> width;
    std::optional<double> opacity; // 0 to 100
    std::optional<double> angle;
    std::optional<QString> sticker_image;
    std::optional<QString> color; // non-empty: the layer is tinted
    std::optional<qint64> index;
    qint64 status = 1;
    std::optional<qint64> selected_sticker_id;
    std::optional<qint64> selected_sticker_catalog_id;
    bool is_brand_logo = false;

    [[nodiscard]] std::shared_ptr<StickerJson> copy() const { return std::make_shared<StickerJson>(*this); }

    template<class Map> void mapping(Map &map)
    {
        map("xPos", xPos, cgFloatTransform);
        map("yPos", yPos, cgFloatTransform);
        map("height", height, cgFloatTransform);
        map("width", width, cgFloatTransform);
        map("opacity", opacity, cgFloatTransform);
        map("angle", angle, cgFloatTransform);
        map("sticker_image", sticker_image);
        map("color", color);
        map("index", index);
        map("status", status);
        map("selected_sticker_id", selected_sticker_id);
        map("selected_sticker_catalog_id", selected_sticker_catalog_id);
        map("is_brand_logo", is_brand_logo);
    }
};
