#include "overlayblender.h"

extern "C" {
#include <libavutil/frame.h>
}

#include <algorithm>
#include <cstring>

namespace {

struct Coefficients
{
    double kr;
    double kb;
};

Coefficients coefficients(ColorMatrix matrix)
{
    return matrix == ColorMatrix::bt601 ? Coefficients { 0.299, 0.114 } : Coefficients { 0.2126, 0.0722 };
}

std::uint16_t fixed88(double value)
{
    return std::uint16_t(std::lround(value * 256.0));
}

} // namespace

OverlayBlender::OverlayBlender(const QImage &overlay, ColorMatrix matrix)
{
    const QImage source = overlay.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const int width = source.width();
    const int height = source.height();
    const auto [kr, kb] = coefficients(matrix);
    const double kg = 1.0 - kr - kb;

    const auto plane = [](int planeWidth, int planeHeight) {
        const std::size_t samples = std::size_t(planeWidth) * planeHeight;
        return Plane { planeWidth, planeHeight, std::vector<std::uint16_t>(samples),
            std::vector<std::uint16_t>(samples), {}, {} };
    };
    m_planes = { plane(width, height), plane(width / 2, height / 2), plane(width / 2, height / 2) };

    // Premultiplied R'G'B' give premultiplied Y'CbCr directly, since the conversion is affine in them:
    // the offsets 16 and 128 scale with alpha. Colour is the mean over each 2 x 2 block.
    for (int y = 0; y < height / 2; ++y) {
        for (int x = 0; x < width / 2; ++x) {
            double cb = 0;
            double cr = 0;
            double coverage = 0;
            for (int k = 0; k < 4; ++k) {
                const int px = 2 * x + k % 2;
                const int py = 2 * y + k / 2;
                const QRgb pixel = reinterpret_cast<const QRgb *>(source.constScanLine(py))[px];
                const double alpha = qAlpha(pixel) / 255.0;
                const double r = qRed(pixel) / 255.0;
                const double g = qGreen(pixel) / 255.0;
                const double b = qBlue(pixel) / 255.0;
                const double luma = kr * r + kg * g + kb * b;
                const std::size_t i = std::size_t(py) * width + px;
                m_planes[0].premultiplied[i] = fixed88(16.0 * alpha + 219.0 * luma);
                m_planes[0].weight[i] = std::uint16_t(256 - fixed88(alpha));
                cb += 128.0 * alpha + 224.0 * (b - luma) / (2.0 * (1.0 - kb));
                cr += 128.0 * alpha + 224.0 * (r - luma) / (2.0 * (1.0 - kr));
                coverage += alpha;
            }
            const std::size_t j = std::size_t(y) * (width / 2) + x;
            m_planes[1].premultiplied[j] = fixed88(cb / 4.0);
            m_planes[2].premultiplied[j] = fixed88(cr / 4.0);
            m_planes[1].weight[j] = m_planes[2].weight[j] = std::uint16_t(256 - fixed88(coverage / 4.0));
        }
    }
    // Rounding must not lift a sample over what its coverage allows, which keeps the blend in 16 bits.
    for (Plane &plane : m_planes) {
        for (std::size_t i = 0; i < plane.weight.size(); ++i)
            plane.premultiplied[i] = std::min<std::uint16_t>(plane.premultiplied[i], 255 * (256 - plane.weight[i]));
    }
    m_planes[0].findSpans(16);
    m_planes[1].findSpans(8);
    m_planes[2].findSpans(8);
}

void OverlayBlender::Plane::findSpans(int block)
{
    rowStart.assign(std::size_t(height) + 1, 0);
    for (int y = 0; y < height; ++y) {
        rowStart[y] = std::uint32_t(spans.size());
        const std::uint16_t *weights = weight.data() + std::size_t(y) * width;
        for (int x = 0; x < width; x += block) {
            const int end = std::min(width, x + block);
            bool covered = false;
            for (int i = x; i < end && !covered; ++i)
                covered = weights[i] != 256;
            if (!covered)
                continue;
            if (spans.size() > rowStart[y] && spans.back().end == x)
                spans.back().end = end;
            else
                spans.push_back({ x, end });
        }
    }
    rowStart[height] = std::uint32_t(spans.size());
}

// source * weight + premultiplied + 128 stays below 65536, as premultiplied <= 255 * (256 - weight).
void OverlayBlender::Plane::blendRow(int y, const std::uint8_t *source, std::uint8_t *target) const
{
    const std::uint16_t *values = premultiplied.data() + std::size_t(y) * width;
    const std::uint16_t *weights = weight.data() + std::size_t(y) * width;
    for (std::uint32_t s = rowStart[y]; s < rowStart[y + 1]; ++s) {
        for (int x = spans[s].begin; x < spans[s].end; ++x)
            target[x] = std::uint8_t(std::uint16_t(source[x] * weights[x] + values[x] + 128) >> 8);
    }
}

void OverlayBlender::Plane::copyAround(int y, const std::uint8_t *source, std::uint8_t *target) const
{
    int x = 0;
    for (std::uint32_t s = rowStart[y]; s < rowStart[y + 1]; ++s) {
        std::memcpy(target + x, source + x, std::size_t(spans[s].begin - x));
        x = spans[s].end;
    }
    std::memcpy(target + x, source + x, std::size_t(width - x));
}

bool OverlayBlender::isEmpty() const
{
    return m_planes[0].spans.empty();
}

void OverlayBlender::blendInPlace(AVFrame &frame) const
{
    for (int c = 0; c < 3; ++c) {
        const Plane &plane = m_planes[c];
        for (int y = 0; y < plane.height; ++y) {
            if (plane.rowStart[y] == plane.rowStart[y + 1])
                continue;
            std::uint8_t *row = frame.data[c] + std::ptrdiff_t(y) * frame.linesize[c];
            plane.blendRow(y, row, row);
        }
    }
}

void OverlayBlender::blend(const AVFrame &source, AVFrame &target) const
{
    for (int c = 0; c < 3; ++c) {
        const Plane &plane = m_planes[c];
        for (int y = 0; y < plane.height; ++y) {
            const std::uint8_t *from = source.data[c] + std::ptrdiff_t(y) * source.linesize[c];
            std::uint8_t *to = target.data[c] + std::ptrdiff_t(y) * target.linesize[c];
            plane.copyAround(y, from, to);
            plane.blendRow(y, from, to);
        }
    }
}
