#pragma once

#include <QString>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

#include <memory>

/**
 * A movie file being written by FFmpeg's muxer, for the copies and cuts that keep their streams' packets.
 * The data goes to a partial file beside the final one, which takes the final name only in finish(); a
 * writer dropped before that removes its partial file, so no half-written movie ever has the final name.
 */
class MovieOutput
{
public:
    ~MovieOutput();
    MovieOutput(const MovieOutput &) = delete;
    MovieOutput &operator=(const MovieOutput &) = delete;

    /**
     * A writer of `path` in the container `format` (an FFmpeg muxer name such as "mp4" or "mov"), or in
     * the one its suffix names when `format` is null. Null with the reason when there is no such muxer.
     */
    [[nodiscard]] static std::unique_ptr<MovieOutput> create(const QString &path, const char *format, QString *error);

    /** Whether the container can hold packets of this codec. */
    [[nodiscard]] bool canHold(AVCodecID codec) const;
    /** A stream that takes `input`'s packets as they are: its parameters, orientation and language. */
    AVStream *addCopy(const AVStream &input);
    /** A stream for an encoder's packets, with `like`'s orientation and language. */
    AVStream *addEncoded(const AVCodecContext &encoder, const AVStream &like);
    /** Writes the header; after it the streams' time bases are the muxer's. */
    bool begin(QString *error);
    /** Writes a packet of `stream`, whose times are in `timeBase`; takes the packet's data. */
    bool write(AVPacket *packet, AVRational timeBase, const AVStream &stream, QString *error);
    /** Writes the trailer and gives the file its final name. */
    bool finish(QString *error);

    [[nodiscard]] const QString &path() const { return m_path; }

private:
    MovieOutput(QString path, QString partialPath, AVFormatContext *context);
    AVStream *addStream(const AVStream &like);

    QString m_path;
    QString m_partialPath;
    AVFormatContext *m_context;
    bool m_opened = false;
    bool m_finished = false;
};
