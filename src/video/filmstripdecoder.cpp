#include "filmstripdecoder.h"

#include "avhandles.h"

extern "C" {
#include <libavutil/display.h>
}

#include <QTransform>

#include <cmath>

namespace FilmstripDecoder {

namespace {

double durationOf(const AVFormatContext &context, const AVStream &video)
{
    if (video.duration > 0)
        return double(video.duration) * av_q2d(video.time_base);
    return context.duration > 0 ? double(context.duration) / AV_TIME_BASE : 0.0;
}

// The turn that shows the picture upright, clockwise in degrees, from the stream's display matrix.
double uprightTurn(const AVStream &video)
{
    const auto *matrix
        = reinterpret_cast<const int32_t *>(av_stream_get_side_data(&video, AV_PKT_DATA_DISPLAYMATRIX, nullptr));
    return matrix ? -av_display_rotation_get(matrix) : 0.0;
}

// One decoded picture as an upright image `height` pixels high.
QImage toImage(const AVFrame &frame, int height, double turn, av::Scaler &scaler)
{
    const bool sideways = std::lround(std::abs(turn)) % 180 == 90;
    const double aspect = frame.sample_aspect_ratio.num > 0 ? av_q2d(frame.sample_aspect_ratio) : 1.0;
    const double shownWidth = frame.width * aspect;
    // Scaled before the turn: a sideways picture's width becomes the strip's height.
    const double scale = double(height) / (sideways ? shownWidth : frame.height);
    const int width = std::max(1, int(std::lround(shownWidth * scale)));
    const int scaledHeight = std::max(1, int(std::lround(frame.height * scale)));
    scaler.reset(sws_getCachedContext(scaler.release(), frame.width, frame.height, AVPixelFormat(frame.format), width,
        scaledHeight, AV_PIX_FMT_RGB32, SWS_BILINEAR, nullptr, nullptr, nullptr));
    if (!scaler)
        return {};
    QImage image(width, scaledHeight, QImage::Format_RGB32);
    uint8_t *planes[4] = { image.bits(), nullptr, nullptr, nullptr };
    const int strides[4] = { int(image.bytesPerLine()), 0, 0, 0 };
    sws_scale(scaler.get(), frame.data, frame.linesize, 0, frame.height, planes, strides);
    return std::lround(turn) % 360 == 0 ? image : image.transformed(QTransform().rotate(turn));
}

} // namespace

MovieInfo probe(const QString &path)
{
    const av::Input input = av::openInput(path);
    if (!input)
        return {};
    const int index = av_find_best_stream(input.get(), AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    if (index < 0 || !avcodec_find_decoder(input->streams[index]->codecpar->codec_id))
        return {};
    const AVStream &video = *input->streams[index];
    return { durationOf(*input, video), video.avg_frame_rate.num > 0 ? av_q2d(video.avg_frame_rate) : 0.0 };
}

void decode(const QString &path, int count, int height, const std::function<bool(int index, const QImage &)> &deliver)
{
    const av::Input input = av::openInput(path);
    if (!input || count <= 0)
        return;
    const int index = av_find_best_stream(input.get(), AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    if (index < 0)
        return;
    AVStream *video = input->streams[index];
    for (unsigned i = 0; i < input->nb_streams; ++i)
        input->streams[i]->discard = int(i) == index ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    int code = 0;
    const av::Codec decoder = av::openDecoder(*video, 0, &code);
    if (!decoder)
        return;
    // A strip of small pictures needs neither the loop filter's smoothing nor the pictures that no other
    // refers to (a slot shows the next picture kept instead); skipping both makes the strip come sooner.
    decoder->skip_loop_filter = AVDISCARD_ALL;
    decoder->skip_frame = AVDISCARD_NONREF;
    const double turn = uprightTurn(*video);
    const double duration = durationOf(*input, *video);
    const int64_t start = video->start_time == AV_NOPTS_VALUE ? 0 : video->start_time;
    av::Scaler scaler;
    const av::Packet packet = av::makePacket();
    const av::Frame frame = av::makeFrame();
    int64_t lastRead = INT64_MIN; // decoding time of the last packet read
    bool atEnd = false;

    for (int i = 0; i < count && !atEnd; ++i) {
        const int64_t target = start
            + av_rescale_q(std::llround((i + 0.5) * duration / count * AV_TIME_BASE), AV_TIME_BASE_Q, video->time_base);
        // Reading on is cheaper than a seek while the target's key frame is behind what was read.
        const AVIndexEntry *key = avformat_index_get_entry_from_timestamp(video, target, AVSEEK_FLAG_BACKWARD);
        if (!key || key->timestamp > lastRead) {
            if (av_seek_frame(input.get(), index, target, AVSEEK_FLAG_BACKWARD) < 0)
                return;
            avcodec_flush_buffers(decoder.get());
        }
        bool found = false;
        while (!found) {
            code = avcodec_receive_frame(decoder.get(), frame.get());
            if (code == AVERROR(EAGAIN)) {
                code = av_read_frame(input.get(), packet.get());
                if (code < 0) {
                    avcodec_send_packet(decoder.get(), nullptr); // the last pictures, held for reordering
                } else {
                    lastRead = packet->dts == AV_NOPTS_VALUE ? packet->pts : packet->dts;
                    avcodec_send_packet(decoder.get(), packet.get());
                    av_packet_unref(packet.get());
                }
                continue;
            }
            if (code < 0) {
                atEnd = true; // past the last picture: the strip keeps what it has
                break;
            }
            found = frame->best_effort_timestamp == AV_NOPTS_VALUE || frame->best_effort_timestamp >= target;
            if (found && !deliver(i, toImage(*frame, height, turn, scaler)))
                return;
            av_frame_unref(frame.get());
        }
    }
}

} // namespace FilmstripDecoder
