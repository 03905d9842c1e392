#pragma once

#include "objectid.h"

#include <QString>

/** One stored design as the store holds it. */
struct SavePhoto
{
    ObjectId objectID;
    /** The document's JSON text; rows of older versions hold the older snapshot form. */
    QString jsonString;
    /** Seconds since 1970 of the last save, as decimal text; ordered as text. */
    QString updated_at;
    bool is_video = false;
};
