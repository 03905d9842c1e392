#pragma once

#include <QtGlobal>

/** The body of `getAllFontsByCatalogId`. */
struct FontpickerDownloadRequest
{
    qint64 catalog_id = 0;

    template<class Map> void mapping(Map &map) { map("catalog_id", catalog_id); }
};
