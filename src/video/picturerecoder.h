#pragma once

#include "avhandles.h"

#include <QString>

#include <functional>
#include <memory>

/**
 * The pictures of one run of a movie decoded and encoded again as H.264, for the parts of a cut that are
 * not whole groups of pictures. One decoder serves the whole pass over the movie, fed from a key frame;
 * each run gets an encoder of its own, so that it starts with a key frame and its own parameter sets.
 * The encoder makes no B-frames, so its packets come in the order of their pictures.
 */
class PictureRecoder
{
public:
    /** Takes an encoded packet, times in the stream's time base; false stops the run. */
    using Sink = std::function<bool(AVPacket *packet, QString *error)>;

    /** For the video `stream`, encoding at the constant rate factor `crf`; null with the reason on failure. */
    [[nodiscard]] static std::unique_ptr<PictureRecoder> open(const AVStream &stream, int crf, QString *error);

    /**
     * Starts a run that encodes the pictures shown from `from` up to `to` (stream time). With
     * `globalHeader` the parameter sets go to the encoder's extradata, else before the first picture.
     */
    bool begin(int64_t from, int64_t to, bool globalHeader, Sink sink, QString *error);
    /** The run's encoder, for the stream that takes its packets. */
    [[nodiscard]] const AVCodecContext &encoder() const { return *m_encoder; }
    /** Feeds a packet of the stream in file order. */
    bool decode(const AVPacket &packet, QString *error);
    /** Decodes what the decoder still holds, drains the run's encoder and readies the decoder for a key frame. */
    bool end(QString *error);

private:
    PictureRecoder(const AVStream &stream, av::Codec decoder, int crf);
    bool receiveFrames(QString *error);
    bool encode(const AVFrame *frame, QString *error);

    const AVStream &m_stream;
    av::Codec m_decoder;
    int m_crf;
    av::Codec m_encoder;
    av::Scaler m_scaler;
    av::Frame m_decoded = av::makeFrame();
    av::Frame m_converted;
    av::Packet m_encoded = av::makePacket();
    int64_t m_from = 0;
    int64_t m_to = 0;
    int64_t m_frameDuration = 0;
    Sink m_sink;
};
