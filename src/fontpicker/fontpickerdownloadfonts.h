#pragma once

#include "fontpickerfontlist.h"

/** One font of a catalog as the server sends it, with the fields of a font list entry; `font_url` is its address. */
using FontpickerDownloadFonts = FontpickerFontList;
