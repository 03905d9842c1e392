#pragma once

#include "avhandles.h"
#include "overlayblender.h"
#include "quality.h"

#include <QSize>
#include <QString>

#include <mutex>

/**
 * The output movie: a QuickTime file with one H.264 stream and at most one AAC stream. It is written
 * under the final name plus ".part" in the same folder and renamed when complete, so a failed export
 * leaves no movie behind. Packets may come from several threads.
 */
class MovieWriter
{
public:
    explicit MovieWriter(QString path);
    ~MovieWriter();
    MovieWriter(const MovieWriter &) = delete;
    MovieWriter &operator=(const MovieWriter &) = delete;

    /** Whether the encoders this writer needs are there. */
    [[nodiscard]] static bool encodersAvailable();

    /** Adds and opens the picture's encoder; throws ExportFailure. */
    AVCodecContext &addVideo(QSize frameSize, int frameRate, ColorMatrix matrix, const EncoderSetting &setting);
    /** Adds and opens the sound's encoder; throws ExportFailure marked as a sound failure. */
    AVCodecContext &addAudio(int sampleRate, const AVChannelLayout &layout, const EncoderSetting &setting);
    /** Creates the file and writes its header, once every stream is added; throws ExportFailure. */
    void begin();
    /** Writes one encoded packet of the given encoder; throws ExportFailure. */
    void write(AVPacket &packet, const AVCodecContext &encoder);
    /** Completes the file and gives it its final name; throws ExportFailure. */
    void finish();

private:
    AVStream &addStream(AVCodecContext &encoder);

    QString m_path;
    QString m_partPath;
    AVFormatContext *m_format = nullptr;
    av::Codec m_video;
    av::Codec m_audio;
    AVStream *m_videoStream = nullptr;
    AVStream *m_audioStream = nullptr;
    std::mutex m_mutex;
    bool m_begun = false;
    bool m_finished = false;
};
