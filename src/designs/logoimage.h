#pragma once

#include "objectid.h"

#include <QString>

#include <optional>

/** An art that the user imported, as the store hands it out. */
struct LogoImage
{
    std::optional<QString> img_name;
    std::optional<ObjectId> objectID;
};
