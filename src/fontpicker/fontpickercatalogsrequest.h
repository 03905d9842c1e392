#pragma once

#include <QtGlobal>

/** The body of `getCatalogsByTypeInWebp`; `is_free` is the selector of the FREE and PAID pages. */
struct FontpickerCatalogsRequest
{
    qint64 sub_category_id = 0;
    qint64 is_free = 0;
    qint64 is_featured = 0;

    template<class Map> void mapping(Map &map)
    {
        map("sub_category_id", sub_category_id);
        map("is_free", is_free);
        map("is_featured", is_featured);
    }
};
