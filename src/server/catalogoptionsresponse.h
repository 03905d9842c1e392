#pragma once

#include "catalog.h"
#include "recordlist.h"

#include <QString>

#include <optional>

/** The answer of `getCatalogBySubCategoryId`: every catalog of a sub-category with its cards, unpaged. */
struct CatalogOptionsResponse
{
    RecordList<Catalog> category_list;
    std::optional<QString> category_name;
    std::optional<qint64> total_record;
    std::optional<bool> is_next_page;
    std::optional<QString> new_token;

    template<class Map> void mapping(Map &map)
    {
        map("category_list", category_list);
        map("category_name", category_name);
        map("total_record", total_record);
        map("is_next_page", is_next_page);
        map("new_token", new_token);
    }
};
