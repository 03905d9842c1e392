#include "pixelkernels.h"
#include "rounding.h"

#include "colormatrix.h"
#include "colorramp.h"
#include "colorrow.h"
#include "scanlines.h"

#include <algorithm>
#include <cmath>

namespace PixelKernels {

namespace {

QImage premultiplied(const QImage &source)
{
    return source.format() == QImage::Format_ARGB32_Premultiplied
        ? source
        : source.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage blankLike(const QImage &in)
{
    QImage out(in.size(), QImage::Format_ARGB32_Premultiplied);
    out.setDevicePixelRatio(in.devicePixelRatio());
    return out;
}

/** The lines of a pass. Pointers are taken once: QImage::scanLine() must not run on several threads at once. */
struct Lines
{
    const uchar *inBits;
    qsizetype inStride;
    uchar *outBits;
    qsizetype outStride;

    [[nodiscard]] const QRgb *in(int y) const { return reinterpret_cast<const QRgb *>(inBits + y * inStride); }
    [[nodiscard]] QRgb *out(int y) const { return reinterpret_cast<QRgb *>(outBits + y * outStride); }
};

/** Runs `work(lines, begin, end)` on bands of lines in parallel and gives the picture they wrote. */
template<class BandWork> QImage bandPass(const QImage &source, BandWork work)
{
    const QImage in = premultiplied(source);
    if (in.isNull())
        return {};
    QImage out = blankLike(in);
    const Lines lines { in.constBits(), in.bytesPerLine(), out.bits(), out.bytesPerLine() };
    ScanLines::forEachBand(in.height(), [&](int begin, int end) { work(lines, begin, end); });
    return out;
}

/** Runs `kernel(in, out, y)` on every line. */
template<class Kernel> QImage linePass(const QImage &source, Kernel kernel)
{
    return bandPass(source, [&](const Lines &lines, int begin, int end) {
        for (int y = begin; y < end; ++y)
            kernel(lines.in(y), lines.out(y), y);
    });
}

/** Runs `kernel(row, y)` on every line read as colour planes; each band reuses one row. */
template<class Kernel> QImage colorPass(const QImage &source, Kernel kernel)
{
    return bandPass(source, [&, width = source.width()](const Lines &lines, int begin, int end) {
        ColorRow row(width);
        for (int y = begin; y < end; ++y) {
            row.load(lines.in(y));
            kernel(row, y);
            row.store(lines.out(y));
        }
    });
}

/** Each of the four premultiplied bytes times k / 256, two at a time; k is in 0..256. */
inline QRgb scaled(QRgb p, quint32 k)
{
    const quint32 redBlue = (((p & 0x00FF00FFU) * k) >> 8) & 0x00FF00FFU;
    const quint32 alphaGreen = (((p >> 8) & 0x00FF00FFU) * k) & 0xFF00FF00U;
    return alphaGreen | redBlue;
}

} // namespace

QImage colorMatrix(const QImage &source, const ColorMatrix &matrix)
{
    const auto &m = matrix.m;
    const auto &o = matrix.offset;
    return colorPass(source, [&](ColorRow &row, int) {
        float *__restrict r = row.r.data();
        float *__restrict g = row.g.data();
        float *__restrict b = row.b.data();
        for (int x = 0; x < row.width; ++x) {
            const float red = r[x], green = g[x], blue = b[x];
            r[x] = m[0][0] * red + m[0][1] * green + m[0][2] * blue + o[0];
            g[x] = m[1][0] * red + m[1][1] * green + m[1][2] * blue + o[1];
            b[x] = m[2][0] * red + m[2][1] * green + m[2][2] * blue + o[2];
        }
    });
}

QImage posterize(const QImage &source, int levels)
{
    const float count = float(std::max(2, levels));
    const float step = 1.0F / (count - 1.0F);
    return colorPass(source, [&](ColorRow &row, int) {
        for (std::vector<float> *plane : { &row.r, &row.g, &row.b }) {
            float *__restrict c = plane->data();
            // Truncation is the floor here: colours are not negative.
            for (int x = 0; x < row.width; ++x)
                c[x] = std::min(float(int(c[x] * count)), count - 1.0F) * step;
        }
    });
}

QImage luminanceRamp(const QImage &source, const ColorRamp &ramp)
{
    const auto &w = ColorMatrix::luminance;
    return colorPass(source, [&](ColorRow &row, int) {
        for (int x = 0; x < row.width; ++x) {
            const float luminance = w[0] * row.r[x] + w[1] * row.g[x] + w[2] * row.b[x];
            const int i
                = std::clamp(roundNonNegative(luminance * float(ColorRamp::steps - 1)), 0, ColorRamp::steps - 1);
            const auto &color = ramp.at(i);
            row.r[x] = color[0];
            row.g[x] = color[1];
            row.b[x] = color[2];
        }
    });
}

QImage vignette(const QImage &source, float radius, float intensity)
{
    const float cx = float(source.width()) / 2.0F;
    const float cy = float(source.height()) / 2.0F;
    // The corners lie off axis at an angle whose tangent is radius / 6: at (3, 2) they keep about a third of
    // their light and the middle of the long sides about two fifths.
    const float spread = (radius / 6.0F) * (radius / 6.0F) / std::max(1.0F, cx * cx + cy * cy);
    return colorPass(source, [=](ColorRow &row, int y) {
        const float dy = float(y) + 0.5F - cy;
        float *__restrict r = row.r.data();
        float *__restrict g = row.g.data();
        float *__restrict b = row.b.data();
        const int n = row.width;
        for (int x = 0; x < n; ++x) {
            const float dx = float(x) + 0.5F - cx;
            const float cosine2 = 1.0F / (1.0F + (dx * dx + dy * dy) * spread);
            const float light = std::min(std::max(1.0F - intensity * (1.0F - cosine2 * cosine2), 0.0F), 1.0F);
            r[x] *= light;
            g[x] *= light;
            b[x] *= light;
        }
    });
}

QImage fade(const QImage &source, qreal opacity)
{
    const auto k = quint32(std::lround(std::clamp(opacity, 0.0, 1.0) * 256.0));
    const int width = source.width();
    return linePass(source, [&](const QRgb *in, QRgb *out, int) {
        const int n = width; // a local count: the stores could otherwise alias it
        for (int x = 0; x < n; ++x)
            out[x] = scaled(in[x], k);
    });
}

QImage maskedBy(const QImage &source, const QImage &mask)
{
    const QImage alpha = mask.format() == QImage::Format_Alpha8 ? mask : mask.convertToFormat(QImage::Format_Alpha8);
    if (alpha.size() != source.size())
        return {};
    const uchar *maskBits = alpha.constBits();
    const qsizetype maskStride = alpha.bytesPerLine();
    const int width = source.width();
    return linePass(source, [&](const QRgb *in, QRgb *out, int y) {
        const uchar *m = maskBits + y * maskStride;
        const int n = width;
        for (int x = 0; x < n; ++x)
            out[x] = scaled(in[x], quint32(m[x]) + (quint32(m[x]) >> 7));
    });
}

} // namespace PixelKernels
