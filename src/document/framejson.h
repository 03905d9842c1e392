#pragma once

#include <QString>

#include <optional>

/** The foreground frame drawn over the whole canvas. */
struct FrameJson
{
    std::optional<QString> frame_image;

    template<class Map> void mapping(Map &map) { map("frame_image", frame_image); }
};
