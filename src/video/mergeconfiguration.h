#pragma once

#include "placement.h"
#include "quality.h"

#include <QString>

#include <cstdint>

/** How `Merge` writes its movies; the one caller uses 30, Documents, `high` and `stretchFit`. */
struct MergeConfiguration
{
    std::int32_t frameRate = 30;
    /** The folder that receives the movie, without a trailing slash. */
    QString directory;
    Quality quality = Quality::high;
    Placement placement = Placement::stretchFit();
};
