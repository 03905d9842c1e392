#pragma once

#include <QString>

#include <optional>

/** One font of the font list; `ios_font_name` is the name a text layer asks for. */
struct FontpickerFontList
{
    std::optional<qint64> font_id;
    std::optional<qint64> catalog_id;
    std::optional<QString> font_name;
    std::optional<QString> font_file;
    std::optional<QString> font_url; // for a fetched or custom font, the file's path
    std::optional<QString> ios_font_name;

    template<class Map> void mapping(Map &map)
    {
        map("font_id", font_id);
        map("catalog_id", catalog_id);
        map("font_name", font_name);
        map("font_file", font_file);
        map("font_url", font_url);
        map("ios_font_name", ios_font_name);
    }
};
