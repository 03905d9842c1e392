#include "videotrackrenderer.h"

#include "exporterror.h"
#include "frameimage.h"
#include "framepool.h"
#include "moviewriter.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <limits>
#include <thread>

namespace {

constexpr bool picture = false;
// Decoded pictures waiting for the overlay; enough to ride over the encoder's uneven pace.
constexpr std::size_t queueLength = 4;

ColorMatrix matrixOf(const AVCodecContext &decoder)
{
    switch (decoder.colorspace) {
    case AVCOL_SPC_BT470BG:
    case AVCOL_SPC_SMPTE170M:
        return ColorMatrix::bt601;
    case AVCOL_SPC_UNSPECIFIED:
        return decoder.height < 720 ? ColorMatrix::bt601 : ColorMatrix::bt709;
    default:
        return ColorMatrix::bt709;
    }
}

// How many frames of a constant rate, at most `frameCount`, start before `time`.
int framesBefore(double time, double frameDuration, int frameCount)
{
    if (std::isnan(time) || !(frameDuration > 0))
        return 0;
    if (std::isinf(time) || time / frameDuration >= frameCount)
        return frameCount;
    return std::clamp(int(std::ceil(time / frameDuration - 1e-9)), 0, frameCount);
}

} // namespace

VideoTrackRenderer::VideoTrackRenderer(
    const CompositionTrack &track, const VideoComposition &composition, QSize naturalSize)
    : m_input(av::openInput(track.source.path))
    , m_frameSize(VideoComposition::frameSize(composition.renderSize))
    , m_frameDuration(composition.frameDuration.seconds())
    , m_transformer(composition.instruction.layerInstruction.transform, naturalSize, m_frameSize)
{
    if (!m_input || track.source.streamIndex < 0 || unsigned(track.source.streamIndex) >= m_input->nb_streams)
        throwIfFailed(AVERROR_INVALIDDATA, picture, "opening the video");
    for (unsigned i = 0; i < m_input->nb_streams; ++i)
        m_input->streams[i]->discard = int(i) == track.source.streamIndex ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    m_stream = m_input->streams[track.source.streamIndex];
    int error = 0;
    m_decoder = av::openDecoder(*m_stream, 0, &error);
    throwIfFailed(error, picture, "opening the video's decoder");
    m_matrix = matrixOf(*m_decoder);
    // The layer instruction hides the picture from the video's duration on; no frame is written there.
    const double duration = composition.instruction.layerInstruction.hiddenFrom.seconds();
    m_frameCount = framesBefore(duration, m_frameDuration, std::numeric_limits<int>::max());
    if (m_frameCount <= 0)
        throwIfFailed(AVERROR_INVALIDDATA, picture, "the video has no duration");
    m_blender.emplace(composition.layer.videoAndParent(), m_matrix);
}

void VideoTrackRenderer::decode(BoundedQueue<Entry> &queue, const std::atomic<bool> &stop)
{
    const av::Packet packet = av::makePacket();
    const av::Frame frame = av::makeFrame();
    av::Frame shown; // the latest decoded picture, not yet handed on
    double shownTime = 0;
    int next = 0;
    bool draining = false;
    // Hands `shown` on for the frames before `until`; a picture no frame falls on is dropped undrawn.
    const auto handOn = [&](double until) {
        const int end = framesBefore(until, m_frameDuration, m_frameCount);
        if (shown && end > next && !queue.push({ next, end - next, m_transformer.apply(*shown) }))
            return false;
        next = std::max(next, end);
        return true;
    };
    while (!stop && next < m_frameCount) {
        if (!draining) {
            const int read = av_read_frame(m_input.get(), packet.get());
            if (read == AVERROR_EOF) {
                draining = true;
                avcodec_send_packet(m_decoder.get(), nullptr);
            } else {
                throwIfFailed(read, picture, "reading the video");
                const int sent
                    = packet->stream_index == m_stream->index ? avcodec_send_packet(m_decoder.get(), packet.get()) : 0;
                av_packet_unref(packet.get());
                // A damaged packet costs a picture, which the previous one stands in for: the export
                // has no way to retry the picture, so it goes on.
                if (sent != AVERROR_INVALIDDATA)
                    throwIfFailed(sent, picture, "decoding the video");
            }
        }
        for (;;) {
            const int received = avcodec_receive_frame(m_decoder.get(), frame.get());
            if (received == AVERROR(EAGAIN))
                break;
            if (received == AVERROR_EOF) {
                if (!shown)
                    throwIfFailed(AVERROR_INVALIDDATA, picture, "the video has no pictures");
                handOn(INFINITY);
                return;
            }
            if (received == AVERROR_INVALIDDATA)
                break;
            throwIfFailed(received, picture, "decoding the video");
            const std::int64_t timestamp = frame->best_effort_timestamp;
            const double time = timestamp == AV_NOPTS_VALUE ? shownTime + m_frameDuration
                                                            : double(timestamp) * av_q2d(m_stream->time_base);
            // The first picture also stands for any frame before it.
            if (shown && !handOn(time))
                return;
            shown = av::reference(*frame);
            shownTime = time;
            av_frame_unref(frame.get());
        }
    }
}

