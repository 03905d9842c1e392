#pragma once

#include "mediatime.h"

#include <QString>

#include <optional>
#include <stdexcept>
#include <vector>

/** A stream of a file, as a source for a composition track. */
struct TrackSource
{
    QString path;
    int streamIndex = -1;
};

/** One insertion: the source's range from zero with `length`, laid at `at` on the composition's timeline. */
struct CompositionSegment
{
    MediaTime at;
    MediaTime length;
};

/** A track of the composition: where its media comes from and the insertions in the order made. */
struct CompositionTrack
{
    TrackSource source;
    std::vector<CompositionSegment> segments;

    /**
     * Adds the range from zero with `length` at `at`; an empty range adds nothing. Throws CompositionError
     * for an invalid or negative time.
     */
    void insertTimeRange(MediaTime length, MediaTime at);
};

/** An insertion that could not be made; the merge drops it and reports a failure. */
struct CompositionError : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/**
 * The timeline of a merge: the picture from zero to the video's duration, and the sound, either the
 * video's own over the same range, or a separate music cut at the video's end or looped on whole seconds.
 */
class Composition
{
public:
    /**
     * Builds the tracks; throws CompositionError when an insertion fails. Without `sound` there is no
     * audio track. The loop prints "final different : " with each segment's length, and "time is
     * invalid" for a length that makes no time.
     */
    [[nodiscard]] static Composition make(MediaTime videoDuration, MediaTime audioDuration, bool soundFromVideo,
        const TrackSource &picture, const std::optional<TrackSource> &sound);

    std::optional<CompositionTrack> videoTrack;
    std::optional<CompositionTrack> audioTrack;

private:
    void insertMusic(MediaTime videoDuration, MediaTime audioDuration);
};
