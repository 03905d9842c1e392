#pragma once

#include <QString>

#include <optional>

/** The body of `searchCardsBySubCategoryId`. */
struct GetSearchedJsonListRequest
{
    qint64 sub_category_id = 0;
    std::optional<QString> search_category;
    qint64 page = 1;
    qint64 item_count = 0;

    template<class Map> void mapping(Map &map)
    {
        map("sub_category_id", sub_category_id);
        map("search_category", search_category);
        map("page", page);
        map("item_count", item_count);
    }
};
