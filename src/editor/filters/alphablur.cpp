#include "alphablur.h"

#include "scanlines.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace AlphaBlur {

namespace {

struct Plane
{
    uchar *bits;
    qsizetype stride;
    int width;
    int height;

    [[nodiscard]] uchar *line(int y) const { return bits + y * stride; }
};

/** A box of half-width `radius` along each row, from `in` to `out`. */
void horizontalBox(const Plane &in, const Plane &out, int radius)
{
    const float scale = 1.0F / float(2 * radius + 1);
    ScanLines::forEachBand(in.height, [&](int begin, int end) {
        for (int y = begin; y < end; ++y) {
            const uchar *src = in.line(y);
            uchar *dst = out.line(y);
            int sum = 0;
            for (int x = 0; x <= std::min(radius, in.width - 1); ++x)
                sum += src[x];
            for (int x = 0; x < in.width; ++x) {
                dst[x] = uchar(float(sum) * scale + 0.5F);
                if (x + radius + 1 < in.width)
                    sum += src[x + radius + 1];
                if (x - radius >= 0)
                    sum -= src[x - radius];
            }
        }
    });
}

/** A box of half-width `radius` down each column; bands of columns keep running sums a row wide. */
void verticalBox(const Plane &in, const Plane &out, int radius)
{
    const float scale = 1.0F / float(2 * radius + 1);
    ScanLines::forEachBand(in.width, [&](int begin, int end) {
        const int n = end - begin;
        std::vector<int> sums(size_t(n), 0);
        int *__restrict sum = sums.data();
        const auto add = [&](int y, int sign) {
            const uchar *__restrict src = in.line(y) + begin;
            for (int x = 0; x < n; ++x)
                sum[x] += sign * int(src[x]);
        };
        for (int y = 0; y <= std::min(radius, in.height - 1); ++y)
            add(y, 1);
        for (int y = 0; y < in.height; ++y) {
            uchar *__restrict dst = out.line(y) + begin;
            for (int x = 0; x < n; ++x)
                dst[x] = uchar(float(sum[x]) * scale + 0.5F);
            if (y + radius + 1 < in.height)
                add(y + radius + 1, 1);
            if (y - radius >= 0)
                add(y - radius, -1);
        }
    });
}

} // namespace

QImage gaussian(const QImage &alpha, qreal sigma)
{
    QImage a = alpha.format() == QImage::Format_Alpha8 ? alpha : alpha.convertToFormat(QImage::Format_Alpha8);
    // Three box passes of this width have the variance of the Gaussian.
    const int radius = int(std::lround((std::sqrt(4.0 * sigma * sigma + 1.0) - 1.0) / 2.0));
    if (radius < 1 || a.isNull())
        return a;
    QImage b(a.size(), QImage::Format_Alpha8);
    Plane front { a.bits(), a.bytesPerLine(), a.width(), a.height() };
    Plane back { b.bits(), b.bytesPerLine(), b.width(), b.height() };
    for (int pass = 0; pass < 3; ++pass) {
        horizontalBox(front, back, radius);
        std::swap(front, back);
    }
    for (int pass = 0; pass < 3; ++pass) {
        verticalBox(front, back, radius);
        std::swap(front, back);
    }
    // Six passes: the result is back in the first plane.
    return a;
}

} // namespace AlphaBlur
