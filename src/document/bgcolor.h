#pragma once

#include <QString>

#include <optional>

/** One entry of the application's background colour list. */
struct BgColor
{
    std::optional<QString> colorName;
    std::optional<QString> color;

    template<class Map> void mapping(Map &map)
    {
        map("colorName", colorName);
        map("color", color);
    }
};
