#pragma once

/**
 * The nearest whole number of a value that is never negative. Adding a half and truncating is exact for
 * such values and, unlike the library's rounding, vectorises.
 */
[[nodiscard]] inline int roundNonNegative(float value)
{
    return int(value + 0.5F); // NOLINT(bugprone-incorrect-roundings): never negative here
}
