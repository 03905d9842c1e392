#include "frametransformer.h"

extern "C" {
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

constexpr int maximumSide = 8192;

bool near(double a, double b)
{
    return std::abs(a - b) < 1e-6;
}

// One plane of `source` resampled into `target` through `toSource`, which maps the centre of a target
// sample to a continuous source position; samples that fall outside the source get `fill`.
void mapPlane(const uint8_t *source, int sourceLinesize, int sourceWidth, int sourceHeight, uint8_t *target,
    int targetLinesize, int targetWidth, int targetHeight, const QTransform &toSource, uint8_t fill)
{
    // Positions step in 40.24 fixed point: exact enough over a row that a quarter turn lands on whole
    // samples and copies them.
    constexpr double one = double(1 << 24);
    const auto fixed = [](double value) { return std::int64_t(std::llround(value * one)); };
    const std::int64_t stepX = fixed(toSource.m11());
    const std::int64_t stepY = fixed(toSource.m12());
    const std::int64_t limitX = std::int64_t(sourceWidth) << 24;
    const std::int64_t limitY = std::int64_t(sourceHeight) << 24;
    for (int y = 0; y < targetHeight; ++y) {
        const QPointF start = toSource.map(QPointF(0.5, y + 0.5));
        std::int64_t u = fixed(start.x());
        std::int64_t v = fixed(start.y());
        uint8_t *out = target + std::ptrdiff_t(y) * targetLinesize;
        for (int x = 0; x < targetWidth; ++x, u += stepX, v += stepY) {
            if (u < 0 || v < 0 || u >= limitX || v >= limitY) {
                out[x] = fill;
                continue;
            }
            // Sample centres sit at half positions; weights in 1/256.
            const std::int64_t su = std::max<std::int64_t>(0, ((u - (1 << 23)) + (1 << 15)) >> 16);
            const std::int64_t sv = std::max<std::int64_t>(0, ((v - (1 << 23)) + (1 << 15)) >> 16);
            const int x0 = int(su >> 8);
            const int y0 = int(sv >> 8);
            const int fx = int(su & 255);
            const int fy = int(sv & 255);
            const int x1 = std::min(x0 + 1, sourceWidth - 1);
            const int y1 = std::min(y0 + 1, sourceHeight - 1);
            const uint8_t *row0 = source + std::ptrdiff_t(y0) * sourceLinesize;
            const uint8_t *row1 = source + std::ptrdiff_t(y1) * sourceLinesize;
            const int top = row0[x0] * (256 - fx) + row0[x1] * fx;
            const int bottom = row1[x0] * (256 - fx) + row1[x1] * fx;
            out[x] = uint8_t((top * (256 - fy) + bottom * fy + (1 << 15)) >> 16);
        }
    }
}

bool fullRange(const AVFrame &picture)
{
    return picture.color_range == AVCOL_RANGE_JPEG || picture.format == AV_PIX_FMT_YUVJ420P;
}

} // namespace

FrameTransformer::FrameTransformer(QTransform transform, QSize naturalSize, QSize frameSize)
    : m_transform(transform)
    , m_naturalSize(naturalSize)
    , m_frameSize(frameSize)
    , m_frames(frameSize.width(), frameSize.height(), AV_PIX_FMT_YUV420P)
{ }

FrameTransformer::Mode FrameTransformer::modeFor(const AVFrame &picture) const
{
    const QTransform &t = m_transform;
    const bool scaleOnly
        = near(t.m12(), 0) && near(t.m21(), 0) && near(t.dx(), 0) && near(t.dy(), 0) && t.m11() > 0 && t.m22() > 0;
    if (!scaleOnly)
        return Mode::map;
    const QSizeF drawn(m_naturalSize.width() * t.m11(), m_naturalSize.height() * t.m22());
    if (std::abs(drawn.width() - m_frameSize.width()) > 1 || std::abs(drawn.height() - m_frameSize.height()) > 1)
        return Mode::map;
    if (picture.width == m_frameSize.width() && picture.height == m_frameSize.height()
        && picture.format == AV_PIX_FMT_YUV420P && !fullRange(picture))
        return Mode::passThrough;
    return Mode::fill;
}

