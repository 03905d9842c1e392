#pragma once

#include "avhandles.h"
#include "boundedqueue.h"
#include "composition.h"
#include "frametap.h"
#include "frametransformer.h"
#include "overlayblender.h"
#include "videocomposition.h"

#include <atomic>
#include <optional>

class MovieWriter;

/**
 * The picture of a merge, as a short pipeline: one thread demuxes and decodes the source and draws
 * each picture into the frame size; the calling thread lays the overlay on it and hands it to the
 * encoder, whose own threads do the rest. Output frames are at a constant rate: frame n shows the
 * last source picture whose time is not after n times the frame duration, so pictures of a faster
 * source are dropped and those of a slower one repeated. Nothing after the video's duration is written.
 * The frames a GIF of the movie shows are key frames.
 */
class VideoTrackRenderer
{
public:
    /** Opens the source and its decoder; throws ExportFailure. */
    VideoTrackRenderer(const CompositionTrack &track, const VideoComposition &composition, QSize naturalSize);

    /** The matrix of the movie's pictures: the source's when it is BT.601, else BT.709. */
    [[nodiscard]] ColorMatrix matrix() const { return m_matrix; }
    [[nodiscard]] int frameCount() const { return m_frameCount; }

    /**
     * Writes every frame through `encoder`, counting them in `written`; returns early once `stop` is
     * set. Hands the tap's frames over as they pass. Throws ExportFailure.
     */
    void run(AVCodecContext &encoder, MovieWriter &writer, const std::optional<FrameTap> &tap,
        const std::atomic<bool> &stop, std::atomic<int> &written);

private:
    /** One picture for the output frames first .. first + count - 1. */
    struct Entry
    {
        int first = 0;
        int count = 0;
        av::Frame picture;
    };

    /** The frames shown at `count` times spread evenly over the movie. */
    [[nodiscard]] std::vector<int> framesSpreadEvenly(int count) const;
    void decode(BoundedQueue<Entry> &queue, const std::atomic<bool> &stop);
    void encode(AVCodecContext &encoder, MovieWriter &writer, AVFrame *frame);

    av::Input m_input;
    AVStream *m_stream = nullptr;
    av::Codec m_decoder;
    QSize m_frameSize;
    double m_frameDuration = 0;
    int m_frameCount = 0;
    ColorMatrix m_matrix = ColorMatrix::bt709;
    FrameTransformer m_transformer;
    std::optional<OverlayBlender> m_blender;
};
