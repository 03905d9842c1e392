#include "cgfloattransform.h"

#include <charconv>
#include <cmath>

std::optional<double> CGFloatTransform::fromJSON(const nlohmann::ordered_json &value) const
{
    if (!value.is_number())
        return std::nullopt;
    return value.get<double>();
}

nlohmann::ordered_json CGFloatTransform::toJSON(double value) const
{
    const float narrowed = static_cast<float>(value);
    if (!std::isfinite(narrowed))
        return jsonNumber(narrowed);
    // The shortest decimal text of the float, read back as a double, prints as that same text.
    char text[64];
    const auto printed = std::to_chars(text, text + sizeof text, narrowed);
    double widened = narrowed;
    std::from_chars(text, printed.ptr, widened);
    return jsonNumber(widened);
}

nlohmann::ordered_json jsonNumber(double value)
{
    constexpr double exactIntegers = 9007199254740992.0; // 2^53
    if (std::isfinite(value) && std::trunc(value) == value && std::fabs(value) < exactIntegers)
        return static_cast<std::int64_t>(value);
    return value;
}
