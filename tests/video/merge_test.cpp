#include "mergerun.h"
#include "testhome.h"
#include "testmedia.h"

#include "nonfatalreporter.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

// A 160 x 90 picture: left half opaque green, a strip of half-transparent red, the rest transparent.
QImage designOverlay(QSize size = QSize(160, 90))
{
    QImage overlay(size, QImage::Format_ARGB32_Premultiplied);
    overlay.fill(Qt::transparent);
    QPainter painter(&overlay);
    painter.fillRect(QRect(0, 0, size.width() / 2, size.height()), QColor(0, 255, 0));
    painter.fillRect(QRect(size.width() * 5 / 8, 0, size.width() / 8, size.height()), QColor(255, 0, 0, 128));
    return overlay;
}

QImage transparent()
{
    QImage overlay(QSize(16, 16), QImage::Format_ARGB32_Premultiplied);
    overlay.fill(Qt::transparent);
    return overlay;
}

class MergeTest : public ::testing::Test
{
protected:
    MergeRun merge(const QString &video, std::optional<QSizeF> size, bool muted, const std::optional<QString> &audio,
        const QImage &overlay = transparent(), Placement placement = Placement::stretchFit())
    {
        return MergeRun::start({ 30, documents, Quality::high, placement }, video, size, muted, audio, overlay);
    }

    /** The files the merge left in Documents. */
    [[nodiscard]] QStringList leftInDocuments() const { return QDir(documents).entryList(QDir::Files); }

    [[nodiscard]] QStringList nonFatalReports() const
    {
        QFile file(NonFatalReporter::path());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    }

    TestHome home;
    TestMedia media { home.filePath(QStringLiteral("media")) };
    QString documents = home.filePath(QStringLiteral("Documents"));
};

const QString blue = QStringLiteral("color=c=0x0000ff:s=160x90:r=30");

} // namespace

TEST_F(MergeTest, SourceWithoutPictureCompletesAtOnceWithNothing)
{
    const QString sound = media.music(QStringLiteral("sound.m4a"), 2);
    const MergeRun run = merge(sound, std::nullopt, false, std::nullopt);
    EXPECT_TRUE(run.completedInCall);
    EXPECT_FALSE(run.url);
    EXPECT_FALSE(run.retryMuted);
    EXPECT_TRUE(run.progress.empty());
    EXPECT_TRUE(leftInDocuments().isEmpty());
}

TEST_F(MergeTest, WritesAThirtyFramesPerSecondMovieNamedByMilliseconds)
{
    // Pictures of a slower source are repeated and those of a faster one dropped.
    for (const int rate : { 24, 60 }) {
        const QString video = media.movie(
            QStringLiteral("v%1.mp4").arg(rate), QStringLiteral("testsrc2=s=160x90:r=%1").arg(rate), 2.0, true);
        const MergeRun run = merge(video, std::nullopt, false, std::nullopt, designOverlay());
        ASSERT_TRUE(run.url) << rate;
        EXPECT_FALSE(run.retryMuted);
        EXPECT_TRUE(run.completedOnGuiThread);
        EXPECT_FALSE(run.completedInCall);
        EXPECT_TRUE(
            QRegularExpression(QStringLiteral("^\\d{13}\\.mov$")).match(QFileInfo(run.path()).fileName()).hasMatch());
        EXPECT_EQ(QFileInfo(run.path()).absolutePath(), QFileInfo(documents).absoluteFilePath());

        const std::vector<QJsonObject> pictures = streamsOf(run.path(), QStringLiteral("video"));
        ASSERT_EQ(pictures.size(), 1u);
        EXPECT_EQ(pictures[0].value(QStringLiteral("codec_name")).toString(), QStringLiteral("h264"));
        EXPECT_EQ(pictures[0].value(QStringLiteral("pix_fmt")).toString(), QStringLiteral("yuv420p"));
        EXPECT_EQ(pictures[0].value(QStringLiteral("r_frame_rate")).toString(), QStringLiteral("30/1"));
        EXPECT_EQ(pictures[0].value(QStringLiteral("nb_read_frames")).toString(), QStringLiteral("60"));
        const std::vector<QJsonObject> sounds = streamsOf(run.path(), QStringLiteral("audio"));
        ASSERT_EQ(sounds.size(), 1u);
        EXPECT_EQ(sounds[0].value(QStringLiteral("codec_name")).toString(), QStringLiteral("aac"));
        // Nothing after the video's end.
        EXPECT_LT(sounds[0].value(QStringLiteral("duration")).toString().toDouble(), 2.05);

        // The frames a GIF of the movie shows (16 over its 2 s, i * 2 / 16 s) are its key frames.
        std::vector<double> gifTimes;
        for (int i = 0; i < 16; ++i)
            gifTimes.push_back(std::floor(i * 2.0 / 16 * 30 + 1e-9) / 30);
        const std::vector<double> keys = keyFrameTimes(run.path());
        ASSERT_EQ(keys.size(), gifTimes.size());
        for (std::size_t i = 0; i < keys.size(); ++i)
            EXPECT_NEAR(keys[i], gifTimes[i], 0.001) << i;

        // Progress came off the GUI thread, between 0 and 1, never going back.
        EXPECT_FALSE(run.progress.empty());
        EXPECT_TRUE(run.progressOffGuiThread);
        EXPECT_TRUE(std::is_sorted(run.progress.begin(), run.progress.end()));
        EXPECT_GE(run.progress.front(), 0.0f);
        EXPECT_LE(run.progress.back(), 1.0f);
        QFile::remove(run.path());
    }
    EXPECT_TRUE(leftInDocuments().isEmpty());
}

