#include "picturerecoder.h"

extern "C" {
#include <libavutil/opt.h>
#include <libavutil/pixdesc.h>
}

namespace {

const AVCodec *h264Encoder()
{
    if (const AVCodec *x264 = avcodec_find_encoder_by_name("libx264"))
        return x264;
    return avcodec_find_encoder(AV_CODEC_ID_H264);
}

bool supports(const AVCodec &codec, AVPixelFormat format)
{
    for (const AVPixelFormat *f = codec.pix_fmts; f && *f != AV_PIX_FMT_NONE; ++f) {
        if (*f == format)
            return true;
    }
    return false;
}

bool fail(QString *error, const QString &what, int code)
{
    *error = what + QStringLiteral(": ") + av::errorText(code);
    return false;
}

} // namespace

PictureRecoder::PictureRecoder(const AVStream &stream, av::Codec decoder, int crf)
    : m_stream(stream)
    , m_decoder(std::move(decoder))
    , m_crf(crf)
{
    const AVRational rate = stream.avg_frame_rate.num > 0 ? stream.avg_frame_rate : AVRational { 30, 1 };
    m_frameDuration = std::max<int64_t>(1, av_rescale_q(1, av_inv_q(rate), stream.time_base));
}

std::unique_ptr<PictureRecoder> PictureRecoder::open(const AVStream &stream, int crf, QString *error)
{
    if (!h264Encoder()) {
        *error = QStringLiteral("no H.264 encoder");
        return nullptr;
    }
    int code = 0;
    av::Codec decoder = av::openDecoder(stream, 0, &code);
    if (!decoder) {
        fail(error, QStringLiteral("cannot decode the video"), code);
        return nullptr;
    }
    return std::unique_ptr<PictureRecoder>(new PictureRecoder(stream, std::move(decoder), crf));
}

bool PictureRecoder::begin(int64_t from, int64_t to, bool globalHeader, Sink sink, QString *error)
{
    const AVCodec *codec = h264Encoder();
    av::Codec encoder(avcodec_alloc_context3(codec));
    if (!encoder)
        return fail(error, QStringLiteral("cannot make an encoder"), AVERROR(ENOMEM));
    const AVCodecParameters &source = *m_stream.codecpar;
    const auto format = AVPixelFormat(source.format);
    encoder->width = source.width;
    encoder->height = source.height;
    encoder->pix_fmt = supports(*codec, format) ? format : AV_PIX_FMT_YUV420P;
    encoder->sample_aspect_ratio = source.sample_aspect_ratio;
    encoder->color_range = source.color_range;
    encoder->color_primaries = source.color_primaries;
    encoder->color_trc = source.color_trc;
    encoder->colorspace = source.color_space;
    encoder->time_base = m_stream.time_base;
    if (m_stream.avg_frame_rate.num > 0)
        encoder->framerate = m_stream.avg_frame_rate;
    encoder->max_b_frames = 0;
    encoder->thread_count = 0;
    if (globalHeader)
        encoder->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    AVDictionary *options = nullptr;
    av_dict_set_int(&options, "crf", m_crf, 0);
    av_dict_set(&options, "preset", "fast", 0);
    const int code = avcodec_open2(encoder.get(), codec, &options);
    av_dict_free(&options);
    if (code < 0)
        return fail(error, QStringLiteral("cannot start the H.264 encoder"), code);
    m_encoder = std::move(encoder);
    m_scaler.reset();
    m_from = from;
    m_to = to;
    m_sink = std::move(sink);
    return true;
}

bool PictureRecoder::decode(const AVPacket &packet, QString *error)
{
    const int code = avcodec_send_packet(m_decoder.get(), &packet);
    // A broken packet costs its picture, not the cut.
    if (code < 0 && code != AVERROR_INVALIDDATA)
        return fail(error, QStringLiteral("cannot decode the video"), code);
    return receiveFrames(error);
}

bool PictureRecoder::receiveFrames(QString *error)
{
    for (;;) {
        const int code = avcodec_receive_frame(m_decoder.get(), m_decoded.get());
        if (code == AVERROR(EAGAIN) || code == AVERROR_EOF)
            return true;
        if (code < 0)
            return fail(error, QStringLiteral("cannot decode the video"), code);
        const int64_t pts = m_decoded->best_effort_timestamp;
        bool ok = true;
        if (pts != AV_NOPTS_VALUE && pts >= m_from && pts < m_to) {
            av::Frame picture = av::pictureReference(*m_decoded);
            picture->pts = pts;
            ok = encode(picture.get(), error);
        }
        av_frame_unref(m_decoded.get());
        if (!ok)
            return false;
    }
}

bool PictureRecoder::encode(const AVFrame *frame, QString *error)
{
    if (frame
        && (frame->format != m_encoder->pix_fmt || frame->width != m_encoder->width
            || frame->height != m_encoder->height)) {
        m_scaler.reset(
            sws_getCachedContext(m_scaler.release(), frame->width, frame->height, AVPixelFormat(frame->format),
                m_encoder->width, m_encoder->height, m_encoder->pix_fmt, SWS_BICUBIC, nullptr, nullptr, nullptr));
        m_converted = av::makeFrame();
        m_converted->format = m_encoder->pix_fmt;
        m_converted->width = m_encoder->width;
        m_converted->height = m_encoder->height;
        int code = m_scaler ? av_frame_get_buffer(m_converted.get(), 0) : AVERROR(EINVAL);
        if (code >= 0)
            code = sws_scale_frame(m_scaler.get(), m_converted.get(), frame);
        if (code < 0)
            return fail(error, QStringLiteral("cannot convert a picture"), code);
        m_converted->pts = frame->pts;
        frame = m_converted.get();
    }
    int code = avcodec_send_frame(m_encoder.get(), frame);
    if (code < 0)
        return fail(error, QStringLiteral("cannot encode the video"), code);
    for (;;) {
        code = avcodec_receive_packet(m_encoder.get(), m_encoded.get());
        if (code == AVERROR(EAGAIN) || code == AVERROR_EOF)
            return true;
        if (code < 0)
            return fail(error, QStringLiteral("cannot encode the video"), code);
        if (m_encoded->duration <= 0)
            m_encoded->duration = m_frameDuration;
        const bool ok = m_sink(m_encoded.get(), error);
        av_packet_unref(m_encoded.get());
        if (!ok)
            return false;
    }
}

bool PictureRecoder::end(QString *error)
{
    int code = avcodec_send_packet(m_decoder.get(), nullptr);
    if (code < 0 && code != AVERROR_EOF)
        return fail(error, QStringLiteral("cannot decode the video"), code);
    if (!receiveFrames(error) || !encode(nullptr, error))
        return false;
    avcodec_flush_buffers(m_decoder.get());
    m_encoder.reset();
    return true;
}
