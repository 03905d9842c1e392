#include "colorrow.h"
#include "rounding.h"

#include <algorithm>

// The loops below are written to vectorise: no branches, and float to int conversions only.

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
    const int n = width;
    for (int x = 0; x < n; ++x) {
        const QRgb p = line[x];
        const float pa = float(int(p >> 24));
        // A transparent pixel's premultiplied channels are 0 already, so any divisor gives black.
        const float inverse = 1.0F / std::max(pa, 1.0F);
        alpha[x] = pa;
        red[x] = float(int((p >> 16) & 0xFFU)) * inverse;
        green[x] = float(int((p >> 8) & 0xFFU)) * inverse;
        blue[x] = float(int(p & 0xFFU)) * inverse;
    }
}

void ColorRow::store(QRgb *line) const
{
    const float *__restrict red = r.data();
    const float *__restrict green = g.data();
    const float *__restrict blue = b.data();
    const float *__restrict alpha = a.data();
    const int n = width; // a local count: the stores could otherwise alias the member
    for (int x = 0; x < n; ++x) {
        const float pa = alpha[x];
        // Rounded to the nearest level: a colour read and written unchanged gives back the same bytes.
        const int cr = roundNonNegative(std::min(std::max(red[x], 0.0F), 1.0F) * pa);
        const int cg = roundNonNegative(std::min(std::max(green[x], 0.0F), 1.0F) * pa);
        const int cb = roundNonNegative(std::min(std::max(blue[x], 0.0F), 1.0F) * pa);
        line[x] = QRgb((int(pa) << 24) | (cr << 16) | (cg << 8) | cb);
    }
}
