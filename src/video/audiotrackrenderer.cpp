#include "audiotrackrenderer.h"

#include "exporterror.h"
#include "moviewriter.h"

extern "C" {
#include <libavutil/channel_layout.h>
}

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr bool sound = true;

int aacRateFor(int sourceRate)
{
    const AVCodec *codec = avcodec_find_encoder_by_name("aac");
    for (const int *rate = codec ? codec->supported_samplerates : nullptr; rate && *rate; ++rate) {
        if (*rate == sourceRate)
            return sourceRate;
    }
    return 48000;
}

AVChannelLayout layoutOf(const AVChannelLayout &layout)
{
    AVChannelLayout result {};
    if (layout.order == AV_CHANNEL_ORDER_UNSPEC)
        av_channel_layout_default(&result, layout.nb_channels);
    else
        av_channel_layout_copy(&result, &layout);
    return result;
}

} // namespace

AudioTrackRenderer::AudioTrackRenderer(const CompositionTrack &track)
    : m_track(track)
    , m_input(av::openInput(track.source.path))
{
    if (!m_input || track.source.streamIndex < 0 || unsigned(track.source.streamIndex) >= m_input->nb_streams)
        throwIfFailed(AVERROR_INVALIDDATA, sound, "opening the sound");
    for (unsigned i = 0; i < m_input->nb_streams; ++i)
        m_input->streams[i]->discard = int(i) == track.source.streamIndex ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    m_stream = m_input->streams[track.source.streamIndex];
    int error = 0;
    m_decoder = av::openDecoder(*m_stream, 1, &error);
    throwIfFailed(error, sound, "opening the sound's decoder");
    m_rate = aacRateFor(m_decoder->sample_rate);
    // Mono stays mono; everything else becomes stereo.
    av_channel_layout_default(&m_layout, m_decoder->ch_layout.nb_channels == 1 ? 1 : 2);
}

AudioTrackRenderer::~AudioTrackRenderer()
{
    if (m_fifo)
        av_audio_fifo_free(m_fifo);
    av_channel_layout_uninit(&m_layout);
}

void AudioTrackRenderer::run(AVCodecContext &encoder, MovieWriter &writer, const std::atomic<bool> &stop)
{
    m_encoder = &encoder;
    m_writer = &writer;
    m_fifo = av_audio_fifo_alloc(AV_SAMPLE_FMT_FLTP, m_layout.nb_channels, encoder.frame_size * 4);
    if (!m_fifo)
        throwIfFailed(AVERROR(ENOMEM), sound, "buffering the sound");
    bool rewind = false;
    for (const CompositionSegment &segment : m_track.segments) {
        const std::int64_t start = std::llround(segment.at.seconds() * m_rate);
        if (m_produced < start) {
            // A gap on the timeline stays silent.
            std::vector<float> silence(std::size_t(start - m_produced), 0.0f);
            std::vector<void *> planes(std::size_t(m_layout.nb_channels), silence.data());
            throwIfFailed(av_audio_fifo_write(m_fifo, planes.data(), int(silence.size())), sound, "laying silence");
            m_produced = start;
            encodeAvailable(false);
        }
        decodeSegment(std::llround(segment.length.seconds() * m_rate), rewind, stop);
        rewind = true;
        if (stop)
            return;
    }
    encodeAvailable(true);
}

void AudioTrackRenderer::decodeSegment(std::int64_t samples, bool rewind, const std::atomic<bool> &stop)
{
    if (rewind) {
        const std::int64_t start = m_stream->start_time == AV_NOPTS_VALUE ? 0 : m_stream->start_time;
        throwIfFailed(av_seek_frame(m_input.get(), m_stream->index, start, AVSEEK_FLAG_BACKWARD), sound,
            "going back to the sound's start");
        avcodec_flush_buffers(m_decoder.get());
    }
    // A fresh resampler per segment, so nothing of the previous pass's tail leaks into this one.
    m_resampler.reset();
    std::int64_t wanted = samples;
    const av::Packet packet = av::makePacket();
    const av::Frame frame = av::makeFrame();
    bool draining = false;
    while (wanted > 0 && !stop) {
        if (!draining) {
            const int read = av_read_frame(m_input.get(), packet.get());
            if (read == AVERROR_EOF) {
                draining = true;
                throwIfFailed(avcodec_send_packet(m_decoder.get(), nullptr), sound, "ending the sound");
            } else {
                throwIfFailed(read, sound, "reading the sound");
                const bool ours = packet->stream_index == m_stream->index;
                const int sent = ours ? avcodec_send_packet(m_decoder.get(), packet.get()) : 0;
                av_packet_unref(packet.get());
                throwIfFailed(sent, sound, "decoding the sound");
            }
        }
        for (;;) {
            const int received = avcodec_receive_frame(m_decoder.get(), frame.get());
            if (received == AVERROR(EAGAIN))
                break;
            if (received == AVERROR_EOF)
                return;
            throwIfFailed(received, sound, "decoding the sound");
            takeFrame(*frame, wanted);
            av_frame_unref(frame.get());
            if (wanted <= 0)
                return;
        }
    }
}

