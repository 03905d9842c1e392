#pragma once

#include <QtGlobal>

/** The body of `getJsonData`. */
struct GetJsonRequest
{
    qint64 json_id = 0;

    template<class Map> void mapping(Map &map) { map("json_id", json_id); }
};
