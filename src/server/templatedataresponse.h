#pragma once

#include "categorylist.h"
#include "json.h"
#include "recordlist.h"

#include <QString>

#include <optional>

/** The answer of `getTemplateWithCatalogs`: the catalogs of a sub-category and the cards of one of them. */
struct TemplateDataResponse
{
    std::optional<qint64> total_record;
    std::optional<bool> is_next_page;
    RecordList<CategoryList> category_list;
    RecordList<Json> sample_cards;
    std::optional<QString> new_token;

    template<class Map> void mapping(Map &map)
    {
        map("total_record", total_record);
        map("is_next_page", is_next_page);
        map("category_list", category_list);
        map("sample_cards", sample_cards);
        map("new_token", new_token);
    }
};
