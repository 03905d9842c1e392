#include "alphablur.h"
#include "rounding.h"

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

/**
 * A box of half-width `radius` along each row, from `in` to `out`. Each window is the difference of two
 * running totals of the line, so only the totals are a serial chain and the windows vectorise.
 */
void horizontalBox(const Plane &in, const Plane &out, int radius)
{
    const float scale = 1.0F / float(2 * radius + 1);
    ScanLines::forEachBand(in.height, [&](int begin, int end) {
        const int n = in.width;
        const int window = 2 * radius + 1;
        const float k = scale;
        // totals[i] sums the line's first i - radius pixels, with zeros before and after it.
        std::vector<int> totals(size_t(n + window));
        int *__restrict total = totals.data();
        for (int y = begin; y < end; ++y) {
            const uchar *__restrict src = in.line(y);
            uchar *__restrict dst = out.line(y);
            int running = 0;
            for (int i = 0; i <= radius; ++i)
                total[i] = 0;
            for (int x = 0; x < n; ++x) {
                running += src[x];
                total[x + radius + 1] = running;
            }
            for (int i = n + radius + 1; i < n + window; ++i)
                total[i] = running;
            for (int x = 0; x < n; ++x)
                dst[x] = uchar(roundNonNegative(float(total[x + window] - total[x]) * k));
        }
    });
}

/** A box of half-width `radius` down each column; bands of columns keep running sums a row wide. */
void verticalBox(const Plane &in, const Plane &out, int radius)
{
    const float scale = 1.0F / float(2 * radius + 1);
    ScanLines::forEachBand(in.width, [&](int begin, int end) {
        const int n = end - begin;
        const float k = scale; // a local: byte stores could otherwise alias the captured one
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
                dst[x] = uchar(roundNonNegative(float(sum[x]) * k));
            if (y + radius + 1 < in.height)
                add(y + radius + 1, 1);
            if (y - radius >= 0)
                add(y - radius, -1);
        }
    });
}

/** The half-width of three box passes that have the variance of a Gaussian of deviation `sigma`. */
int boxRadius(qreal sigma)
{
    return int(std::lround((std::sqrt(4.0 * sigma * sigma + 1.0) - 1.0) / 2.0));
}

} // namespace

std::vector<float> gaussian(std::vector<float> line, qreal sigma)
{
    const int radius = boxRadius(sigma);
    const int n = int(line.size());
    if (radius < 1 || n == 0)
        return line;
    const float scale = 1.0F / float(2 * radius + 1);
    std::vector<float> out(line.size());
    for (int pass = 0; pass < 3; ++pass) {
        // Sums in double: a float running sum would drift over a long line.
        const float *in = line.data();
        double sum = 0;
        for (int x = 0; x <= std::min(radius, n - 1); ++x)
            sum += in[x];
        for (int x = 0; x < n; ++x) {
            out.data()[x] = float(sum) * scale;
            if (x + radius + 1 < n)
                sum += in[x + radius + 1];
            if (x - radius >= 0)
                sum -= in[x - radius];
        }
        std::swap(line, out);
    }
    return line;
}

QImage gaussian(const QImage &alpha, qreal sigma)
{
    QImage a = alpha.format() == QImage::Format_Alpha8 ? alpha : alpha.convertToFormat(QImage::Format_Alpha8);
    const int radius = boxRadius(sigma);
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
