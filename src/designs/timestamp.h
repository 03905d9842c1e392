#pragma once

#include <QString>

/** The current seconds since 1970 as the shortest decimal text of a double, e.g. "1731672000.123456". */
[[nodiscard]] QString secondsSince1970Text();