TEST_F(MergeTest, OverlayShowsWhereOpaqueAndTheVideoWhereTransparent)
{
    const QString video = media.movie(QStringLiteral("blue.mp4"), blue, 1.0);
    const MergeRun run = merge(video, std::nullopt, false, std::nullopt, designOverlay());
    ASSERT_TRUE(run.url);
    const QImage frame = frameAt(run.path(), 0.5);
    ASSERT_EQ(frame.size(), QSize(160, 90));
    EXPECT_TRUE(near(frame.pixelColor(40, 45), QColor(0, 255, 0))) << frame.pixelColor(40, 45).name().toStdString();
    EXPECT_TRUE(near(frame.pixelColor(140, 45), QColor(0, 0, 255))) << frame.pixelColor(140, 45).name().toStdString();
    // Half-transparent red over blue.
    EXPECT_TRUE(near(frame.pixelColor(110, 45), QColor(128, 0, 127), 32))
        << frame.pixelColor(110, 45).name().toStdString();
}

TEST_F(MergeTest, OverlayIsStretchedOverTheRenderAreaOrLaidAtItsRectangle)
{
    const QString video = media.movie(QStringLiteral("blue.mp4"), blue, 1.0);
    // A picture of another shape is stretched, not letterboxed.
    const MergeRun stretched = merge(video, std::nullopt, false, std::nullopt, designOverlay(QSize(32, 32)));
    ASSERT_TRUE(stretched.url);
    const QImage whole = frameAt(stretched.path(), 0.5);
    EXPECT_TRUE(near(whole.pixelColor(4, 4), QColor(0, 255, 0)));
    EXPECT_TRUE(near(whole.pixelColor(4, 86), QColor(0, 255, 0)));
    EXPECT_TRUE(near(whole.pixelColor(150, 45), QColor(0, 0, 255)));

    QImage green(QSize(8, 8), QImage::Format_ARGB32_Premultiplied);
    green.fill(QColor(0, 255, 0));
    const MergeRun custom
        = merge(video, std::nullopt, false, std::nullopt, green, Placement::custom(80, 20, QSizeF(40, 30)));
    ASSERT_TRUE(custom.url);
    const QImage placed = frameAt(custom.path(), 0.5);
    EXPECT_TRUE(near(placed.pixelColor(100, 35), QColor(0, 255, 0)));
    EXPECT_TRUE(near(placed.pixelColor(70, 35), QColor(0, 0, 255)));
    EXPECT_TRUE(near(placed.pixelColor(100, 60), QColor(0, 0, 255)));
}

