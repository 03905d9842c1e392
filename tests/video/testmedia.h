#pragma once

#include <QColor>
#include <QImage>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QTransform>

#include <vector>

/**
 * Media for one test, made with the ffmpeg command in a folder of the test's own, and read back the
 * same way (ffprobe and ffmpeg), so that the checks do not go through the code under test.
 */
class TestMedia
{
public:
    explicit TestMedia(QString folder);

    /** Runs ffmpeg with `arguments` and the output `name` in the folder; its path. Fails the test on error. */
    QString make(const QString &name, const QStringList &arguments) const;
    /** A path in the folder. */
    [[nodiscard]] QString path(const QString &name) const;

    /** A lavfi picture source as an H.264 movie of `seconds`, with a 440 Hz tone when `withSound`. */
    QString movie(const QString &name, const QString &source, double seconds, bool withSound = false) const;
    /**
     * An AAC music of `seconds` that starts with a loud 1 kHz burst of 0.1 s over a quiet 300 Hz tone,
     * so that each time it starts again can be found in a mix.
     */
    QString music(const QString &name, double seconds) const;

    /** Writes a display matrix (a, b, c, d, tx, ty) into the first track header of a movie. */
    static void setDisplayMatrix(const QString &movie, const QTransform &matrix);
    /** Overwrites the media data of a file with noise, leaving its header intact. */
    static void scrambleMediaData(const QString &file);

private:
    QString m_folder;
};

/** What ffprobe says of a file: "streams" (an array) and "format". */
[[nodiscard]] QJsonObject probe(const QString &file);
/** The streams of one type ("video", "audio") that ffprobe lists. */
[[nodiscard]] std::vector<QJsonObject> streamsOf(const QString &file, const QString &type);

/** The presentation times of a movie's key frames, in seconds. */
[[nodiscard]] std::vector<double> keyFrameTimes(const QString &movie);
/** The picture shown at `seconds`, as ffmpeg decodes it to RGB. */
[[nodiscard]] QImage frameAt(const QString &movie, double seconds);
/** The sound as mono float samples at `rate`. */
[[nodiscard]] std::vector<float> soundOf(const QString &movie, int rate);
/** The times in seconds where the sound's level jumps from quiet to loud (the music's bursts). */
[[nodiscard]] std::vector<double> burstOnsets(const std::vector<float> &samples, int rate);

/** Whether two colours are within `tolerance` on every channel. */
[[nodiscard]] bool near(QColor actual, QColor expected, int tolerance = 24);
