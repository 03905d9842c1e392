#pragma once

#include <QString>

#include <optional>

/** The foreground frame of an older snapshot; its numbers are mapped without narrowing. */
struct ReEditFrame
{
    std::optional<QString> image;
    std::optional<double> xPos;
    std::optional<double> yPos;
    std::optional<double> height;
    std::optional<double> width;

    template<class Map> void mapping(Map &map)
    {
        map("image", image);
        map("xPos", xPos);
        map("yPos", yPos);
        map("height", height);
        map("width", width);
    }
};
