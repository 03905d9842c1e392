#include "videotrim.h"

#include "applog.h"
#include "avhandles.h"
#include "h264bytes.h"
#include "movieoutput.h"
#include "picturerecoder.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>
#include <vector>

namespace VideoTrim {

namespace {

// Which packets of the video go where; times in the video stream's time base.
struct Plan
{
    int64_t origin = 0; // the first picture kept, shown at the start time; the output's zero
    int64_t end = 0; // pictures shown from here on are left out
    int64_t seekTarget = 0; // far enough before the origin that its group of pictures is read whole
    bool copy = false; // whether whole groups are copied
    int64_t copyFrom = 0; // the key frame that starts the copy
    int64_t copyFromDts = 0;
    std::optional<int64_t> copyTo; // the key frame that ends it; none: the copy runs to the movie's end
};

int64_t toStreamTime(double seconds, AVRational timeBase)
{
    return av_rescale_q(std::llround(seconds * AV_TIME_BASE), AV_TIME_BASE_Q, timeBase);
}

int64_t frameDuration(const AVStream &video)
{
    const AVRational rate = video.avg_frame_rate.num > 0 ? video.avg_frame_rate : AVRational { 30, 1 };
    return std::max<int64_t>(1, av_rescale_q(1, av_inv_q(rate), video.time_base));
}

bool seekTo(AVFormatContext *context, const AVStream &video, int64_t target, QString *error)
{
    const int code = av_seek_frame(context, video.index, target, AVSEEK_FLAG_BACKWARD);
    if (code < 0)
        *error = QStringLiteral("cannot seek in the movie: %1").arg(av::errorText(code));
    return code >= 0;
}

// The first pass reads the video's packets (without decoding them) from before the start to the end,
// to find the first picture kept and the key frames between.
std::optional<Plan> makePlan(
    AVFormatContext *context, const AVStream &video, int64_t start, int64_t end, bool canCopy, QString *error)
{
    Plan plan;
    plan.end = end;
    plan.seekTarget = start - toStreamTime(1.0, video.time_base);
    if (!seekTo(context, video, plan.seekTarget, error))
        return std::nullopt;
    for (unsigned i = 0; i < context->nb_streams; ++i)
        context->streams[i]->discard = int(i) == video.index ? AVDISCARD_DEFAULT : AVDISCARD_ALL;

    // The picture shown at the start is the one nearest to it, at most half a picture earlier.
    const int64_t earliest = start - frameDuration(video) / 2;
    struct Key
    {
        int64_t pts;
        int64_t dts;
    };
    std::vector<Key> keys;
    int64_t origin = INT64_MAX;
    bool continuesAfterEnd = false;
    const av::Packet packet = av::makePacket();
    int code = 0;
    while ((code = av_read_frame(context, packet.get())) >= 0) {
        const int64_t pts = packet->pts;
        const int64_t dts = packet->dts == AV_NOPTS_VALUE ? pts : packet->dts;
        const bool key = packet->flags & AV_PKT_FLAG_KEY;
        av_packet_unref(packet.get());
        if (pts == AV_NOPTS_VALUE)
            continue;
        if (pts >= earliest && pts < origin)
            origin = pts;
        if (key)
            keys.push_back({ pts, dts });
        continuesAfterEnd = continuesAfterEnd || pts >= end;
        if (dts >= end) // every later picture is shown later still
            break;
    }
    for (unsigned i = 0; i < context->nb_streams; ++i)
        context->streams[i]->discard = AVDISCARD_DEFAULT;
    if (code < 0 && code != AVERROR_EOF) {
        *error = QStringLiteral("cannot read the movie: %1").arg(av::errorText(code));
        return std::nullopt;
    }
    if (origin >= end) {
        *error = QStringLiteral("the movie shows no picture in that range");
        return std::nullopt;
    }
    plan.origin = origin;
    if (!canCopy)
        return plan;
    const auto first = std::find_if(keys.begin(), keys.end(), [&](const Key &k) { return k.pts >= origin; });
    if (first == keys.end() || first->pts >= end)
        return plan;
    plan.copyFrom = first->pts;
    plan.copyFromDts = first->dts;
    if (continuesAfterEnd) {
        const auto last = std::find_if(keys.rbegin(), keys.rend(), [&](const Key &k) { return k.pts <= end; });
        if (last->pts <= plan.copyFrom)
            return plan; // no whole group in the range
        plan.copyTo = last->pts;
    }
    plan.copy = true;
    return plan;
}

// A packet with `packet`'s times and flags and other data.
av::Packet withData(const AVPacket &packet, const QByteArray &data)
{
    av::Packet copy = av::makePacket();
    if (av_new_packet(copy.get(), int(data.size())) < 0 || av_packet_copy_props(copy.get(), &packet) < 0)
        throw std::bad_alloc();
    std::memcpy(copy->data, data.constData(), std::size_t(data.size()));
    return copy;
}

QByteArray bytesOf(const AVPacket &packet)
{
    return QByteArray::fromRawData(reinterpret_cast<const char *>(packet.data), packet.size);
}

} // namespace

QString cut(const Request &request, const Progress &progress)
{
    if (!(request.end > request.start) || request.start < 0)
        return QStringLiteral("the end of the cut must come after its start");
    const av::Input input = av::openInput(request.input);
    if (!input)
        return QStringLiteral("cannot read %1 as a movie").arg(request.input);
    AVFormatContext *context = input.get();
    const int videoIndex = av_find_best_stream(context, AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    if (videoIndex < 0)
        return QStringLiteral("%1 has no video").arg(request.input);
    const AVStream &video = *context->streams[videoIndex];
    const int audioIndex = av_find_best_stream(context, AVMEDIA_TYPE_AUDIO, -1, videoIndex, nullptr, 0);
    const AVRational videoTime = video.time_base;

    QString error;
    const std::unique_ptr<MovieOutput> output = MovieOutput::create(request.output, nullptr, &error);
    if (!output)
        return error;
    const std::optional<QByteArray> parameterSets
        = video.codecpar->codec_id == AV_CODEC_ID_H264 && output->canHold(AV_CODEC_ID_H264)
        ? H264Bytes::parameterSets(video.codecpar->extradata, video.codecpar->extradata_size)
        : std::nullopt;
    const std::optional<Plan> found = makePlan(context, video, toStreamTime(request.start, videoTime),
        toStreamTime(request.end, videoTime), parameterSets.has_value(), &error);
    if (!found)
        return error;
    const Plan &plan = *found;
    const std::unique_ptr<PictureRecoder> recoder = PictureRecoder::open(video, request.crf, &error);
    if (!recoder)
        return error;

    // What is encoded again: with a copy, framed as the copied packets are and written around them;
    // alone, as the encoder frames it, which the muxer turns into the file's framing.
    const AVStream *videoOut = nullptr;
    auto writeVideo = [&](AVPacket *packet, QString *failure) {
        packet->pts -= plan.origin;
        if (packet->dts != AV_NOPTS_VALUE)
            packet->dts -= plan.origin;
        return output->write(packet, videoTime, *videoOut, failure);
    };
    auto writeFramed = [&](AVPacket *packet, QString *failure) {
        const av::Packet framed = withData(*packet, H264Bytes::lengthPrefixed(packet->data, packet->size));
        return writeVideo(framed.get(), failure);
    };
    std::vector<av::Packet> head;
    auto keepHead = [&head](AVPacket *packet, QString *) {
        head.push_back(withData(*packet, H264Bytes::lengthPrefixed(packet->data, packet->size)));
        return true;
    };
    // The head is written once the copy's first decoding time is known: its times move earlier where
    // they would reach it (no B-frames, so each packet still decodes before it is shown).
    auto writeHead = [&](QString *failure) {
        if (!recoder->end(failure))
            return false;
        const int64_t shift = head.empty() ? 0 : std::max<int64_t>(0, head.back()->dts - plan.copyFromDts + 1);
        for (const av::Packet &packet : head) {
            packet->dts -= shift;
            if (!writeVideo(packet.get(), failure))
                return false;
        }
        head.clear();
        return true;
    };

    if (plan.copy) {
        if (!recoder->begin(plan.origin, plan.copyFrom, false, keepHead, &error))
            return error;
        videoOut = output->addCopy(video);
    } else {
        if (!recoder->begin(plan.origin, plan.end, true, writeVideo, &error))
            return error;
        videoOut = output->addEncoded(recoder->encoder(), video);
    }
    if (!videoOut)
        return QStringLiteral("cannot add the video to %1").arg(request.output);
    const AVStream *audioOut = nullptr;
    if (audioIndex >= 0 && output->canHold(context->streams[audioIndex]->codecpar->codec_id)) {
        if (!(audioOut = output->addCopy(*context->streams[audioIndex])))
            return QStringLiteral("cannot add the sound to %1").arg(request.output);
    } else if (audioIndex >= 0) {
        AppLog::print(QStringLiteral("The cut of %1 leaves out its sound, which %2 cannot hold")
                          .arg(request.input, request.output));
    }
    if (!output->begin(&error))
        return error;

    enum class Phase { head, copy, tail } phase = Phase::head;
    bool copyStarted = false;
    // A video packet in file order, once the plan's key frames have moved the phase on.
    auto takeVideo = [&](AVPacket *packet, QString *failure) {
        const bool key = packet->flags & AV_PKT_FLAG_KEY;
        if (phase == Phase::head && plan.copy && key && packet->pts == plan.copyFrom) {
            if (!writeHead(failure))
                return false;
            phase = Phase::copy;
        }
        if (phase == Phase::copy && plan.copyTo && key && packet->pts == *plan.copyTo) {
            if (!recoder->begin(*plan.copyTo, plan.end, false, writeFramed, failure))
                return false;
            phase = Phase::tail;
        }
        if (phase != Phase::copy)
            return recoder->decode(*packet, failure);
        if (packet->pts == AV_NOPTS_VALUE || packet->pts < plan.copyFrom
            || (plan.copyTo && packet->pts >= *plan.copyTo))
            return true; // a picture of the partial groups, which are encoded again
        if (copyStarted)
            return writeVideo(packet, failure);
        // The copy's first picture carries the movie's own parameter sets, which the head's replaced.
        copyStarted = true;
        const av::Packet first = withData(*packet, *parameterSets + bytesOf(*packet));
        return writeVideo(first.get(), failure);
    };

    const AVRational audioTime = audioOut ? context->streams[audioIndex]->time_base : AVRational { 1, 1 };
    const int64_t audioOrigin = av_rescale_q(plan.origin, videoTime, audioTime);
    const int64_t audioEnd = av_rescale_q(plan.end, videoTime, audioTime);
    bool videoDone = false;
    bool audioDone = audioOut == nullptr;
    int64_t furthest = plan.origin;
    if (!seekTo(context, video, plan.seekTarget, &error))
        return error;
    const av::Packet packet = av::makePacket();
    while (!videoDone || !audioDone) {
        const int code = av_read_frame(context, packet.get());
        if (code == AVERROR_EOF)
            break;
        if (code < 0)
            return QStringLiteral("cannot read the movie: %1").arg(av::errorText(code));
        const int64_t pts = packet->pts;
        bool ok = true;
        if (packet->stream_index == audioIndex && audioOut && pts != AV_NOPTS_VALUE && !audioDone) {
            audioDone = pts >= audioEnd;
            if (!audioDone && pts >= audioOrigin) {
                packet->pts -= audioOrigin;
                if (packet->dts != AV_NOPTS_VALUE)
                    packet->dts -= audioOrigin;
                ok = output->write(packet.get(), audioTime, *audioOut, &error);
            }
        } else if (packet->stream_index == videoIndex && !videoDone) {
            const int64_t dts = packet->dts == AV_NOPTS_VALUE ? pts : packet->dts;
            // Past the end in decoding order, every later picture is shown after the end too.
            videoDone = dts != AV_NOPTS_VALUE && dts >= plan.end;
            ok = videoDone || takeVideo(packet.get(), &error);
            // Pictures come in decoding order; the furthest one shown so far tells how far the cut is.
            if (pts != AV_NOPTS_VALUE)
                furthest = std::max(furthest, pts);
            if (ok && progress
                && !progress(std::clamp(double(furthest - plan.origin) / double(plan.end - plan.origin), 0.0, 1.0)))
                return QStringLiteral("the cut was cancelled");
        }
        av_packet_unref(packet.get());
        if (!ok)
            return error;
    }
    const bool ended = phase == Phase::head ? (plan.copy ? writeHead(&error) : recoder->end(&error))
        : phase == Phase::tail              ? recoder->end(&error)
                                            : true;
    if (!ended || !output->finish(&error))
        return error;
    if (progress)
        progress(1.0);
    return {};
}

} // namespace VideoTrim
