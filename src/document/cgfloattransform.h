#pragma once

#include <nlohmann/json.hpp>

#include <optional>

/**
 * The number transform of the layer records. From JSON it accepts a JSON number only (a numeric
 * string or a boolean gives absent); to JSON it narrows the value to single precision first, so that
 * a value written by the program carries only the digits a 32-bit float holds. Coordinates that went
 * through a snapshot therefore differ from the live ones in the last bits; nothing compares them for
 * equality.
 */
struct CGFloatTransform
{
    [[nodiscard]] std::optional<double> fromJSON(const nlohmann::ordered_json &value) const;
    /** The narrowed value as the JSON number that prints in the shortest form reading back the same float. */
    [[nodiscard]] nlohmann::ordered_json toJSON(double value) const;
};

inline constexpr CGFloatTransform cgFloatTransform;

/** A double as a JSON number: integral values become JSON integers so that they print without ".0". */
[[nodiscard]] nlohmann::ordered_json jsonNumber(double value);
