#include "apppaths.h"
#include "contentserverfixture.h"
#include "testhome.h"
#include "testmedia.h"
#include "videoview.h"

#include <QDir>
#include <QProcess>
#include <QTest>

#include <gtest/gtest.h>

namespace {

QStringList temporaryFiles()
{
    return QDir(AppPaths::tmp()).entryList(QDir::Files);
}

// The packets of a file's video stream, hashed, as ffmpeg reads them without decoding.
QByteArray videoPacketsHash(const QString &file)
{
    QProcess ffmpeg;
    ffmpeg.start(QStringLiteral("ffmpeg"),
        { QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), file, QStringLiteral("-map"),
            QStringLiteral("0:v"), QStringLiteral("-c"), QStringLiteral("copy"), QStringLiteral("-f"),
            QStringLiteral("streamhash"), QStringLiteral("-") });
    ffmpeg.waitForFinished(60000);
    return ffmpeg.readAllStandardOutput();
}

struct Answer
{
    bool given = false;
    std::optional<QUrl> url;
};

} // namespace

// A local movie needs no copy: it is given back at once, and nothing is written.
TEST(CacheVideo, ALocalFileIsGivenBackAtOnceWithoutACopy)
{
    TestHome home;
    const TestMedia media(home.filePath(QStringLiteral("media")));
    const QUrl movie
        = QUrl::fromLocalFile(media.movie(QStringLiteral("own.mp4"), QStringLiteral("testsrc=size=160x120"), 1.0));
    VideoView view;
    view.setVideo(movie.toString());
    Answer answer;
    view.cacheVideo([&answer](const std::optional<QUrl> &url) { answer = { true, url }; });
    ASSERT_TRUE(answer.given);
    EXPECT_EQ(answer.url, movie);
    EXPECT_TRUE(temporaryFiles().isEmpty());
    EXPECT_FALSE(view.videoURL());

    // With no video there is nothing to give.
    view.removeVideo();
    answer = {};
    view.cacheVideo([&answer](const std::optional<QUrl> &url) { answer = { true, url }; });
    EXPECT_TRUE(answer.given && !answer.url);
}

// A remote movie is copied once into the temporary folder, packet for packet; the next call is answered
// at once with that copy, and a call while the copy is being made waits for the same copy.
TEST(CacheVideo, ARemoteVideoIsCopiedOnceAndTheSecondCallIsAnsweredAtOnce)
{
    TestHome home;
    TestContentServer server;
    const QString address = server.contentBase() + QStringLiteral("video/bgvideo_0.mp4");
    VideoView view;
    view.setVideo(address);
    Answer first;
    Answer during;
    view.cacheVideo([&first](const std::optional<QUrl> &url) { first = { true, url }; });
    view.cacheVideo([&during](const std::optional<QUrl> &url) { during = { true, url }; });
    EXPECT_FALSE(first.given);
    ASSERT_TRUE(QTest::qWaitFor([&] { return first.given; }, 30000));
    ASSERT_TRUE(first.url && first.url->isLocalFile());
    EXPECT_TRUE(during.given);
    EXPECT_EQ(during.url, first.url);
    EXPECT_EQ(view.videoURL(), first.url);
    const QString copy = first.url->toLocalFile();
    EXPECT_EQ(QFileInfo(copy).absolutePath(), QDir(AppPaths::tmp()).absolutePath());
    EXPECT_TRUE(copy.endsWith(QStringLiteral(".mov")));
    EXPECT_EQ(temporaryFiles(), QStringList { QFileInfo(copy).fileName() }); // no partial file left
    // A remux: the very packets of the source.
    const QString source
        = QString::fromStdString((ContentServer::defaultContentDir() / "video/bgvideo_0.mp4").string());
    EXPECT_FALSE(videoPacketsHash(copy).isEmpty());
    EXPECT_EQ(videoPacketsHash(copy), videoPacketsHash(source));
    EXPECT_EQ(streamsOf(copy, QStringLiteral("video")).front().value(QStringLiteral("nb_read_frames")),
        streamsOf(source, QStringLiteral("video")).front().value(QStringLiteral("nb_read_frames")));

    Answer second;
    view.cacheVideo([&second](const std::optional<QUrl> &url) { second = { true, url }; });
    ASSERT_TRUE(second.given);
    EXPECT_EQ(second.url, first.url);
    EXPECT_EQ(temporaryFiles().size(), 1);

    // Another video forgets the copy of the earlier one.
    view.setVideo(address);
    EXPECT_FALSE(view.videoURL());
}

// A remote movie that cannot be had gives nothing, and leaves no file behind.
TEST(CacheVideo, AMissingRemoteVideoGivesNothing)
{
    TestHome home;
    TestContentServer server;
    VideoView view;
    view.setVideo(server.contentBase() + QStringLiteral("video/missing.mp4"));
    Answer answer;
    view.cacheVideo([&answer](const std::optional<QUrl> &url) { answer = { true, url }; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return answer.given; }, 30000));
    EXPECT_FALSE(answer.url);
    EXPECT_FALSE(view.videoURL());
    EXPECT_TRUE(temporaryFiles().isEmpty());
}
