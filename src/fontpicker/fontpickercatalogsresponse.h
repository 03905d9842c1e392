#pragma once

#include "fontpickercatalogs.h"
#include "recordlist.h"

/** The answer of `getCatalogsByTypeInWebp`. */
struct FontpickerCatalogsResponse
{
    RecordList<FontpickerCatalogs> catalogs;

    template<class Map> void mapping(Map &map) { map("catalogs", catalogs); }
};
