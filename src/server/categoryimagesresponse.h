#pragma once

#include "json.h"
#include "recordlist.h"

#include <QString>

#include <optional>

/** The answer of `getImagesByCatalogId`: the whole list of one catalog, unpaged. */
struct CategoryImagesResponse
{
    RecordList<Json> image_list;
    std::optional<qint64> total_record;
    std::optional<bool> is_next_page;
    std::optional<QString> category_name;
    std::optional<QString> new_token;

    template<class Map> void mapping(Map &map)
    {
        map("image_list", image_list);
        map("total_record", total_record);
        map("is_next_page", is_next_page);
        map("category_name", category_name);
        map("new_token", new_token);
    }
};
