#include "mediatime.h"

#include <cmath>
#include <limits>

MediaTime MediaTime::make(std::int64_t value, std::int32_t timescale)
{
    return { value, timescale, timescale > 0 };
}

MediaTime MediaTime::fromSeconds(double seconds, std::int32_t preferredTimescale)
{
    if (preferredTimescale <= 0 || !std::isfinite(seconds))
        return {};
    const double value = std::round(seconds * preferredTimescale);
    if (std::abs(value) >= double(std::numeric_limits<std::int64_t>::max()))
        return {};
    return make(std::int64_t(value), preferredTimescale);
}

double MediaTime::seconds() const
{
    return valid ? double(value) / timescale : std::numeric_limits<double>::quiet_NaN();
}

MediaTime MediaTime::operator+(const MediaTime &other) const
{
    if (!valid || !other.valid)
        return {};
    if (timescale == other.timescale)
        return make(value + other.value, timescale);
    const std::int32_t finer = timescale > other.timescale ? timescale : other.timescale;
    return fromSeconds(seconds() + other.seconds(), finer);
}
