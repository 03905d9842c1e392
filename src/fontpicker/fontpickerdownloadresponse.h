#pragma once

#include "fontpickerdownloadfonts.h"
#include "recordlist.h"

/** The answer of `getAllFontsByCatalogId`. */
struct FontpickerDownloadResponse
{
    RecordList<FontpickerDownloadFonts> downloadFonts;

    template<class Map> void mapping(Map &map) { map("downloadFonts", downloadFonts); }
};