SwsContext *FrameTransformer::scalerFor(const AVFrame &picture, QSize target)
{
    m_scaler.reset(
        sws_getCachedContext(m_scaler.release(), picture.width, picture.height, AVPixelFormat(picture.format),
            target.width(), target.height(), AV_PIX_FMT_YUV420P, SWS_BICUBIC, nullptr, nullptr, nullptr));
    if (m_scaler) {
        // Keep the source's matrix; only the range changes, to the limited range of the movie.
        int *inverse = nullptr;
        int *table = nullptr;
        int sourceRange = 0;
        int targetRange = 0;
        int brightness = 0;
        int contrast = 0;
        int saturation = 0;
        sws_getColorspaceDetails(
            m_scaler.get(), &inverse, &sourceRange, &table, &targetRange, &brightness, &contrast, &saturation);
        sws_setColorspaceDetails(
            m_scaler.get(), inverse, fullRange(picture) ? 1 : 0, table, 0, brightness, contrast, saturation);
    }
    return m_scaler.get();
}

av::Frame FrameTransformer::apply(const AVFrame &picture)
{
    const Mode mode = modeFor(picture);
    if (mode == Mode::passThrough)
        return av::pictureReference(picture);
    av::Frame frame = m_frames.get();
    if (mode == Mode::fill) {
        if (SwsContext *scaler = scalerFor(picture, m_frameSize))
            sws_scale(scaler, picture.data, picture.linesize, 0, picture.height, frame->data, frame->linesize);
        return frame;
    }
    // The picture at its size on screen in its own orientation: the lengths of the transformed axes.
    const QTransform &t = m_transform;
    const double scaleX = std::hypot(t.m11(), t.m12());
    const double scaleY = std::hypot(t.m21(), t.m22());
    const QSize scaledSize(std::clamp(int(std::lround(picture.width * scaleX / 2)) * 2, 2, maximumSide),
        std::clamp(int(std::lround(picture.height * scaleY / 2)) * 2, 2, maximumSide));
    if (!m_scaled || m_scaledSize != scaledSize) {
        m_scaled.emplace(scaledSize.width(), scaledSize.height(), AV_PIX_FMT_YUV420P);
        m_scaledSize = scaledSize;
    }
    av::Frame scaled = m_scaled->get();
    SwsContext *scaler = scalerFor(picture, scaledSize);
    if (!scaler || !t.isInvertible()) {
        map(*scaled, *frame); // nothing to draw: all black
        return frame;
    }
    sws_scale(scaler, picture.data, picture.linesize, 0, picture.height, scaled->data, scaled->linesize);
    map(*scaled, *frame);
    return frame;
}

void FrameTransformer::map(const AVFrame &scaled, AVFrame &target) const
{
    const bool drawable = m_transform.isInvertible() && m_naturalSize.width() > 0 && m_naturalSize.height() > 0;
    for (int plane = 0; plane < 3; ++plane) {
        const int factor = plane == 0 ? 1 : 2;
        const int width = target.width / factor;
        const int height = target.height / factor;
        const uint8_t fill = plane == 0 ? 16 : 128;
        if (!drawable) {
            for (int y = 0; y < height; ++y)
                std::memset(target.data[plane] + std::ptrdiff_t(y) * target.linesize[plane], fill, width);
            continue;
        }
        // Frame plane -> frame points -> picture points -> scaled picture plane.
        const QTransform toSource = QTransform::fromScale(factor, factor) * m_transform.inverted()
            * QTransform::fromScale(double(scaled.width) / m_naturalSize.width() / factor,
                double(scaled.height) / m_naturalSize.height() / factor);
        mapPlane(scaled.data[plane], scaled.linesize[plane], scaled.width / factor, scaled.height / factor,
            target.data[plane], target.linesize[plane], width, height, toSource, fill);
    }
}
