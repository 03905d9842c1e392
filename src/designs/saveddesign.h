#pragma once

#include "json.h"
#include "savephoto.h"

#include <memory>

/** A stored row with its document read as the list screens read it. */
struct SavedDesign
{
    SavePhoto row;
    std::shared_ptr<Json> document;
};
