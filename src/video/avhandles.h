#pragma once

#include <QString>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/frame.h>
#include <libswresample/swresample.h>
#include <libswscale/swscale.h>
}

#include <memory>

/** Owning handles for the FFmpeg objects the video code uses, so that every exit path frees them. */
namespace av {

struct InputDeleter
{
    void operator()(AVFormatContext *context) const { avformat_close_input(&context); }
};
struct CodecDeleter
{
    void operator()(AVCodecContext *context) const { avcodec_free_context(&context); }
};
struct FrameDeleter
{
    void operator()(AVFrame *frame) const { av_frame_free(&frame); }
};
struct PacketDeleter
{
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
};
struct ScalerDeleter
{
    void operator()(SwsContext *context) const { sws_freeContext(context); }
};
struct ResamplerDeleter
{
    void operator()(SwrContext *context) const { swr_free(&context); }
};

using Input = std::unique_ptr<AVFormatContext, InputDeleter>;
using Codec = std::unique_ptr<AVCodecContext, CodecDeleter>;
using Frame = std::unique_ptr<AVFrame, FrameDeleter>;
using Packet = std::unique_ptr<AVPacket, PacketDeleter>;
using Scaler = std::unique_ptr<SwsContext, ScalerDeleter>;
using Resampler = std::unique_ptr<SwrContext, ResamplerDeleter>;

/** FFmpeg's text for an error code. */
[[nodiscard]] QString errorText(int code);

/** A new empty frame or packet; never null (allocation failure ends the process, as for any new). */
[[nodiscard]] Frame makeFrame();
[[nodiscard]] Packet makePacket();

/** A new reference to `frame`. */
[[nodiscard]] Frame reference(const AVFrame &frame);

/**
 * A new reference to the picture of `frame` alone: its planes, size and layout, without its decoder's
 * picture type, flags or side data, which an encoder would otherwise take as orders.
 */
[[nodiscard]] Frame pictureReference(const AVFrame &frame);

/** Opens a file for reading with its stream information; null when it cannot be read as media. */
[[nodiscard]] Input openInput(const QString &path);

/** A decoder for one stream, opened with `threads` threads (0: FFmpeg's choice); null when none fits. */
[[nodiscard]] Codec openDecoder(const AVStream &stream, int threads, int *error);

} // namespace av
