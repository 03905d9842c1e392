#pragma once

#include <QtGlobal>

/** The body of `getTemplateWithCatalogs`. */
struct GetTemplateRequest
{
    qint64 sub_category_id = 0;
    qint64 catalog_id = 0; // 0: the catalogs of the sub-category and the cards of its first one
    qint64 is_get_data_for_1st_catalog = 0;
    qint64 page = 1; // counts from 1
    qint64 item_count = 0;

    GetTemplateRequest() = default;
    GetTemplateRequest(qint64 subCategoryId, qint64 catalogId, qint64 pageNumber, qint64 itemCount)
        : sub_category_id(subCategoryId)
        , catalog_id(catalogId)
        , is_get_data_for_1st_catalog(catalogId == 0 ? 1 : 0)
        , page(pageNumber)
        , item_count(itemCount)
    { }

    template<class Map> void mapping(Map &map)
    {
        map("sub_category_id", sub_category_id);
        map("catalog_id", catalog_id);
        map("is_get_data_for_1st_catalog", is_get_data_for_1st_catalog);
        map("page", page);
        map("item_count", item_count);
    }
};
