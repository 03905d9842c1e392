#include "colorrow.h"

#include <algorithm>

ColorRow::ColorRow(int rowWidth)
    : width(rowWidth)
    , r(size_t(rowWidth))
    , g(size_t(rowWidth))
    , b(size_t(rowWidth))
    , a(size_t(rowWidth))
{ }

void ColorRow::load(const QRgb *line)
{
    float *__restrict red = r.data();
    float *__restrict green = g.data();
    float *__restrict blue = b.data();
    float *__restrict alpha = a.data();
    for (int x = 0; x < width; ++x) {
        const QRgb p = line[x];
        const float pa = float(p >> 24);
        const float inverse = pa > 0.0F ? 1.0F / pa : 0.0F;
        alpha[x] = pa;
        red[x] = float((p >> 16) & 0xFFU) * inverse;
        green[x] = float((p >> 8) & 0xFFU) * inverse;
        blue[x] = float(p & 0xFFU) * inverse;
    }
}

void ColorRow::store(QRgb *line) const
{
    const float *__restrict red = r.data();
    const float *__restrict green = g.data();
    const float *__restrict blue = b.data();
    const float *__restrict alpha = a.data();
    for (int x = 0; x < width; ++x) {
        const float pa = alpha[x];
        // Rounded to the nearest level: a colour read and written unchanged gives back the same bytes.
        const auto channel = [pa](float c) { return quint32(std::clamp(c, 0.0F, 1.0F) * pa + 0.5F); };
        line[x] = (quint32(pa) << 24) | (channel(red[x]) << 16) | (channel(green[x]) << 8) | channel(blue[x]);
    }
}
