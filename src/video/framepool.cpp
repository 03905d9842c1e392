#include "framepool.h"

extern "C" {
#include <libavutil/imgutils.h>
}

#include <new>

FramePool::FramePool(int width, int height, AVPixelFormat format)
    : m_width(width)
    , m_height(height)
    , m_format(format)
{
    // Rows start on 64-byte boundaries, which the vector code of the scalers and encoders prefers.
    if (av_image_fill_linesizes(m_linesizes, format, FFALIGN(width, 64)) < 0)
        throw std::bad_alloc();
    std::size_t planeSizes[4] = {};
    ptrdiff_t linesizes[4] = { m_linesizes[0], m_linesizes[1], m_linesizes[2], m_linesizes[3] };
    if (av_image_fill_plane_sizes(planeSizes, format, height, linesizes) < 0)
        throw std::bad_alloc();
    std::size_t size = 0;
    for (int i = 0; i < 4; ++i) {
        m_offsets[i] = std::ptrdiff_t(size);
        size += planeSizes[i];
    }
    m_pool = av_buffer_pool_init(size + 64, av_buffer_alloc);
    if (!m_pool)
        throw std::bad_alloc();
}

FramePool::~FramePool()
{
    // The memory goes once the last picture handed out has been released.
    av_buffer_pool_uninit(&m_pool);
}

av::Frame FramePool::get()
{
    av::Frame frame = av::makeFrame();
    frame->buf[0] = av_buffer_pool_get(m_pool);
    if (!frame->buf[0])
        throw std::bad_alloc();
    frame->width = m_width;
    frame->height = m_height;
    frame->format = m_format;
    for (int i = 0; i < 4 && m_linesizes[i]; ++i) {
        frame->data[i] = frame->buf[0]->data + m_offsets[i];
        frame->linesize[i] = m_linesizes[i];
    }
    return frame;
}
