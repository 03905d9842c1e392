#include "movieoutput.h"

#include "avhandles.h"

#include <QFile>

#include <algorithm>

#include <cstdio>

MovieOutput::MovieOutput(QString path, QString partialPath, AVFormatContext *context)
    : m_path(std::move(path))
    , m_partialPath(std::move(partialPath))
    , m_context(context)
{ }

MovieOutput::~MovieOutput()
{
    if (m_opened && !m_finished)
        avio_closep(&m_context->pb);
    avformat_free_context(m_context);
    if (!m_finished)
        QFile::remove(m_partialPath);
}

std::unique_ptr<MovieOutput> MovieOutput::create(const QString &path, const char *format, QString *error)
{
    const QByteArray name = path.toUtf8();
    const AVOutputFormat *muxer = av_guess_format(format, format ? nullptr : name.constData(), nullptr);
    if (!muxer) {
        *error = QStringLiteral("no movie format for %1").arg(path);
        return nullptr;
    }
    AVFormatContext *context = nullptr;
    const int result = avformat_alloc_output_context2(&context, muxer, nullptr, nullptr);
    if (result < 0) {
        *error = av::errorText(result);
        return nullptr;
    }
    return std::unique_ptr<MovieOutput>(new MovieOutput(path, path + QStringLiteral(".part"), context));
}

bool MovieOutput::canHold(AVCodecID codec) const
{
    return avformat_query_codec(m_context->oformat, codec, FF_COMPLIANCE_NORMAL) == 1;
}

AVStream *MovieOutput::addStream(const AVStream &like)
{
    AVStream *stream = avformat_new_stream(m_context, nullptr);
    if (!stream)
        return nullptr;
    stream->time_base = like.time_base;
    stream->disposition = like.disposition;
    if (const AVDictionaryEntry *language = av_dict_get(like.metadata, "language", nullptr, 0))
        av_dict_set(&stream->metadata, "language", language->value, 0);
    // The orientation of a phone's movie is a display matrix beside the stream, not in its packets.
    for (int i = 0; i < like.nb_side_data; ++i) {
        const AVPacketSideData &side = like.side_data[i];
        if (side.type != AV_PKT_DATA_DISPLAYMATRIX)
            continue;
        if (uint8_t *copy = av_stream_new_side_data(stream, side.type, side.size))
            std::copy(side.data, side.data + side.size, copy);
    }
    return stream;
}

AVStream *MovieOutput::addCopy(const AVStream &input)
{
    AVStream *stream = addStream(input);
    if (!stream || avcodec_parameters_copy(stream->codecpar, input.codecpar) < 0)
        return nullptr;
    // The source container's tag may mean nothing in this one; the muxer picks its own.
    stream->codecpar->codec_tag = 0;
    return stream;
}

AVStream *MovieOutput::addEncoded(const AVCodecContext &encoder, const AVStream &like)
{
    AVStream *stream = addStream(like);
    if (!stream || avcodec_parameters_from_context(stream->codecpar, &encoder) < 0)
        return nullptr;
    stream->time_base = encoder.time_base;
    stream->avg_frame_rate = encoder.framerate;
    return stream;
}

bool MovieOutput::begin(QString *error)
{
    int result = avio_open(&m_context->pb, m_partialPath.toUtf8().constData(), AVIO_FLAG_WRITE);
    if (result < 0) {
        *error = QStringLiteral("cannot write %1: %2").arg(m_partialPath, av::errorText(result));
        return false;
    }
    m_opened = true;
    result = avformat_write_header(m_context, nullptr);
    if (result < 0) {
        *error = QStringLiteral("cannot start the movie: %1").arg(av::errorText(result));
        return false;
    }
    return true;
}

bool MovieOutput::write(AVPacket *packet, AVRational timeBase, const AVStream &stream, QString *error)
{
    av_packet_rescale_ts(packet, timeBase, stream.time_base);
    packet->stream_index = stream.index;
    packet->pos = -1;
    const int result = av_interleaved_write_frame(m_context, packet);
    if (result < 0) {
        *error = QStringLiteral("cannot write the movie: %1").arg(av::errorText(result));
        return false;
    }
    return true;
}

bool MovieOutput::finish(QString *error)
{
    int result = av_write_trailer(m_context);
    const int closed = avio_closep(&m_context->pb);
    m_opened = false;
    if (result >= 0)
        result = closed;
    if (result < 0) {
        *error = QStringLiteral("cannot end the movie: %1").arg(av::errorText(result));
        return false;
    }
    // rename() replaces an older file of the final name in one step.
    if (std::rename(m_partialPath.toUtf8().constData(), m_path.toUtf8().constData()) != 0) {
        *error = QStringLiteral("cannot name the movie %1").arg(m_path);
        return false;
    }
    m_finished = true;
    return true;
}
