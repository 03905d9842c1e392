#include "videocacheexport.h"

#include "avhandles.h"
#include "movieoutput.h"

#include <vector>

namespace VideoCacheExport {

namespace {

// A remote source that stops answering fails instead of holding the export forever.
constexpr const char *readTimeoutMicroseconds = "35000000";

int isCancelled(void *flag)
{
    return static_cast<const std::atomic_bool *>(flag)->load() ? 1 : 0;
}

Result failed(const QString &error)
{
    return { Status::Failed, error };
}

} // namespace

Result exportMovie(const QString &source, const QString &destination, const std::atomic_bool &cancelled)
{
    AVFormatContext *context = avformat_alloc_context();
    if (!context)
        return failed(QStringLiteral("out of memory"));
    context->interrupt_callback = { isCancelled, const_cast<std::atomic_bool *>(&cancelled) };
    AVDictionary *options = nullptr;
    av_dict_set(&options, "rw_timeout", readTimeoutMicroseconds, 0);
    int result = avformat_open_input(&context, source.toUtf8().constData(), nullptr, &options);
    av_dict_free(&options);
    if (result < 0)
        return cancelled ? Result { Status::Cancelled, {} }
                         : failed(QStringLiteral("cannot open %1: %2").arg(source, av::errorText(result)));
    const av::Input input(context);
    if ((result = avformat_find_stream_info(context, nullptr)) < 0)
        return failed(QStringLiteral("cannot read %1: %2").arg(source, av::errorText(result)));

    QString error;
    const std::unique_ptr<MovieOutput> output = MovieOutput::create(destination, "mp4", &error);
    if (!output)
        return failed(error);
    // Picture and sound streams that MPEG-4 can hold; time codes and other data stay behind.
    std::vector<AVStream *> copies(context->nb_streams, nullptr);
    bool hasVideo = false;
    for (unsigned i = 0; i < context->nb_streams; ++i) {
        const AVStream &stream = *context->streams[i];
        const AVMediaType type = stream.codecpar->codec_type;
        if ((type != AVMEDIA_TYPE_VIDEO && type != AVMEDIA_TYPE_AUDIO) || !output->canHold(stream.codecpar->codec_id)
            || (stream.disposition & AV_DISPOSITION_ATTACHED_PIC))
            continue;
        copies[i] = output->addCopy(stream);
        if (!copies[i])
            return failed(QStringLiteral("out of memory"));
        hasVideo = hasVideo || type == AVMEDIA_TYPE_VIDEO;
    }
    if (!hasVideo)
        return failed(QStringLiteral("%1 has no video that a movie file can hold").arg(source));
    if (!output->begin(&error))
        return failed(error);

    const av::Packet packet = av::makePacket();
    while ((result = av_read_frame(context, packet.get())) >= 0) {
        AVStream *copy = copies[std::size_t(packet->stream_index)];
        if (copy && !output->write(packet.get(), context->streams[packet->stream_index]->time_base, *copy, &error))
            return failed(error);
        av_packet_unref(packet.get());
    }
    if (cancelled)
        return { Status::Cancelled, {} };
    if (result != AVERROR_EOF)
        return failed(QStringLiteral("cannot read %1: %2").arg(source, av::errorText(result)));
    if (!output->finish(&error))
        return failed(error);
    return { Status::Completed, {} };
}

} // namespace VideoCacheExport
