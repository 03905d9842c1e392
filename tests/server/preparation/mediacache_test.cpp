// The image and video caches against the content server: decoding, the disk behind memory, failures,
// and the never-expiring video entries.
#include "apppaths.h"
#include "contentserverfixture.h"
#include "extendedpack.h"
#include "imagecache.h"
#include "imagedecoder.h"
#include "testhome.h"
#include "videocache.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTest>

#include <gtest/gtest.h>

namespace {

struct Loaded
{
    QImage image;
    QString error;
    bool done = false;
};

Loaded loadImage(const QString &address)
{
    Loaded result;
    ImageCache::shared().loadImage(QUrl(address), nullptr, [&](const QImage &image, const QString &error) {
        result = { image, error, true };
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return result.done; }, 15000));
    return result;
}

struct Fetched
{
    std::optional<QString> file;
    QString error;
    bool done = false;
};

Fetched fetchVideo(const QString &address)
{
    Fetched result;
    VideoCache::shared().fetch(QUrl(address), nullptr, [&](const std::optional<QString> &file, const QString &error) {
        result = { file, error, true };
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return result.done; }, 15000));
    return result;
}

TEST(ImageCache, WebPAndJpegDecodeAndTheDiskServesOnceTheServerIsGone)
{
    TestHome home;
    TestContentServer server;
    ImageCache::shared().clearMemory();
    const QString webp = server.contentBase() + QStringLiteral("resource/tpl_1001.webp");
    const QString jpeg = server.contentBase() + QStringLiteral("resource/tpl_1001.jpg");
    const Loaded fromWebp = loadImage(webp);
    ASSERT_FALSE(fromWebp.image.isNull()) << fromWebp.error.toStdString();
    const Loaded fromJpeg = loadImage(jpeg);
    ASSERT_FALSE(fromJpeg.image.isNull());
    EXPECT_EQ(fromWebp.image.size(), fromJpeg.image.size());
    EXPECT_TRUE(QFile::exists(ImageCache::diskPath(webp)));

    server.server().setRefuseConnections(true);
    ImageCache::shared().clearMemory();
    const int loads = ImageCache::shared().networkLoads();
    EXPECT_EQ(loadImage(webp).image.size(), fromWebp.image.size());
    EXPECT_EQ(ImageCache::shared().networkLoads(), loads);
    EXPECT_TRUE(ImageCache::shared().isInMemory(webp));
}

TEST(ImageCache, MissingPicturesAndBytesThatAreNoPictureFailWithoutADiskEntry)
{
    TestHome home;
    TestContentServer server;
    const QString missing = server.contentBase() + QStringLiteral("resource/no_such_picture.png");
    const Loaded notFound = loadImage(missing);
    EXPECT_TRUE(notFound.image.isNull());
    EXPECT_FALSE(notFound.error.isEmpty());
    EXPECT_FALSE(QFile::exists(ImageCache::diskPath(missing)));

    const QString font = server.contentBase() + QStringLiteral("fonts/lobster.otf");
    EXPECT_TRUE(loadImage(font).image.isNull());
    EXPECT_FALSE(QFile::exists(ImageCache::diskPath(font)));

    EXPECT_TRUE(ImageDecoder::decode(QByteArray("RIFF\x10\0\0\0WEBPVP8 garbage", 24)).isNull());
}

TEST(VideoCache, DownloadIsNamedByTimeAndItsEntryIsTrustedForeverWithoutTheNetwork)
{
    TestHome home;
    TestContentServer server;
    const QString address = server.contentBase() + QStringLiteral("video/story_1.mp4");
    const Fetched first = fetchVideo(address);
    ASSERT_TRUE(first.file.has_value()) << first.error.toStdString();
    EXPECT_TRUE(first.file->startsWith(AppPaths::documents() + QLatin1Char('/')));
    EXPECT_TRUE(first.file->endsWith(QStringLiteral(".mov")));
    EXPECT_GT(QFile(*first.file).size(), 0);

    server.server().setRefuseConnections(true);
    EXPECT_EQ(fetchVideo(address).file, first.file);
    // No check that the file is still there: the entry alone answers.
    QFile::remove(*first.file);
    EXPECT_EQ(fetchVideo(address).file, first.file);

    const Fetched offline = fetchVideo(server.contentBase() + QStringLiteral("video/story_2.mp4"));
    EXPECT_FALSE(offline.file.has_value());
    EXPECT_FALSE(offline.error.isEmpty());
}

TEST(ImageCache, OneAddressIsOneEntryHoweverItIsSpelled)
{
    TestHome home;
    ExtendedPack pack;
    QImage picture(6, 4, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    pack.addAsset("resource/my photo.png", png);
    ASSERT_TRUE(pack.start());
    ImageCache::shared().clearMemory();
    ASSERT_FALSE(loadImage(pack.contentBase() + QStringLiteral("resource/my photo.png")).image.isNull());
    const QString encoded = pack.contentBase() + QStringLiteral("resource/my%20photo.png");
    EXPECT_TRUE(ImageCache::shared().isInMemory(encoded));
    ImageCache::shared().clearMemory();
    EXPECT_EQ(ImageCache::shared().imageFromCache(encoded).size(), picture.size());
    EXPECT_EQ(QDir(AppPaths::database(QStringLiteral("ImageCache"))).entryList(QDir::Files).size(), 1);
}

TEST(VideoCache, OverlappingFetchesOfOneAddressShareOneDownloadAndOneFile)
{
    TestHome home;
    TestContentServer server;
    server.server().setLatency(std::chrono::milliseconds(200));
    const QString address = server.contentBase() + QStringLiteral("video/story_2.mp4");
    QList<std::optional<QString>> files;
    for (const QString &spelling : { address, server.contentBase() + QStringLiteral("video/story%5F2.mp4") })
        VideoCache::shared().fetch(
            QUrl(spelling), nullptr, [&](const std::optional<QString> &file, const QString &) { files.append(file); });
    ASSERT_TRUE(QTest::qWaitFor([&] { return files.size() == 2; }, 15000));
    ASSERT_TRUE(files.at(0).has_value());
    EXPECT_EQ(files.at(0), files.at(1));
    EXPECT_EQ(QDir(AppPaths::documents()).entryList({ QStringLiteral("*.mov") }, QDir::Files).size(), 1);
}

} // namespace
