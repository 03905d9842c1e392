#pragma once

#include <QString>

#include <optional>

/** One canvas size offered on the custom-size screen. */
struct CustomRatio
{
    std::optional<qint64> no;
    std::optional<QString> name;
    std::optional<QString> ratio;
    std::optional<QString> image;
    std::optional<double> width;
    std::optional<double> height;

    template<class Map> void mapping(Map &map)
    {
        map("no", no);
        map("name", name);
        map("ratio", ratio);
        map("image", image);
        map("width", width);
        map("height", height);
    }
};
