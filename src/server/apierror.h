#pragma once

#include <QString>

/** Why a request got no readable answer: no connection, a time-out, or a body that is not a JSON object. */
struct ApiError
{
    QString localizedDescription;
};