void AudioTrackRenderer::takeFrame(const AVFrame &frame, std::int64_t &wanted)
{
    if (!m_resampler) {
        SwrContext *context = nullptr;
        AVChannelLayout input = layoutOf(frame.ch_layout);
        const int made = swr_alloc_set_opts2(&context, &m_layout, AV_SAMPLE_FMT_FLTP, m_rate, &input,
            AVSampleFormat(frame.format), frame.sample_rate, 0, nullptr);
        av_channel_layout_uninit(&input);
        m_resampler.reset(context);
        throwIfFailed(made, sound, "setting up the resampler");
        throwIfFailed(swr_init(context), sound, "setting up the resampler");
    }
    const int capacity = swr_get_out_samples(m_resampler.get(), frame.nb_samples);
    throwIfFailed(capacity, sound, "resampling the sound");
    std::vector<float> buffer(std::size_t(capacity) * m_layout.nb_channels);
    std::vector<uint8_t *> planes(std::size_t(m_layout.nb_channels));
    for (std::size_t c = 0; c < planes.size(); ++c)
        planes[c] = reinterpret_cast<uint8_t *>(buffer.data() + c * std::size_t(capacity));
    const int converted = swr_convert(m_resampler.get(), planes.data(), capacity,
        const_cast<const uint8_t **>(frame.extended_data), frame.nb_samples);
    throwIfFailed(converted, sound, "resampling the sound");
    const int taken = int(std::min<std::int64_t>(converted, wanted));
    throwIfFailed(
        av_audio_fifo_write(m_fifo, reinterpret_cast<void **>(planes.data()), taken), sound, "buffering the sound");
    wanted -= taken;
    m_produced += taken;
    encodeAvailable(false);
}

void AudioTrackRenderer::encodeAvailable(bool flush)
{
    const int frameSize = m_encoder->frame_size;
    while (av_audio_fifo_size(m_fifo) >= frameSize || (flush && av_audio_fifo_size(m_fifo) > 0)) {
        const av::Frame frame = av::makeFrame();
        frame->nb_samples = std::min(frameSize, av_audio_fifo_size(m_fifo));
        frame->format = AV_SAMPLE_FMT_FLTP;
        frame->sample_rate = m_rate;
        throwIfFailed(av_channel_layout_copy(&frame->ch_layout, &m_layout), sound, "encoding the sound");
        throwIfFailed(av_frame_get_buffer(frame.get(), 0), sound, "encoding the sound");
        throwIfFailed(av_audio_fifo_read(m_fifo, reinterpret_cast<void **>(frame->data), frame->nb_samples), sound,
            "encoding the sound");
        frame->pts = m_encoded;
        m_encoded += frame->nb_samples;
        sendToEncoder(frame.get());
    }
    if (flush)
        sendToEncoder(nullptr);
}

void AudioTrackRenderer::sendToEncoder(AVFrame *frame)
{
    throwIfFailed(avcodec_send_frame(m_encoder, frame), sound, "encoding the sound");
    const av::Packet packet = av::makePacket();
    for (;;) {
        const int received = avcodec_receive_packet(m_encoder, packet.get());
        if (received == AVERROR(EAGAIN) || received == AVERROR_EOF)
            return;
        throwIfFailed(received, sound, "encoding the sound");
        m_writer->write(*packet, *m_encoder);
        av_packet_unref(packet.get());
    }
}
