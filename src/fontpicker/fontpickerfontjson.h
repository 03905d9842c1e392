#pragma once

#include "fontpickerfontlist.h"
#include "recordlist.h"

#include <QString>

#include <optional>

/** One catalog of the font list; the catalog named "Text" takes in fetched and custom fonts. */
struct FontpickerFontJson
{
    std::optional<qint64> catalog_id;
    std::optional<QString> name;
    std::optional<QString> thumbnail_img;
    std::optional<QString> compressed_img;
    std::optional<QString> original_img;
    std::optional<qint64> is_free;
    std::optional<qint64> is_offline;
    RecordList<FontpickerFontList> font_list;

    template<class Map> void mapping(Map &map)
    {
        map("catalog_id", catalog_id);
        map("name", name);
        map("thumbnail_img", thumbnail_img);
        map("compressed_img", compressed_img);
        map("original_img", original_img);
        map("is_free", is_free);
        map("is_offline", is_offline);
        map("font_list", font_list);
    }
};
