#pragma once

#include <QString>

#include <optional>

/** A font catalog as the catalog list shows it. */
struct FontpickerCatalogs
{
    std::optional<qint64> catalog_id;
    std::optional<QString> name;
    std::optional<QString> webp_thumbnail_img;
    std::optional<qint64> is_featured;
    std::optional<qint64> is_free;
    std::optional<QString> updated_at;

    template<class Map> void mapping(Map &map)
    {
        map("catalog_id", catalog_id);
        map("name", name);
        map("webp_thumbnail_img", webp_thumbnail_img);
        map("is_featured", is_featured);
        map("is_free", is_free);
        map("updated_at", updated_at);
    }
};
