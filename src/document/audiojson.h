#pragma once

#include <QString>

#include <optional>

/** The music of a video design. */
struct AudioJson
{
    std::optional<QString> audio_url;

    template<class Map> void mapping(Map &map) { map("audio_url", audio_url); }
};
