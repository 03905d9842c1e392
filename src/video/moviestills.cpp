#include "moviestills.h"

#include "frameimage.h"

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

double MovieStills::secondsOf(const AVFrame &frame) const
{
    const std::int64_t timestamp = frame.best_effort_timestamp;
    return timestamp == AV_NOPTS_VALUE ? 0.0 : double(timestamp) * av_q2d(m_stream->time_base);
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

bool MovieStills::picturesAt(const std::vector<double> &times, QSize size, const std::function<void(int, QImage)> &take)
{
    if (!isOpen())
        return false;
    const av::Packet packet = av::makePacket();
    const av::Frame decoded = av::makeFrame();
    av::Frame shown; // the latest picture at or before the time sought
    av::Frame ahead; // a picture already past it, kept for the next time
    std::int64_t fedUpTo = std::numeric_limits<std::int64_t>::min(); // decoding time of the last packet sent
    bool draining = false;
    const auto frameLength = std::int64_t(std::llround(m_frameDuration / av_q2d(m_stream->time_base)));
    for (std::size_t i = 0; i < times.size(); ++i) {
        const double time = times[i];
        const auto timestamp = std::int64_t(std::floor(time / av_q2d(m_stream->time_base)));
        const std::int64_t keyFrame = keyFrameBefore(timestamp);
        // Without an index there is nothing to seek to: decoding goes on from where it is.
        const bool indexed = keyFrame != std::numeric_limits<std::int64_t>::min();
        if (indexed && (fedUpTo == std::numeric_limits<std::int64_t>::min() || keyFrame > fedUpTo)) {
            if (av_seek_frame(m_input.get(), m_stream->index, keyFrame, AVSEEK_FLAG_BACKWARD) < 0)
                return false;
            avcodec_flush_buffers(m_decoder.get());
            shown.reset();
            ahead.reset();
            draining = false;
        }
        if (ahead && secondsOf(*ahead) <= time)
            shown = std::move(ahead);
        while (!ahead) {
            const int received = avcodec_receive_frame(m_decoder.get(), decoded.get());
            if (received == 0) {
                if (secondsOf(*decoded) <= time)
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
            // A picture that ends before the time is wanted only if others refer to it.
            const std::int64_t length = packet->duration > 0 ? packet->duration : frameLength;
            const bool early = packet->pts != AV_NOPTS_VALUE && packet->pts + length <= timestamp;
            m_decoder->skip_frame = early ? AVDISCARD_NONREF : AVDISCARD_DEFAULT;
            const int sent = avcodec_send_packet(m_decoder.get(), packet.get());
            av_packet_unref(packet.get());
            if (sent < 0 && sent != AVERROR_INVALIDDATA)
                return false;
        }
        const AVFrame *picture = shown ? shown.get() : ahead.get();
        if (!picture)
            return false;
        QImage image = frameToImage(*picture, size);
        if (image.isNull())
            return false;
        take(int(i), std::move(image));
    }
    return true;
}
