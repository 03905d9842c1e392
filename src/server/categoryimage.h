#pragma once

#include <QString>

#include <optional>

/** One picture of a catalog in its three sizes. */
struct CategoryImage
{
    std::optional<qint64> img_id;
    std::optional<QString> original_img;
    std::optional<QString> compressed_img;
    std::optional<QString> thumbnail_img;

    template<class Map> void mapping(Map &map)
    {
        map("img_id", img_id);
        map("original_img", original_img);
        map("compressed_img", compressed_img);
        map("thumbnail_img", thumbnail_img);
    }
};
