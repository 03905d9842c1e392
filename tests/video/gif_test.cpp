#include "gifreader.h"
#include "mergerun.h"
#include "testhome.h"
#include "testmedia.h"

#include "gifmaker.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

namespace {

// The grey of source frame `n` of the time-coded movie below: 16 levels that repeat, so that a frame
// one off the right one shows.
int greyOfFrame(int n)
{
    return int(std::lround((n % 16) * 13 * 255.0 / 219.0));
}

class GifTest : public ::testing::Test
{
protected:
    // 8 s at 30 frames per second, each frame's grey telling its number; lossless H.264 with B-frames and
    // a key frame every 50 frames, so that finding a time means seeking and reordering.
    QString timeCodedMovie()
    {
        return media.make(QStringLiteral("timecoded.mp4"),
            { QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                QStringLiteral("color=c=black:s=64x64:r=30:d=8,format=yuv420p,geq=lum=16+mod(N\\,16)*13:cb=128:cr=128"),
                QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-qp"), QStringLiteral("0"),
                QStringLiteral("-g"), QStringLiteral("50"), QStringLiteral("-bf"), QStringLiteral("3") });
    }

    // Frame i of 16 over 8 s is source frame 15 i.
    static void expectTimeCoded(const QImage &frame, int i, QPoint at)
    {
        EXPECT_NEAR(qGray(frame.pixel(at)), greyOfFrame(15 * i), 5) << "frame " << i;
    }

    TestHome home;
    TestMedia media { home.filePath(QStringLiteral("media")) };
};

} // namespace

TEST(GifSize, LongerSideAtMost1024)
{
    EXPECT_EQ(GifMaker::sizeFor(QSizeF(1920, 1080)), QSize(1024, 576));
    EXPECT_EQ(GifMaker::sizeFor(QSizeF(1080, 1920)), QSize(576, 1024));
    EXPECT_EQ(GifMaker::sizeFor(QSizeF(1080, 540)), QSize(1024, 512));
    EXPECT_EQ(GifMaker::sizeFor(QSizeF(600, 300)), QSize(600, 300));
    EXPECT_EQ(GifMaker::sizeFor(QSizeF(1024, 1024)), QSize(1024, 1024));
}

TEST_F(GifTest, MovieGivesSixteenFramesOfTwentyHundredthsLoopingForEver)
{
    const QString movie = timeCodedMovie();
    const QString output = home.filePath(QStringLiteral("out.gif"));
    ASSERT_TRUE(GifMaker(output, QSize(48, 32)).createGif(movie));
    const std::optional<GifContents> gif = readGif(output);
    ASSERT_TRUE(gif);
    EXPECT_EQ(gif->size, QSize(48, 32));
    ASSERT_EQ(gif->frames.size(), 16u);
    EXPECT_EQ(gif->delays, std::vector<int>(16, 20));
    EXPECT_EQ(gif->loopCount, 0);
    // The frames shown at 0, 0.5, 1, ... 7.5 s.
    for (int i = 0; i < 16; ++i)
        expectTimeCoded(gif->frames[std::size_t(i)], i, QPoint(24, 16));
    EXPECT_FALSE(QFile::exists(output + QStringLiteral(".part")));
}

TEST_F(GifTest, MergeTapHandsOverTheCompositedFramesBeforeEncoding)
{
    const QString movie = timeCodedMovie();
    QImage overlay(QSize(64, 64), QImage::Format_ARGB32_Premultiplied);
    overlay.fill(Qt::transparent);
    QPainter(&overlay).fillRect(QRect(0, 0, 32, 64), QColor(0, 255, 0));

    const QString output = home.filePath(QStringLiteral("Documents/tapped.gif"));
    const GifMaker maker(output, GifMaker::sizeFor(QSizeF(64, 64)));
    auto frames = std::make_shared<GifFrames>();
    // The GIF maker's tap, watched on its way: the pictures it is handed.
    FrameTap tap = maker.frameTap(frames);
    auto taken = std::make_shared<std::vector<QImage>>(16);
    tap.take = [taken, forward = tap.take](int index, const QImage &frame) {
        taken->at(std::size_t(index)) = frame;
        forward(index, frame);
    };
    const MergeRun run
        = MergeRun::start({ 30, home.filePath(QStringLiteral("Documents")), Quality::low, Placement::stretchFit() },
            movie, std::nullopt, false, std::nullopt, overlay, tap);
    ASSERT_TRUE(run.url);

    for (int i = 0; i < 16; ++i) {
        const QImage &frame = taken->at(std::size_t(i));
        ASSERT_EQ(frame.size(), QSize(64, 64));
        // Composited: the overlay on the left, the video on the right, exact as no encoder has touched them.
        EXPECT_TRUE(near(frame.pixelColor(8, 32), QColor(0, 255, 0), 4)) << i;
        EXPECT_NEAR(qGray(frame.pixel(56, 32)), greyOfFrame(15 * i), 2) << "frame " << i;
    }

    ASSERT_TRUE(maker.createGif(*frames));
    const std::optional<GifContents> gif = readGif(output);
    ASSERT_TRUE(gif);
    ASSERT_EQ(gif->frames.size(), 16u);
    EXPECT_EQ(gif->delays, std::vector<int>(16, 20));
    EXPECT_EQ(gif->loopCount, 0);
    for (int i = 0; i < 16; ++i)
        expectTimeCoded(gif->frames[std::size_t(i)], i, QPoint(56, 32));
}

TEST_F(GifTest, InBackgroundCompletesOnTheGuiThread)
{
    const QString movie = timeCodedMovie();
    const QString notMovie = media.music(QStringLiteral("sound.m4a"), 1);
    const auto make = [&](const QString &source, const QString &output) {
        std::optional<QUrl> result;
        bool done = false;
        bool onGuiThread = false;
        GifMaker(output, QSize(32, 32)).createGifInBackground(source, [&](const std::optional<QUrl> &gif) {
            result = gif;
            onGuiThread = QThread::currentThread() == QCoreApplication::instance()->thread();
            done = true;
        });
        EXPECT_TRUE(QTest::qWaitFor([&] { return done; }, 60000));
        EXPECT_TRUE(onGuiThread);
        return result;
    };
    const QString good = home.filePath(QStringLiteral("good.gif"));
    EXPECT_EQ(make(movie, good), QUrl::fromLocalFile(good));
    const QString bad = home.filePath(QStringLiteral("bad.gif"));
    EXPECT_EQ(make(notMovie, bad), std::nullopt);
    EXPECT_FALSE(QFile::exists(bad));
    EXPECT_FALSE(QFile::exists(bad + QStringLiteral(".part")));
}
