#pragma once

#include "mediatime.h"

#include <QSize>
#include <QString>
#include <QTransform>

#include <vector>

/** One stream of a media file as the merge sees it. */
struct MediaTrack
{
    enum class Type { video, audio };

    Type type = Type::video;
    /** The stream's index in its file. */
    int streamIndex = -1;
    /** Width and height of the coded picture, before any transform; empty for sound. */
    QSize naturalSize;
    /**
     * The display matrix of the file: x' = m11 x + m21 y + dx, y' = m12 x + m22 y + dy (a, b, c, d, tx,
     * ty in that order); identity when the file has none.
     */
    QTransform preferredTransform;
};

/**
 * A media file and what it holds, read once when made. A file that cannot be opened or read as media
 * is an asset without tracks and with an invalid duration.
 */
class MediaAsset
{
public:
    explicit MediaAsset(QString path);

    [[nodiscard]] const QString &path() const { return m_path; }
    /** The longest of its streams, in microseconds. */
    [[nodiscard]] MediaTime duration() const { return m_duration; }
    /** The tracks of one type in stream order. */
    [[nodiscard]] std::vector<MediaTrack> tracksWithMediaType(MediaTrack::Type type) const;

private:
    QString m_path;
    MediaTime m_duration;
    std::vector<MediaTrack> m_tracks;
};