TEST_F(MergeTest, SoundComesFromTheMusicWhenGivenAndNoneWhenMuted)
{
    const QString video = media.movie(QStringLiteral("v.mp4"), blue, 2.0, true);
    const QString music = media.music(QStringLiteral("music.m4a"), 2.0);
    const QString silentVideo = media.movie(QStringLiteral("silent.mp4"), blue, 2.0);
    const QString notMedia = media.path(QStringLiteral("broken.m4a"));
    QFile file(notMedia);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("not a sound at all");
    file.close();

    const auto soundStreams = [&](const MergeRun &run) {
        EXPECT_TRUE(run.url);
        return streamsOf(run.path(), QStringLiteral("audio")).size();
    };
    EXPECT_EQ(soundStreams(merge(video, std::nullopt, false, std::nullopt)), 1u);
    // A music without a sound of its own still replaces the video's: the movie is silent.
    EXPECT_EQ(soundStreams(merge(video, std::nullopt, false, silentVideo)), 0u);
    // So does a music that cannot be opened at all.
    EXPECT_EQ(soundStreams(merge(video, std::nullopt, false, notMedia)), 0u);
    EXPECT_EQ(soundStreams(merge(video, std::nullopt, true, music)), 0u);
    EXPECT_EQ(soundStreams(merge(video, std::nullopt, true, std::nullopt)), 0u);

    const MergeRun withMusic = merge(video, std::nullopt, false, music);
    ASSERT_TRUE(withMusic.url);
    // The music's burst, not the video's steady tone, opens the sound.
    EXPECT_EQ(burstOnsets(soundOf(withMusic.path(), 8000), 8000).size(), 1u);
}

TEST_F(MergeTest, MusicIsLaidOnceOrLoopedOnWholeSeconds)
{
    const auto onsets = [&](double videoSeconds, double musicSeconds) {
        const QString video = media.movie(
            QStringLiteral("v%1.mp4").arg(videoSeconds), QStringLiteral("color=c=gray:s=64x64:r=30"), videoSeconds);
        const QString music = media.music(QStringLiteral("m%1.m4a").arg(musicSeconds), musicSeconds);
        const MergeRun run = merge(video, std::nullopt, false, music);
        EXPECT_TRUE(run.url);
        const std::vector<float> sound = soundOf(run.path(), 8000);
        return std::make_pair(burstOnsets(sound, 8000), double(sound.size()) / 8000);
    };
    const auto expectNear = [](const std::vector<double> &actual, const std::vector<double> &expected) {
        ASSERT_EQ(actual.size(), expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i)
            EXPECT_NEAR(actual[i], expected[i], 0.06) << i;
    };

    const auto [once, onceLength] = onsets(4, 4);
    expectNear(once, { 0 });
    EXPECT_NEAR(onceLength, 4.0, 0.1);

    const auto [looped, loopedLength] = onsets(10, 3);
    expectNear(looped, { 0, 3, 6, 9 });
    EXPECT_NEAR(loopedLength, 10.0, 0.1);

    // 10.2 s under 10.9 s: shorter, but the whole seconds agree, so the rest stays without sound.
    const auto [single, singleLength] = onsets(10.9, 10.2);
    expectNear(single, { 0 });
    EXPECT_NEAR(singleLength, 10.2, 0.1);
}

