#pragma once

#include "cgfloattransform.h"

#include <QString>

#include <memory>
#include <optional>

/** One text layer of a design. Geometry is in template units until the template load, canvas points after. */
struct TextJson
{
    std::optional<double> xPos;
    std::optional<double> yPos;
    std::optional<double> size;
    std::optional<double> opacity; // 0 to 100
    std::optional<double> angle; // degrees in a template, radians once loaded
    std::optional<double> shadowRadius;
    std::optional<double> shadowDistance;
    std::optional<QString> text; // as typed, before text_style
    std::optional<QString> color;
    std::optional<QString> fontName;
    std::optional<QString> bg_image;
    std::optional<QString> texture_image;
    std::optional<QString> shadowColor;
    std::optional<qint64> index;
    std::optional<double> land_space;
    std::optional<double> vert_space;
    qint64 alignment = 2; // 1 left, 2 centre, 3 right
    qint64 status = 1; // 1 added, 2 changed, 3 deleted
    std::optional<qint64> underline;
    qint64 text_style = 0; // 1 upper case, 2 lower case, 3 capitalised words
    std::optional<QString> fontPath;

    [[nodiscard]] std::shared_ptr<TextJson> copy() const { return std::make_shared<TextJson>(*this); }

    template<class Map> void mapping(Map &map)
    {
        map("xPos", xPos, cgFloatTransform);
        map("yPos", yPos, cgFloatTransform);
        map("size", size, cgFloatTransform);
        map("opacity", opacity, cgFloatTransform);
        map("angle", angle, cgFloatTransform);
        map("shadowRadius", shadowRadius, cgFloatTransform);
        map("shadowDistance", shadowDistance, cgFloatTransform);
        map("text", text);
        map("color", color);
        map("fontName", fontName);
        map("bg_image", bg_image);
        map("texture_image", texture_image);
        map("shadowColor", shadowColor);
        map("land_space", land_space, cgFloatTransform);
        map("vert_space", vert_space, cgFloatTransform);
        map("index", index);
        map("alignment", alignment);
        map("status", status);
        map("underline", underline);
        map("text_style", text_style);
        map("fontPath", fontPath);
    }
};
