#include "colorramp.h"

#include <algorithm>

ColorRamp ColorRamp::through(const QList<std::pair<float, QColor>> &stops)
{
    ColorRamp ramp;
    qsizetype segment = 0;
    for (int i = 0; i < steps; ++i) {
        const float position = float(i) / float(steps - 1);
        while (segment + 2 < stops.size() && position > stops.at(segment + 1).first)
            ++segment;
        const auto &[from, low] = stops.at(segment);
        const auto &[to, high] = stops.at(segment + 1);
        const float t = to > from ? std::clamp((position - from) / (to - from), 0.0F, 1.0F) : 1.0F;
        ramp.m_table[size_t(i)] = { float(low.redF() + (high.redF() - low.redF()) * t),
            float(low.greenF() + (high.greenF() - low.greenF()) * t),
            float(low.blueF() + (high.blueF() - low.blueF()) * t) };
    }
    return ramp;
}
