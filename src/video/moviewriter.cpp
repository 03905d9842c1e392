#include "moviewriter.h"

#include "exporterror.h"

extern "C" {
#include <libavutil/opt.h>
}

#include <QFile>

#include <cerrno>
#include <cstdio>

namespace {

constexpr const char *videoEncoderName = "libx264";
constexpr const char *audioEncoderName = "aac";
// Key frames at most two seconds apart, so that players seek to any time quickly; the renderer adds the
// ones the GIF needs.
constexpr int keyFrameSeconds = 2;

} // namespace

MovieWriter::MovieWriter(QString path)
    : m_path(std::move(path))
    , m_partPath(m_path + QStringLiteral(".part"))
{
    // A failed allocation shows up in begin() as a failure to create the file.
    avformat_alloc_output_context2(&m_format, nullptr, "mov", nullptr);
}

MovieWriter::~MovieWriter()
{
    if (m_format) {
        if (m_format->pb)
            avio_closep(&m_format->pb);
        avformat_free_context(m_format);
    }
    if (m_begun && !m_finished)
        QFile::remove(m_partPath);
}

bool MovieWriter::encodersAvailable()
{
    return avcodec_find_encoder_by_name(videoEncoderName) && avcodec_find_encoder_by_name(audioEncoderName);
}

AVStream &MovieWriter::addStream(AVCodecContext &encoder)
{
    const bool sound = encoder.codec_type == AVMEDIA_TYPE_AUDIO;
    if (!m_format)
        throwIfFailed(AVERROR(ENOMEM), sound, "creating the movie");
    AVStream *stream = avformat_new_stream(m_format, nullptr);
    if (!stream)
        throwIfFailed(AVERROR(ENOMEM), sound, "adding a stream");
    throwIfFailed(avcodec_parameters_from_context(stream->codecpar, &encoder), sound, "describing a stream");
    stream->time_base = encoder.time_base;
    return *stream;
}

AVCodecContext &MovieWriter::addVideo(QSize frameSize, int frameRate, ColorMatrix matrix, const EncoderSetting &setting)
{
    const AVCodec *codec = avcodec_find_encoder_by_name(videoEncoderName);
    if (!codec)
        throwIfFailed(AVERROR_ENCODER_NOT_FOUND, false, "finding the H.264 encoder");
    m_video.reset(avcodec_alloc_context3(codec));
    if (!m_video)
        throwIfFailed(AVERROR(ENOMEM), false, "making the H.264 encoder");
    AVCodecContext &encoder = *m_video;
    encoder.width = frameSize.width();
    encoder.height = frameSize.height();
    encoder.pix_fmt = AV_PIX_FMT_YUV420P;
    encoder.time_base = AVRational { 1, frameRate };
    encoder.framerate = AVRational { frameRate, 1 };
    encoder.gop_size = frameRate * keyFrameSeconds;
    encoder.sample_aspect_ratio = AVRational { 1, 1 };
    const bool bt709 = matrix == ColorMatrix::bt709;
    encoder.colorspace = bt709 ? AVCOL_SPC_BT709 : AVCOL_SPC_SMPTE170M;
    encoder.color_primaries = bt709 ? AVCOL_PRI_BT709 : AVCOL_PRI_SMPTE170M;
    encoder.color_trc = bt709 ? AVCOL_TRC_BT709 : AVCOL_TRC_SMPTE170M;
    encoder.color_range = AVCOL_RANGE_MPEG;
    // x264 picks its own number of threads from the cores.
    encoder.thread_count = 0;
    if (m_format && (m_format->oformat->flags & AVFMT_GLOBALHEADER))
        encoder.flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    av_opt_set(encoder.priv_data, "preset", setting.preset, 0);
    av_opt_set_double(encoder.priv_data, "crf", setting.crf, 0);
    throwIfFailed(avcodec_open2(&encoder, codec, nullptr), false, "opening the H.264 encoder");
    m_videoStream = &addStream(encoder);
    m_videoStream->avg_frame_rate = encoder.framerate;
    return encoder;
}

AVCodecContext &MovieWriter::addAudio(int sampleRate, const AVChannelLayout &layout, const EncoderSetting &setting)
{
    const AVCodec *codec = avcodec_find_encoder_by_name(audioEncoderName);
    if (!codec)
        throwIfFailed(AVERROR_ENCODER_NOT_FOUND, true, "finding the AAC encoder");
    m_audio.reset(avcodec_alloc_context3(codec));
    if (!m_audio)
        throwIfFailed(AVERROR(ENOMEM), true, "making the AAC encoder");
    AVCodecContext &encoder = *m_audio;
    encoder.sample_fmt = AV_SAMPLE_FMT_FLTP;
    encoder.sample_rate = sampleRate;
    throwIfFailed(av_channel_layout_copy(&encoder.ch_layout, &layout), true, "setting the channels");
    encoder.bit_rate = setting.audioBitRate;
    encoder.time_base = AVRational { 1, sampleRate };
    if (m_format && (m_format->oformat->flags & AVFMT_GLOBALHEADER))
        encoder.flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    throwIfFailed(avcodec_open2(&encoder, codec, nullptr), true, "opening the AAC encoder");
    m_audioStream = &addStream(encoder);
    return encoder;
}

void MovieWriter::begin()
{
    if (!m_format)
        throwIfFailed(AVERROR(ENOMEM), false, "creating the movie");
    throwIfFailed(avio_open(&m_format->pb, QFile::encodeName(m_partPath).constData(), AVIO_FLAG_WRITE), false,
        "creating the movie file");
    m_begun = true;
    throwIfFailed(avformat_write_header(m_format, nullptr), false, "writing the movie's header");
}

void MovieWriter::write(AVPacket &packet, const AVCodecContext &encoder)
{
    AVStream *stream = &encoder == m_audio.get() ? m_audioStream : m_videoStream;
    packet.stream_index = stream->index;
    av_packet_rescale_ts(&packet, encoder.time_base, stream->time_base);
    const std::lock_guard lock(m_mutex);
    throwIfFailed(av_interleaved_write_frame(m_format, &packet), false, "writing the movie");
}

void MovieWriter::finish()
{
    throwIfFailed(av_write_trailer(m_format), false, "completing the movie");
    throwIfFailed(avio_closep(&m_format->pb), false, "closing the movie file");
    if (std::rename(QFile::encodeName(m_partPath).constData(), QFile::encodeName(m_path).constData()) != 0)
        throwIfFailed(AVERROR(errno), false, "naming the movie");
    m_finished = true;
}