void VideoTrackRenderer::encode(AVCodecContext &encoder, MovieWriter &writer, AVFrame *frame)
{
    throwIfFailed(avcodec_send_frame(&encoder, frame), picture, "encoding the video");
    const av::Packet packet = av::makePacket();
    for (;;) {
        const int received = avcodec_receive_packet(&encoder, packet.get());
        if (received == AVERROR(EAGAIN) || received == AVERROR_EOF)
            return;
        throwIfFailed(received, picture, "encoding the video");
        writer.write(*packet, encoder);
        av_packet_unref(packet.get());
    }
}

std::vector<int> VideoTrackRenderer::framesSpreadEvenly(int count) const
{
    std::vector<int> frames;
    for (const double time : evenlySpreadTimes(m_frameCount * m_frameDuration, count))
        frames.push_back(std::min(m_frameCount - 1, int(std::floor(time / m_frameDuration + 1e-9))));
    return frames;
}

void VideoTrackRenderer::run(AVCodecContext &encoder, MovieWriter &writer, const std::optional<FrameTap> &tap,
    const std::atomic<bool> &stop, std::atomic<int> &written)
{
    BoundedQueue<Entry> queue(queueLength);
    std::exception_ptr decodeFailure;
    std::thread decoder([&] {
        try {
            decode(queue, stop);
        } catch (...) {
            decodeFailure = std::current_exception();
        }
        queue.close();
    });

    const std::vector<int> tapFrames = framesSpreadEvenly(tap ? tap->frameCount : 0);
    // Key frames fall on the GIF's frames, so that making the GIF of this movie decodes those alone.
    const std::vector<int> gifFrames = framesSpreadEvenly(gifFrameCount);
    std::size_t tapped = 0;
    FramePool outputs(m_frameSize.width(), m_frameSize.height(), AV_PIX_FMT_YUV420P);
    try {
        while (std::optional<Entry> entry = queue.pop()) {
            if (stop)
                break;
            av::Frame frame = std::move(entry->picture);
            if (av_frame_is_writable(frame.get())) {
                m_blender->blendInPlace(*frame);
            } else if (!m_blender->isEmpty()) {
                av::Frame blended = outputs.get();
                m_blender->blend(*frame, *blended);
                frame = std::move(blended);
            }
            frame->colorspace = m_matrix == ColorMatrix::bt709 ? AVCOL_SPC_BT709 : AVCOL_SPC_SMPTE170M;
            frame->color_range = AVCOL_RANGE_MPEG;
            for (int n = entry->first; n < entry->first + entry->count; ++n) {
                for (; tapped < tapFrames.size() && tapFrames[tapped] == n; ++tapped)
                    tap->take(int(tapped), frameToImage(*frame, tap->size));
                const bool key = std::binary_search(gifFrames.begin(), gifFrames.end(), n);
                frame->pict_type = key ? AV_PICTURE_TYPE_I : AV_PICTURE_TYPE_NONE;
                frame->pts = n;
                encode(encoder, writer, frame.get());
                written = n + 1;
            }
        }
        if (!stop && !decodeFailure)
            encode(encoder, writer, nullptr);
    } catch (...) {
        queue.cancel();
        decoder.join();
        throw;
    }
    queue.cancel();
    decoder.join();
    if (decodeFailure)
        std::rethrow_exception(decodeFailure);
}
