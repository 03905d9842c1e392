#pragma once

#include "json.h"
#include "recordlist.h"

#include <QString>

#include <optional>

/** The answer of `searchCardsBySubCategoryId`. */
struct GetSearchedJsonResponse
{
    std::optional<qint64> total_record;
    std::optional<bool> is_next_page;
    RecordList<Json> result;
    std::optional<QString> new_token;
    std::optional<QString> sync_time;

    template<class Map> void mapping(Map &map)
    {
        map("total_record", total_record);
        map("is_next_page", is_next_page);
        map("result", result);
        map("new_token", new_token);
        map("last_sync_time", sync_time);
    }
};
