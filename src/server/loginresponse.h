#pragma once

#include <QString>

#include <optional>

/** The `data` of a sign-in answer. Each library's login record has this one field. */
struct LoginResponse
{
    std::optional<QString> token;

    template<class Map> void mapping(Map &map) { map("token", token); }
};
