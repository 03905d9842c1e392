#include "avhandles.h"

#include <new>

namespace av {

QString errorText(int code)
{
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(code, text, sizeof text);
    return QString::fromUtf8(text);
}

Frame makeFrame()
{
    Frame frame(av_frame_alloc());
    if (!frame)
        throw std::bad_alloc();
    return frame;
}

Packet makePacket()
{
    Packet packet(av_packet_alloc());
    if (!packet)
        throw std::bad_alloc();
    return packet;
}

Frame reference(const AVFrame &frame)
{
    Frame copy = makeFrame();
    if (av_frame_ref(copy.get(), &frame) < 0)
        throw std::bad_alloc();
    return copy;
}

Frame pictureReference(const AVFrame &frame)
{
    Frame picture = makeFrame();
    for (int i = 0; i < AV_NUM_DATA_POINTERS && frame.buf[i]; ++i) {
        picture->buf[i] = av_buffer_ref(frame.buf[i]);
        if (!picture->buf[i])
            throw std::bad_alloc();
    }
    for (int i = 0; i < AV_NUM_DATA_POINTERS; ++i) {
        picture->data[i] = frame.data[i];
        picture->linesize[i] = frame.linesize[i];
    }
    picture->width = frame.width;
    picture->height = frame.height;
    picture->format = frame.format;
    picture->color_range = frame.color_range;
    picture->colorspace = frame.colorspace;
    return picture;
}

Input openInput(const QString &path)
{
    // FFmpeg's own chatter (encoder statistics, stream notes) stays out of the log; its errors stay in.
    static const bool quiet = [] {
        av_log_set_level(AV_LOG_ERROR);
        return true;
    }();
    (void)quiet;
    AVFormatContext *context = nullptr;
    if (avformat_open_input(&context, path.toUtf8().constData(), nullptr, nullptr) < 0)
        return nullptr;
    Input input(context);
    if (avformat_find_stream_info(context, nullptr) < 0)
        return nullptr;
    return input;
}

Codec openDecoder(const AVStream &stream, int threads, int *error)
{
    const AVCodec *codec = avcodec_find_decoder(stream.codecpar->codec_id);
    if (!codec) {
        *error = AVERROR_DECODER_NOT_FOUND;
        return nullptr;
    }
    Codec context(avcodec_alloc_context3(codec));
    if (!context) {
        *error = AVERROR(ENOMEM);
        return nullptr;
    }
    *error = avcodec_parameters_to_context(context.get(), stream.codecpar);
    if (*error < 0)
        return nullptr;
    context->pkt_timebase = stream.time_base;
    context->thread_count = threads;
    context->thread_type = FF_THREAD_FRAME | FF_THREAD_SLICE;
    *error = avcodec_open2(context.get(), codec, nullptr);
    if (*error < 0)
        return nullptr;
    return context;
}

} // namespace av
