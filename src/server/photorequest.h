#pragma once

#include <QtGlobal>

/** The body of `getCatalogBySubCategoryId`. */
struct PhotoRequest
{
    qint64 sub_category_id = 0;

    template<class Map> void mapping(Map &map) { map("sub_category_id", sub_category_id); }
};
