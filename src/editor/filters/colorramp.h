#pragma once

#include <QColor>
#include <QList>

#include <array>
#include <utility>

/**
 * A colour for each luminance, as a table: the false-colour, thermal, X-ray and one-colour looks replace
 * a pixel's colour by the ramp's colour at its luminance.
 */
class ColorRamp
{
public:
    static constexpr int steps = 1024;

    /** Straight lines between the stops (position 0..1, colour), which must start at 0 and end at 1. */
    [[nodiscard]] static ColorRamp through(const QList<std::pair<float, QColor>> &stops);

    /** Red, green and blue at table index i, in 0..1. */
    [[nodiscard]] const std::array<float, 3> &at(int i) const { return m_table[size_t(i)]; }

private:
    std::array<std::array<float, 3>, steps> m_table {};
};
