#include "audiooutputs.h"
#include "testhome.h"
#include "testmedia.h"
#include "videoview.h"

#include <QAudioOutput>
#include <QElapsedTimer>
#include <QFile>
#include <QMediaPlayer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>
#include <QVideoFrame>
#include <QVideoSink>
#include <QtQml/qqmlextensionplugin.h>

#include <gtest/gtest.h>

Q_IMPORT_QML_PLUGIN(Quillet_VideoPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_UiPlugin)

namespace {

// Real players on real files. This machine has no sound device, so the players get an output anyway:
// the backend's sink then keeps the music's time as a device would.
class VideoViewTest : public ::testing::Test
{
protected:
    VideoViewTest() { AudioOutputs::setAttachWithoutDevice(true); }
    ~VideoViewTest() override { AudioOutputs::setAttachWithoutDevice(false); }

    QString movie(double seconds)
    {
        return media.movie(QStringLiteral("movie.mp4"), QStringLiteral("testsrc=size=160x120:rate=25"), seconds, true);
    }
    QString music(double seconds) { return media.music(QStringLiteral("music.m4a"), seconds); }

    TestHome home;
    TestMedia media { home.filePath(QStringLiteral("media")) };
};

bool waitFor(const std::function<bool()> &condition, int ms = 10000)
{
    return QTest::qWaitFor(condition, ms);
}

struct Sample
{
    qint64 video;
    qint64 music;
};

// Where a position went back: the sample before each jump backwards.
std::vector<std::size_t> jumpsBack(const std::vector<qint64> &positions, qint64 by)
{
    std::vector<std::size_t> jumps;
    for (std::size_t i = 1; i < positions.size(); ++i) {
        if (positions[i] < positions[i - 1] - by)
            jumps.push_back(i - 1);
    }
    return jumps;
}

} // namespace

// A 1.4 s music over a 2 s movie: it restarts at its own end, and again when the movie starts over,
// although it is then in its middle.
TEST_F(VideoViewTest, MusicShorterThanTheVideoRestartsByItselfAndWhenTheVideoEnds)
{
    VideoView view;
    view.isLoop = true;
    view.audioURL = QUrl::fromLocalFile(music(1.4));
    view.setVideo(QUrl::fromLocalFile(movie(2.0)).toString());
    view.play();
    ASSERT_TRUE(view.player() && view.audioPlayer());

    std::vector<qint64> video;
    std::vector<qint64> music;
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 5200) {
        QTest::qWait(10);
        video.push_back(view.player()->position());
        music.push_back(view.audioPlayer()->position());
    }
    EXPECT_TRUE(view.errorString().isEmpty()) << qPrintable(view.errorString());
    const std::vector<std::size_t> videoEnds = jumpsBack(video, 1000);
    const std::vector<std::size_t> musicRestarts = jumpsBack(music, 300);
    ASSERT_GE(videoEnds.size(), 2U) << "the movie did not loop";
    ASSERT_GE(musicRestarts.size(), 3U);

    // By itself: at its end, before the movie's.
    EXPECT_LT(musicRestarts.front(), videoEnds.front());
    EXPECT_GE(music[musicRestarts.front()], 1200);
    // With the movie: in the same moment (a few samples), from the middle of the music.
    for (const std::size_t end : videoEnds) {
        const auto with = std::find_if(musicRestarts.begin(), musicRestarts.end(),
            [end](std::size_t restart) { return restart + 15 >= end && restart <= end + 15; });
        ASSERT_NE(with, musicRestarts.end()) << "no restart of the music at the movie's end, sample " << end;
        EXPECT_LT(music[*with], 1100) << "the music was at its own end anyway";
    }
}

// With music chosen, the movie stays silent whatever the sound button says; the button only turns the
// music down or up. Without music the button silences the movie.
TEST_F(VideoViewTest, WithMusicThePlayerStaysMutedWhateverTheSoundButtonSays)
{
    VideoView view;
    view.audioURL = QUrl::fromLocalFile(music(1.0));
    view.setVideo(QUrl::fromLocalFile(movie(1.0)).toString());
    ASSERT_TRUE(view.player()->audioOutput() && view.audioPlayer()->audioOutput());
    EXPECT_TRUE(view.isPlayerMuted());
    EXPECT_TRUE(view.player()->audioOutput()->isMuted());

    view.setMuted(false);
    EXPECT_TRUE(view.player()->audioOutput()->isMuted());
    EXPECT_EQ(view.audioPlayer()->audioOutput()->volume(), 1.0F);
    view.setMuted(true);
    EXPECT_TRUE(view.isMuted());
    EXPECT_TRUE(view.player()->audioOutput()->isMuted());
    EXPECT_EQ(view.audioPlayer()->audioOutput()->volume(), 0.0F);
    view.setMuted(false);
    EXPECT_TRUE(view.player()->audioOutput()->isMuted());
    EXPECT_EQ(view.audioPlayer()->audioOutput()->volume(), 1.0F);

    // The video's own sound back: the button works on the movie again.
    view.removeAudio();
    EXPECT_EQ(view.audioPlayer(), nullptr);
    EXPECT_FALSE(view.player()->audioOutput()->isMuted());
    view.setMuted(true);
    EXPECT_TRUE(view.player()->audioOutput()->isMuted());

    // A new video keeps the button's state.
    view.setVideo(QUrl::fromLocalFile(media.path(QStringLiteral("movie.mp4"))).toString());
    EXPECT_TRUE(view.player()->audioOutput()->isMuted());
}

