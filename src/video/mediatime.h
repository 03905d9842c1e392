#pragma once

#include <cstdint>

/**
 * A point or length on a media timeline: `value` / `timescale` seconds, or invalid. Made from seconds
 * with a preferred timescale; adding an invalid time gives an invalid time, and the seconds of an
 * invalid time are NaN, so that a loop comparing them stops.
 */
struct MediaTime
{
    std::int64_t value = 0;
    std::int32_t timescale = 0;
    bool valid = false;

    [[nodiscard]] static MediaTime make(std::int64_t value, std::int32_t timescale);
    /** Invalid for seconds that are not finite or do not fit the timescale. */
    [[nodiscard]] static MediaTime fromSeconds(double seconds, std::int32_t preferredTimescale);
    [[nodiscard]] static MediaTime zero() { return make(0, 1); }

    [[nodiscard]] double seconds() const;
    /** The sum in the finer of the two timescales. */
    [[nodiscard]] MediaTime operator+(const MediaTime &other) const;
};