TEST_F(MergeTest, QuarterTurnedRecordingIsScaledWithItsAxesSwapped)
{
    // Coded landscape quadrants: top left red, bottom left green, top right blue, bottom right white.
    const QString recording = media.make(QStringLiteral("portrait.mp4"),
        { QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
            QStringLiteral(
                "color=c=white:s=320x180:r=30,drawbox=x=0:y=0:w=160:h=90:color=red:t=fill,"
                "drawbox=x=0:y=90:w=160:h=90:color=lime:t=fill,drawbox=x=160:y=0:w=160:h=90:color=blue:t=fill"),
            QStringLiteral("-t"), QStringLiteral("1"), QStringLiteral("-c:v"), QStringLiteral("libx264"),
            QStringLiteral("-preset"), QStringLiteral("ultrafast"), QStringLiteral("-pix_fmt"),
            QStringLiteral("yuv420p") });
    // Turned a quarter clockwise for display, as a phone held upright records.
    TestMedia::setDisplayMatrix(recording, QTransform(0, 1, -1, 0, 180, 0));

    const MergeRun sized = merge(recording, QSizeF(90, 160), false, std::nullopt);
    ASSERT_TRUE(sized.url);
    const QImage upright = frameAt(sized.path(), 0.5);
    ASSERT_EQ(upright.size(), QSize(90, 160));
    EXPECT_TRUE(near(upright.pixelColor(67, 40), QColor(255, 0, 0))) << upright.pixelColor(67, 40).name().toStdString();
    EXPECT_TRUE(near(upright.pixelColor(22, 40), QColor(0, 255, 0)));
    EXPECT_TRUE(near(upright.pixelColor(67, 120), QColor(0, 0, 255)));
    EXPECT_TRUE(near(upright.pixelColor(22, 120), QColor(255, 255, 255)));

    // Without a size: the landscape natural size, with the turned picture clipped to it.
    const MergeRun natural = merge(recording, std::nullopt, false, std::nullopt);
    ASSERT_TRUE(natural.url);
    const QImage landscape = frameAt(natural.path(), 0.5);
    ASSERT_EQ(landscape.size(), QSize(320, 180));
    EXPECT_TRUE(near(landscape.pixelColor(135, 80), QColor(255, 0, 0)));
    EXPECT_TRUE(near(landscape.pixelColor(45, 80), QColor(0, 255, 0)));
    EXPECT_TRUE(near(landscape.pixelColor(250, 90), QColor(0, 0, 0)));

    // A recording turned upside down is drawn unturned when scaled to a size.
    TestMedia::setDisplayMatrix(recording, QTransform(-1, 0, 0, -1, 320, 180));
    const MergeRun flipped = merge(recording, QSizeF(160, 90), false, std::nullopt);
    ASSERT_TRUE(flipped.url);
    const QImage unturned = frameAt(flipped.path(), 0.5);
    EXPECT_TRUE(near(unturned.pixelColor(20, 20), QColor(255, 0, 0)));
    EXPECT_TRUE(near(unturned.pixelColor(140, 70), QColor(255, 255, 255)));
}

TEST_F(MergeTest, MusicThatFailsToDecodeAdvisesAMutedRetry)
{
    const QString video = media.movie(QStringLiteral("v.mp4"), blue, 2.0, true);
    const QString music = media.music(QStringLiteral("damaged.m4a"), 3.0);
    TestMedia::scrambleMediaData(music);

    const MergeRun first = merge(video, std::nullopt, false, music);
    EXPECT_FALSE(first.url);
    EXPECT_EQ(first.retryMuted, true);
    EXPECT_TRUE(first.completedOnGuiThread);
    // Nothing half written is left, under the final name or any other.
    EXPECT_TRUE(leftInDocuments().isEmpty());
    const QStringList reports = nonFatalReports();
    ASSERT_EQ(reports.size(), 1);
    EXPECT_TRUE(reports[0].contains(QStringLiteral("\"domain\":\"Retrying video with muted audio export issue\"")))
        << reports[0].toStdString();

    const MergeRun retry = merge(video, std::nullopt, true, music);
    ASSERT_TRUE(retry.url);
    EXPECT_FALSE(retry.retryMuted);
    EXPECT_TRUE(streamsOf(retry.path(), QStringLiteral("audio")).empty());
}

TEST_F(MergeTest, FailureOfThePictureSideEndsWithNothing)
{
    const QString video = media.movie(QStringLiteral("v.mp4"), blue, 1.0, true);
    const MergeRun run = MergeRun::start(
        { 30, home.filePath(QStringLiteral("missing/folder")), Quality::high, Placement::stretchFit() }, video,
        std::nullopt, false, std::nullopt, transparent());
    EXPECT_FALSE(run.url);
    EXPECT_FALSE(run.retryMuted);
    const QStringList reports = nonFatalReports();
    ASSERT_EQ(reports.size(), 1);
    EXPECT_TRUE(reports[0].contains(QStringLiteral("\"domain\":\"Failed video export\""))) << reports[0].toStdString();
}
