#include "composition.h"
#include "quality.h"

#include "applog.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <cstdio>

namespace {

const TrackSource picture { QStringLiteral("video.mp4"), 0 };
const TrackSource music { QStringLiteral("music.m4a"), 0 };

MediaTime seconds(double value)
{
    return MediaTime::fromSeconds(value, 1000000);
}

// (start, length) of each insertion, in seconds.
std::vector<std::pair<double, double>> laid(const CompositionTrack &track)
{
    std::vector<std::pair<double, double>> segments;
    for (const CompositionSegment &segment : track.segments)
        segments.emplace_back(segment.at.seconds(), segment.length.seconds());
    return segments;
}

// The lines the composition prints while it is built.
class TraceLines
{
public:
    TraceLines()
        : m_file(std::tmpfile())
    {
        AppLog::setOutput(m_file);
    }
    ~TraceLines()
    {
        AppLog::setOutput(stdout);
        std::fclose(m_file);
    }
    TraceLines(const TraceLines &) = delete;
    TraceLines &operator=(const TraceLines &) = delete;

    [[nodiscard]] QStringList lines() const
    {
        std::rewind(m_file);
        QByteArray text;
        char chunk[1024];
        while (const std::size_t n = std::fread(chunk, 1, sizeof chunk, m_file))
            text.append(chunk, qsizetype(n));
        return QString::fromUtf8(text).split(u'\n', Qt::SkipEmptyParts);
    }

private:
    FILE *m_file;
};

} // namespace

TEST(Composition, MusicShorterThanTheVideoLoopsOnWholeSeconds)
{
    TraceLines trace;
    const Composition composition = Composition::make(seconds(10), seconds(3), false, picture, music);
    ASSERT_TRUE(composition.audioTrack);
    using Segments = std::vector<std::pair<double, double>>;
    EXPECT_EQ(laid(*composition.audioTrack), (Segments { { 0, 3 }, { 3, 3 }, { 6, 3 }, { 9, 1 } }));
    EXPECT_EQ(trace.lines(),
        (QStringList { QStringLiteral("final different : 3.0"), QStringLiteral("final different : 3.0"),
            QStringLiteral("final different : 1.0") }));
    EXPECT_EQ(composition.audioTrack->source.path, music.path);
    EXPECT_EQ(laid(*composition.videoTrack), (Segments { { 0, 10 } }));
}

TEST(Composition, LastPartUnderASecondStaysSilentWhenTheWholeSecondsAgree)
{
    TraceLines trace;
    const Composition composition = Composition::make(seconds(10.9), seconds(10.2), false, picture, music);
    EXPECT_EQ(laid(*composition.audioTrack), (std::vector<std::pair<double, double>> { { 0, 10.2 } }));
    EXPECT_TRUE(trace.lines().isEmpty());
}

TEST(Composition, MusicAtLeastAsLongAsTheVideoIsCutAtTheVideosEnd)
{
    using Segments = std::vector<std::pair<double, double>>;
    EXPECT_EQ(
        laid(*Composition::make(seconds(4), seconds(4), false, picture, music).audioTrack), (Segments { { 0, 4 } }));
    EXPECT_EQ(
        laid(*Composition::make(seconds(4), seconds(60), false, picture, music).audioTrack), (Segments { { 0, 4 } }));
    // The video's own sound covers the video's duration whatever the music's would be.
    EXPECT_EQ(laid(*Composition::make(seconds(4), MediaTime::zero(), true, picture, picture).audioTrack),
        (Segments { { 0, 4 } }));
}

TEST(Composition, WithoutSoundThereIsNoAudioTrack)
{
    const Composition composition = Composition::make(seconds(4), seconds(3), false, picture, std::nullopt);
    EXPECT_TRUE(composition.videoTrack);
    EXPECT_FALSE(composition.audioTrack);
}

TEST(Composition, AnInvalidDurationFailsTheComposition)
{
    EXPECT_THROW((void)Composition::make(MediaTime(), seconds(3), false, picture, music), CompositionError);
    // A music of no length can be laid nowhere, and the loop must not spin on it.
    const Composition empty = Composition::make(seconds(4), MediaTime::zero(), false, picture, music);
    EXPECT_TRUE(empty.audioTrack->segments.empty());
}

TEST(Quality, RawValuesAreExactlyTheThreeTexts)
{
    EXPECT_EQ(qualityFromRawValue(QStringLiteral("low")), Quality::low);
    EXPECT_EQ(qualityFromRawValue(QStringLiteral("medium")), Quality::medium);
    EXPECT_EQ(qualityFromRawValue(QStringLiteral("high")), Quality::high);
    EXPECT_EQ(qualityFromRawValue(QStringLiteral("High")), std::nullopt);
    EXPECT_EQ(qualityFromRawValue(QString()), std::nullopt);
    EXPECT_EQ(rawValue(Quality::medium), QStringLiteral("medium"));
    // Better quality never takes a higher rate factor.
    EXPECT_LT(EncoderSetting::forQuality(Quality::high).crf, EncoderSetting::forQuality(Quality::medium).crf);
    EXPECT_LT(EncoderSetting::forQuality(Quality::medium).crf, EncoderSetting::forQuality(Quality::low).crf);
}