// A music that cannot be played plays nothing; the movie's sound is as it was before it, and the
// failure is logged and shown. A music file that is missing fails at once.
TEST_F(VideoViewTest, AMusicThatCannotBePlayedLeavesTheVideoSoundAsItWas)
{
    VideoView view;
    view.setVideo(QUrl::fromLocalFile(movie(1.0)).toString());
    view.play();
    ASSERT_FALSE(view.isPlayerMuted());

    const QString notMusic = home.filePath(QStringLiteral("notes.m4a"));
    QFile file(notMusic);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(4096, 'x'));
    file.close();
    view.audioURL = QUrl::fromLocalFile(notMusic);
    view.setAudio();
    ASSERT_TRUE(waitFor([&] { return view.audioPlayer() == nullptr; }));
    EXPECT_FALSE(view.isPlayerMuted());
    EXPECT_FALSE(view.errorString().isEmpty());
    EXPECT_EQ(view.audioURL, QUrl::fromLocalFile(notMusic)); // the export will still try it

    view.audioURL = QUrl::fromLocalFile(home.filePath(QStringLiteral("gone.mp3")));
    view.setAudio();
    EXPECT_EQ(view.audioPlayer(), nullptr);
    EXPECT_FALSE(view.isPlayerMuted());
}

// A movie that cannot be played is shown as an error over the canvas; nothing else happens.
TEST_F(VideoViewTest, AVideoThatCannotBePlayedIsShownAsAnError)
{
    const QString broken = home.filePath(QStringLiteral("noise.mp4"));
    QFile file(broken);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    for (int i = 0; i < 4096; ++i)
        file.putChar(char((i * 7919) % 251));
    file.close();
    VideoView view;
    view.isLoop = true;
    view.setVideo(QUrl::fromLocalFile(broken).toString());
    view.play();
    ASSERT_TRUE(waitFor([&] { return !view.errorString().isEmpty(); }));
    EXPECT_TRUE(view.errorString().startsWith(QStringLiteral("The video cannot be played")));
    // Loading another one clears it.
    view.setVideo(
        QUrl::fromLocalFile(media.movie(QStringLiteral("good.mp4"), QStringLiteral("testsrc"), 1.0)).toString());
    EXPECT_TRUE(view.errorString().isEmpty());
}

TEST_F(VideoViewTest, RemoveVideoForgetsTheVideoAndTheMusic)
{
    VideoView view;
    QSignalSpy changed(&view, &VideoView::videoChanged);
    view.audioURL = QUrl::fromLocalFile(music(1.0));
    view.setVideo(QUrl::fromLocalFile(movie(1.0)).toString());
    EXPECT_TRUE(view.hasPlayerLayer());
    view.play();

    view.removeVideo();
    EXPECT_FALSE(view.hasPlayerLayer());
    EXPECT_FALSE(view.url() || view.audioURL || view.videoURL());
    EXPECT_EQ(view.player(), nullptr);
    EXPECT_EQ(view.audioPlayer(), nullptr);
    EXPECT_EQ(changed.count(), 2);
    view.play(); // nothing to play, and no harm

    // Text that is not a URL loads nothing.
    view.setVideo(QStringLiteral("not a url"));
    EXPECT_FALSE(view.hasPlayerLayer());
}

// VideoViewItem shows the view's pictures, and a canvas laid into it goes over them.
TEST_F(VideoViewTest, TheItemShowsThePicturesUnderItsCanvas)
{
    VideoView view;
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    QQmlComponent component(&engine);
    component.setData(R"(
        import QtQuick
        import Quillet.Video
        VideoViewItem {
            width: 160; height: 120
            Rectangle { objectName: "canvas"; anchors.fill: parent; color: "transparent" }
        })",
        QUrl());
    ASSERT_TRUE(component.isReady()) << component.errorString().toStdString();
    std::unique_ptr<QObject> item(
        component.createWithInitialProperties({ { QStringLiteral("videoView"), QVariant::fromValue(&view) } }));
    ASSERT_TRUE(item) << component.errorString().toStdString();
    auto *output = item->findChild<QObject *>(QStringLiteral("videoOutput"));
    ASSERT_TRUE(output);
    EXPECT_EQ(view.videoOutput(), output);
    auto *canvas = item->findChild<QObject *>(QStringLiteral("canvas"));
    ASSERT_TRUE(canvas && canvas->parent() != output);

    view.setVideo(QUrl::fromLocalFile(movie(1.0)).toString());
    view.play();
    auto *sink = output->property("videoSink").value<QVideoSink *>();
    ASSERT_TRUE(sink);
    ASSERT_TRUE(waitFor([&] { return sink->videoFrame().isValid(); }));
    EXPECT_EQ(sink->videoSize(), QSize(160, 120));
    EXPECT_TRUE(output->property("visible").toBool());

    view.removeVideo();
    EXPECT_FALSE(sink->videoFrame().isValid());
    EXPECT_FALSE(output->property("visible").toBool());
}
