#pragma once

#include <QString>

#include <optional>

/** A catalog as a tab of a template screen or a row of a list. */
struct CategoryList
{
    std::optional<qint64> catalog_id;
    QString name; // never absent: a missing name reads as the empty string
    std::optional<QString> thumbnail_img;
    std::optional<QString> compressed_img;
    std::optional<QString> original_img;
    std::optional<QString> webp_original_img;
    std::optional<qint64> is_free;
    std::optional<qint64> is_featured;
    std::optional<QString> updated_at;
    qint64 gradient_id = 0; // index of a local gradient

    template<class Map> void mapping(Map &map)
    {
        map("catalog_id", catalog_id);
        // A non-optional text: a null or another type keeps the value it had.
        std::optional<QString> text = name;
        map("name", text);
        name = text.value_or(name);
        map("thumbnail_img", thumbnail_img);
        map("compressed_img", compressed_img);
        map("original_img", original_img);
        map("webp_original_img", webp_original_img);
        map("is_free", is_free);
        map("is_featured", is_featured);
        map("updated_at", updated_at);
        map("gradient_id", gradient_id);
    }
};
