#pragma once

#include "avhandles.h"
#include "framepool.h"

#include <QSize>
#include <QTransform>

#include <optional>

/**
 * Draws decoded pictures into the movie's frames: the source picture under its layer transform, on
 * black where it does not reach. A picture that already is the frame (same size, 4:2:0, limited
 * range, identity transform) passes through untouched; a transform that fills the frame exactly is a
 * plain scale; any other transform scales the picture to its size on screen and then maps each frame
 * sample back into it (exact for quarter turns and flips).
 */
class FrameTransformer
{
public:
    /** `transform` maps points of the picture at `naturalSize` to points of the frame. */
    FrameTransformer(QTransform transform, QSize naturalSize, QSize frameSize);

    /** The frame to lay the overlay on: `picture` itself or a new frame from the pool. */
    [[nodiscard]] av::Frame apply(const AVFrame &picture);

private:
    enum class Mode { passThrough, fill, map };

    [[nodiscard]] Mode modeFor(const AVFrame &picture) const;
    [[nodiscard]] SwsContext *scalerFor(const AVFrame &picture, QSize target);
    void map(const AVFrame &scaled, AVFrame &target) const;

    QTransform m_transform;
    QSize m_naturalSize;
    QSize m_frameSize;
    FramePool m_frames;
    std::optional<FramePool> m_scaled;
    QSize m_scaledSize;
    av::Scaler m_scaler;
};
