#pragma once

#include "avhandles.h"

extern "C" {
#include <libavutil/buffer.h>
#include <libavutil/pixfmt.h>
}

/**
 * Pictures of one size and layout whose memory is used again once every reference to a picture has
 * gone, so that a running export allocates no picture memory after its first frames.
 */
class FramePool
{
public:
    FramePool(int width, int height, AVPixelFormat format);
    ~FramePool();
    FramePool(const FramePool &) = delete;
    FramePool &operator=(const FramePool &) = delete;

    /** A picture no one else refers to, with undefined contents. */
    [[nodiscard]] av::Frame get();

private:
    int m_width;
    int m_height;
    AVPixelFormat m_format;
    int m_linesizes[4] = {};
    std::ptrdiff_t m_offsets[4] = {};
    AVBufferPool *m_pool = nullptr;
};
