#pragma once

#include "avhandles.h"
#include "composition.h"

extern "C" {
#include <libavutil/audio_fifo.h>
}

#include <atomic>

class MovieWriter;

/**
 * The sound of a merge: each segment of the audio track decoded from its source's start, resampled
 * for AAC, laid at its place on the timeline (silence in any gap) and encoded. Every failure here is a
 * sound failure, except writing the file.
 */
class AudioTrackRenderer
{
public:
    /** Opens the source and its decoder; throws ExportFailure. */
    explicit AudioTrackRenderer(const CompositionTrack &track);
    ~AudioTrackRenderer();
    AudioTrackRenderer(const AudioTrackRenderer &) = delete;
    AudioTrackRenderer &operator=(const AudioTrackRenderer &) = delete;

    /** The rate and channels the encoder is to take: the source's rate where AAC has it, mono or stereo. */
    [[nodiscard]] int sampleRate() const { return m_rate; }
    [[nodiscard]] const AVChannelLayout &layout() const { return m_layout; }

    /** Writes the whole track through `encoder`; returns early once `stop` is set. Throws ExportFailure. */
    void run(AVCodecContext &encoder, MovieWriter &writer, const std::atomic<bool> &stop);

private:
    void decodeSegment(std::int64_t samples, bool rewind, const std::atomic<bool> &stop);
    void takeFrame(const AVFrame &frame, std::int64_t &wanted);
    void encodeAvailable(bool flush);
    void sendToEncoder(AVFrame *frame);

    CompositionTrack m_track;
    av::Input m_input;
    AVStream *m_stream = nullptr;
    av::Codec m_decoder;
    av::Resampler m_resampler;
    int m_rate = 48000;
    AVChannelLayout m_layout {};
    AVAudioFifo *m_fifo = nullptr;
    AVCodecContext *m_encoder = nullptr;
    MovieWriter *m_writer = nullptr;
    std::int64_t m_produced = 0;
    std::int64_t m_encoded = 0;
};
