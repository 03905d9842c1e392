#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

/** The canvas background; all four forms may be present at once. */
struct BackgroundJson
{
    std::optional<QString> background_image;
    std::optional<QString> background_color; // hexadecimal RGB
    std::optional<QString> texture_image; // a pattern tile
    std::optional<QStringList> gradient_colors; // hexadecimal RGB

    [[nodiscard]] std::shared_ptr<BackgroundJson> copy() const { return std::make_shared<BackgroundJson>(*this); }

    template<class Map> void mapping(Map &map)
    {
        map("background_image", background_image);
        map("background_color", background_color);
        map("texture_image", texture_image);
        map("gradient_colors", gradient_colors);
    }
};
