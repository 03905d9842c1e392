#include "moviestills.h"

#include <algorithm>
#include <cmath>
#include <limits>

MovieStills::MovieStills(const QString &path)
    : m_input(av::openInput(path))
    , m_duration(std::numeric_limits<double>::quiet_NaN())
{
    if (!m_input)
        return;
    const int index = av_find_best_stream(m_input.get(), AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    if (index < 0)
        return;
    for (unsigned i = 0; i < m_input->nb_streams; ++i)
        m_input->streams[i]->discard = int(i) == index ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    m_stream = m_input->streams[index];
    int error = 0;
    m_decoder = av::openDecoder(*m_stream, 0, &error);
    if (m_stream->duration != AV_NOPTS_VALUE)
        m_duration = double(m_stream->duration) * av_q2d(m_stream->time_base);
    else if (m_input->duration != AV_NOPTS_VALUE)
        m_duration = double(m_input->duration) / AV_TIME_BASE;
    const AVRational rate = m_stream->avg_frame_rate.num > 0 ? m_stream->avg_frame_rate : m_stream->r_frame_rate;
    m_frameDuration = rate.num > 0 ? av_q2d(av_inv_q(rate)) : 1.0 / 30;
}

// Key frames are indexed by decoding time, which runs ahead of presentation by the reordering delay;
// searching that much earlier finds a key frame shown no later than the time.
std::int64_t MovieStills::keyFrameBefore(std::int64_t timestamp) const
{
    const double delay = m_stream->codecpar->video_delay * m_frameDuration / av_q2d(m_stream->time_base);
    const AVIndexEntry *entry = avformat_index_get_entry_from_timestamp(
        m_stream, timestamp - std::int64_t(std::ceil(delay)), AVSEEK_FLAG_BACKWARD);
    return entry ? entry->timestamp : std::numeric_limits<std::int64_t>::min();
}

bool MovieStills::picturesAt(const std::vector<double> &times, const std::function<void(int, av::Frame)> &take)
{
    if (!isOpen())
        return false;
    const double unit = av_q2d(m_stream->time_base);
    const auto frameLength = std::int64_t(std::llround(m_frameDuration / unit));
    std::vector<std::int64_t> timestamps;
    for (const double time : times)
        timestamps.push_back(std::int64_t(std::floor(time / unit)));
    // Whether a picture shown from `start` for `length` is shown at one of the times.
    const auto shownAtATime = [&](std::int64_t start, std::int64_t length) {
        const auto at = std::lower_bound(timestamps.begin(), timestamps.end(), start);
        return at != timestamps.end() && *at < start + length;
    };
    const auto startOf = [](const AVFrame &frame) { return frame.best_effort_timestamp; };
    const auto covers = [&](const AVFrame &frame, std::int64_t timestamp) {
        const std::int64_t length = frame.pkt_duration > 0 ? frame.pkt_duration : frameLength;
        return startOf(frame) <= timestamp && timestamp < startOf(frame) + length;
    };

    const av::Packet packet = av::makePacket();
    const av::Frame decoded = av::makeFrame();
    av::Frame shown; // the latest picture at or before the time sought
    av::Frame ahead; // a picture already past it, kept for the next time
    std::int64_t fedUpTo = std::numeric_limits<std::int64_t>::min(); // decoding time of the last packet sent
    bool draining = false;
    for (std::size_t i = 0; i < timestamps.size(); ++i) {
        const std::int64_t timestamp = timestamps[i];
        const std::int64_t keyFrame = keyFrameBefore(timestamp);
        // Without an index there is nothing to seek to: decoding goes on from where it is.
        const bool indexed = keyFrame != std::numeric_limits<std::int64_t>::min();
        if (indexed && (fedUpTo == std::numeric_limits<std::int64_t>::min() || keyFrame > fedUpTo)) {
            // The demuxer finds the key frame shown at or before the time; the index only told whether it
            // lies ahead of what has been decoded.
            if (av_seek_frame(m_input.get(), m_stream->index, timestamp, AVSEEK_FLAG_BACKWARD) < 0)
                return false;
            avcodec_flush_buffers(m_decoder.get());
            shown.reset();
            ahead.reset();
            draining = false;
        }
        if (ahead && startOf(*ahead) <= timestamp)
            shown = std::move(ahead);
        // Done once a picture covers the time, or one after it shows that the last one did.
        while (!ahead && !(shown && covers(*shown, timestamp))) {
            const int received = avcodec_receive_frame(m_decoder.get(), decoded.get());
            if (received == 0) {
                if (startOf(*decoded) <= timestamp)
                    shown = av::reference(*decoded);
                else
                    ahead = av::reference(*decoded);
                av_frame_unref(decoded.get());
                continue;
            }
            if (received == AVERROR_EOF)
                break;
            if (received != AVERROR(EAGAIN) && received != AVERROR_INVALIDDATA)
                return false;
            if (draining)
                break;
            const int read = av_read_frame(m_input.get(), packet.get());
            if (read == AVERROR_EOF) {
                draining = true;
                avcodec_send_packet(m_decoder.get(), nullptr);
                continue;
            }
            if (read < 0)
                return false;
            if (packet->stream_index != m_stream->index) {
                av_packet_unref(packet.get());
                continue;
            }
            fedUpTo = packet->dts != AV_NOPTS_VALUE ? packet->dts : packet->pts;
            // A picture not shown at any of the times is decoded only if others refer to it.
            const std::int64_t length = packet->duration > 0 ? packet->duration : frameLength;
            const bool unwanted = packet->pts != AV_NOPTS_VALUE && !shownAtATime(packet->pts, length);
            m_decoder->skip_frame = unwanted ? AVDISCARD_NONREF : AVDISCARD_DEFAULT;
            const int sent = avcodec_send_packet(m_decoder.get(), packet.get());
            av_packet_unref(packet.get());
            if (sent < 0 && sent != AVERROR_INVALIDDATA)
                return false;
        }
        const AVFrame *picture = shown ? shown.get() : ahead.get();
        if (!picture)
            return false;
        take(int(i), av::reference(*picture));
    }
    return true;
}
