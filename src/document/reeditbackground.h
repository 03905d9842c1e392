#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/** The background of an older snapshot; its numbers are mapped without narrowing. */
struct ReEditBackground
{
    std::optional<QString> image;
    std::optional<QString> backgroundColor;
    std::optional<QStringList> gradientLayer;
    std::optional<QString> pattern_image;
    std::optional<double> xPos;
    std::optional<double> yPos;
    std::optional<double> height;
    std::optional<double> width;

    template<class Map> void mapping(Map &map)
    {
        map("image", image);
        map("backgroundColor", backgroundColor);
        map("pattern_image", pattern_image);
        map("gradientLayer", gradientLayer);
        map("xPos", xPos);
        map("yPos", yPos);
        map("height", height);
        map("width", width);
    }
};
