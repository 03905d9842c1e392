#include "composition.h"

#include "applog.h"

#include <charconv>
#include <cmath>

namespace {

// Seconds as a double prints in the trace: shortest form, and a whole number still reads as a double.
QString secondsText(double seconds)
{
    char text[64];
    const auto printed = std::to_chars(text, text + sizeof text, seconds);
    QString result = QString::fromLatin1(text, printed.ptr - text);
    if (!result.contains(QLatin1Char('.')) && !result.contains(QLatin1Char('e')) && std::isfinite(seconds))
        result += QStringLiteral(".0");
    return result;
}

} // namespace

void CompositionTrack::insertTimeRange(MediaTime length, MediaTime at)
{
    if (!length.valid || !at.valid || length.value < 0 || at.value < 0)
        throw CompositionError("the time range to insert is invalid");
    if (length.value > 0)
        segments.push_back({ at, length });
}

Composition Composition::make(MediaTime videoDuration, MediaTime audioDuration, bool soundFromVideo,
    const TrackSource &picture, const std::optional<TrackSource> &sound)
{
    Composition composition;
    composition.videoTrack = CompositionTrack { picture, {} };
    composition.videoTrack->insertTimeRange(videoDuration, MediaTime::zero());
    if (!sound)
        return composition;
    composition.audioTrack = CompositionTrack { *sound, {} };
    if (soundFromVideo || !(audioDuration.seconds() < videoDuration.seconds()))
        composition.audioTrack->insertTimeRange(videoDuration, MediaTime::zero());
    else
        composition.insertMusic(videoDuration, audioDuration);
    return composition;
}

// A music shorter than the video plays again from its start; the comparison is on whole seconds, so
// a last part of less than a second can stay silent.
void Composition::insertMusic(MediaTime videoDuration, MediaTime audioDuration)
{
    audioTrack->insertTimeRange(audioDuration, MediaTime::zero());
    const double videoSeconds = videoDuration.seconds();
    const double audioSeconds = audioDuration.seconds();
    MediaTime cursor = audioDuration;
    while (std::trunc(cursor.seconds()) < std::trunc(videoSeconds)) {
        const double remainder = videoSeconds - cursor.seconds();
        const double length = remainder <= audioSeconds ? remainder : audioSeconds;
        AppLog::print(QStringLiteral("final different : ") + secondsText(length));
        const MediaTime segment = MediaTime::fromSeconds(length, cursor.timescale);
        if (segment.valid)
            audioTrack->insertTimeRange(segment, cursor);
        else
            AppLog::print(QStringLiteral("time is invalid"));
        // A length too short for the timescale would never move the cursor on.
        if (segment.valid && segment.value == 0)
            break;
        cursor = cursor + segment;
    }
}
