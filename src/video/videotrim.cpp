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

// One cut: the plan from the first pass, then the second pass that writes the output.
class Cutter
{
public:
    Cutter(const Request &request, const Progress &progress)
        : m_request(request)
        , m_progress(progress)
    { }

    // Empty on success, else why not.
    QString run()
    {
        if (!(m_request.end > m_request.start) || m_request.start < 0)
            return QStringLiteral("the end of the cut must come after its start");
        if (!open() || !addStreams() || !copyAndEncode() || !finish())
            return m_error;
        return {};
    }

private:
    enum class Phase { head, copy, tail };

    bool open()
    {
        m_input = av::openInput(m_request.input);
        if (!m_input)
            return fail(QStringLiteral("cannot read %1 as a movie").arg(m_request.input));
        const int videoIndex = av_find_best_stream(m_input.get(), AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
        if (videoIndex < 0)
            return fail(QStringLiteral("%1 has no video").arg(m_request.input));
        m_video = m_input->streams[videoIndex];
        m_audioIndex = av_find_best_stream(m_input.get(), AVMEDIA_TYPE_AUDIO, -1, videoIndex, nullptr, 0);
        m_output = MovieOutput::create(m_request.output, nullptr, &m_error);
        if (!m_output)
            return false;
        // Whole groups are copied only where the head's parameter sets can be undone in the copy's first picture.
        if (m_video->codecpar->codec_id == AV_CODEC_ID_H264 && m_output->canHold(AV_CODEC_ID_H264))
            m_parameterSets = H264Bytes::parameterSets(m_video->codecpar->extradata, m_video->codecpar->extradata_size);
        const AVRational time = m_video->time_base;
        std::optional<Plan> plan = makePlan(m_input.get(), *m_video, toStreamTime(m_request.start, time),
            toStreamTime(m_request.end, time), m_parameterSets.has_value(), &m_error);
        if (!plan)
            return false;
        m_plan = *plan;
        m_furthest = m_plan.origin;
        m_recoder = PictureRecoder::open(*m_video, m_request.crf, &m_error);
        return m_recoder != nullptr;
    }

    // With a copy, what is encoded again is framed as the copied packets are and written around them;
    // alone, it is framed as the encoder gives it, which the muxer turns into the file's framing.
    bool addStreams()
    {
        if (m_plan.copy) {
            if (!m_recoder->begin(m_plan.origin, m_plan.copyFrom, false, keepHead(), &m_error))
                return false;
            m_videoOut = m_output->addCopy(*m_video);
        } else {
            if (!m_recoder->begin(m_plan.origin, m_plan.end, true, writeAsEncoded(), &m_error))
                return false;
            m_videoOut = m_output->addEncoded(m_recoder->encoder(), *m_video);
        }
        if (!m_videoOut)
            return fail(QStringLiteral("cannot add the video to %1").arg(m_request.output));
        if (m_audioIndex >= 0) {
            const AVStream &audio = *m_input->streams[m_audioIndex];
            if (!m_output->canHold(audio.codecpar->codec_id)) {
                AppLog::print(QStringLiteral("The cut of %1 leaves out its sound, which %2 cannot hold")
                                  .arg(m_request.input, m_request.output));
            } else if (!(m_audioOut = m_output->addCopy(audio))) {
                return fail(QStringLiteral("cannot add the sound to %1").arg(m_request.output));
            }
        }
        return m_output->begin(&m_error);
    }

    // The second pass, from the same place as the first: every packet once, in file order.
    bool copyAndEncode()
    {
        if (!seekTo(m_input.get(), *m_video, m_plan.seekTarget, &m_error))
            return false;
        const av::Packet packet = av::makePacket();
        bool videoDone = false;
        bool audioDone = m_audioOut == nullptr;
        while (!videoDone || !audioDone) {
            const int code = av_read_frame(m_input.get(), packet.get());
            if (code == AVERROR_EOF)
                return true;
            if (code < 0)
                return fail(QStringLiteral("cannot read the movie: %1").arg(av::errorText(code)));
            bool ok = true;
            if (packet->stream_index == m_video->index && !videoDone)
                ok = takeVideo(packet.get(), &videoDone) && tellProgress(packet->pts);
            else if (packet->stream_index == m_audioIndex && m_audioOut && !audioDone)
                ok = takeAudio(packet.get(), &audioDone);
            av_packet_unref(packet.get());
            if (!ok)
                return false;
        }
        return true;
    }

    bool takeAudio(AVPacket *packet, bool *done)
    {
        if (packet->pts == AV_NOPTS_VALUE)
            return true;
        const AVRational time = m_input->streams[m_audioIndex]->time_base;
        const int64_t origin = av_rescale_q(m_plan.origin, m_video->time_base, time);
        *done = packet->pts >= av_rescale_q(m_plan.end, m_video->time_base, time);
        if (*done || packet->pts < origin)
            return true;
        packet->pts -= origin;
        if (packet->dts != AV_NOPTS_VALUE)
            packet->dts -= origin;
        return m_output->write(packet, time, *m_audioOut, &m_error);
    }

    // A video packet in file order, once the plan's key frames have moved the phase on.
    bool takeVideo(AVPacket *packet, bool *done)
    {
        // Past the end in decoding order, every later picture is shown after the end too.
        const int64_t dts = packet->dts == AV_NOPTS_VALUE ? packet->pts : packet->dts;
        *done = dts != AV_NOPTS_VALUE && dts >= m_plan.end;
        if (*done)
            return true;
        const bool key = packet->flags & AV_PKT_FLAG_KEY;
        if (m_phase == Phase::head && m_plan.copy && key && packet->pts == m_plan.copyFrom) {
            if (!writeHead())
                return false;
            m_phase = Phase::copy;
        }
        if (m_phase == Phase::copy && m_plan.copyTo && key && packet->pts == *m_plan.copyTo) {
            if (!m_recoder->begin(*m_plan.copyTo, m_plan.end, false, writeFramed(), &m_error))
                return false;
            m_phase = Phase::tail;
        }
        if (m_phase != Phase::copy)
            return m_recoder->decode(*packet, &m_error);
        if (packet->pts == AV_NOPTS_VALUE || packet->pts < m_plan.copyFrom
            || (m_plan.copyTo && packet->pts >= *m_plan.copyTo))
            return true; // a picture of the partial groups, which are encoded again
        if (m_copyStarted)
            return writeVideo(packet);
        // The copy's first picture carries the movie's own parameter sets, which the head's replaced.
        m_copyStarted = true;
        const av::Packet first = withData(*packet, *m_parameterSets + bytesOf(*packet));
        return writeVideo(first.get());
    }

    // Pictures come in decoding order; the furthest one shown so far tells how far the cut is.
    bool tellProgress(int64_t pts)
    {
        if (pts != AV_NOPTS_VALUE)
            m_furthest = std::max(m_furthest, pts);
        const double fraction = double(m_furthest - m_plan.origin) / double(m_plan.end - m_plan.origin);
        return !m_progress || m_progress(std::clamp(fraction, 0.0, 1.0))
            || fail(QStringLiteral("the cut was cancelled"));
    }

    bool finish()
    {
        // What the recoder still holds: the head when the copy never came, or the tail.
        bool ended = true;
        if (m_phase == Phase::head && m_plan.copy)
            ended = writeHead();
        else if (m_phase != Phase::copy)
            ended = m_recoder->end(&m_error);
        if (!ended || !m_output->finish(&m_error))
            return false;
        if (m_progress)
            m_progress(1.0);
        return true;
    }

    bool writeVideo(AVPacket *packet)
    {
        packet->pts -= m_plan.origin;
        if (packet->dts != AV_NOPTS_VALUE)
            packet->dts -= m_plan.origin;
        return m_output->write(packet, m_video->time_base, *m_videoOut, &m_error);
    }

    PictureRecoder::Sink writeAsEncoded()
    {
        return [this](AVPacket *packet, QString *) { return writeVideo(packet); };
    }

    PictureRecoder::Sink writeFramed()
    {
        return [this](AVPacket *packet, QString *) {
            const av::Packet framed = withData(*packet, H264Bytes::lengthPrefixed(packet->data, packet->size));
            return writeVideo(framed.get());
        };
    }

    PictureRecoder::Sink keepHead()
    {
        return [this](AVPacket *packet, QString *) {
            m_head.push_back(withData(*packet, H264Bytes::lengthPrefixed(packet->data, packet->size)));
            return true;
        };
    }

    // The head is written once the copy's first decoding time is known: its times move earlier where
    // they would reach it (no B-frames, so each packet still decodes before it is shown).
    bool writeHead()
    {
        if (!m_recoder->end(&m_error))
            return false;
        const int64_t shift = m_head.empty() ? 0 : std::max<int64_t>(0, m_head.back()->dts - m_plan.copyFromDts + 1);
        for (const av::Packet &packet : m_head) {
            packet->dts -= shift;
            if (!writeVideo(packet.get()))
                return false;
        }
        m_head.clear();
        return true;
    }

    bool fail(const QString &error)
    {
        m_error = error;
        return false;
    }

    const Request &m_request;
    const Progress &m_progress;
    av::Input m_input;
    const AVStream *m_video = nullptr;
    int m_audioIndex = -1;
    std::unique_ptr<MovieOutput> m_output;
    std::optional<QByteArray> m_parameterSets;
    Plan m_plan;
    std::unique_ptr<PictureRecoder> m_recoder;
    const AVStream *m_videoOut = nullptr;
    const AVStream *m_audioOut = nullptr;
    std::vector<av::Packet> m_head;
    Phase m_phase = Phase::head;
    bool m_copyStarted = false;
    int64_t m_furthest = 0; // the latest picture read, for the progress
    QString m_error;
};

} // namespace

QString cut(const Request &request, const Progress &progress)
{
    return Cutter(request, progress).run();
}

} // namespace VideoTrim
