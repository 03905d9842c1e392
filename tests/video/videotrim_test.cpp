#include "quillettool.h"
#include "testhome.h"
#include "testmedia.h"
#include "videotrim.h"

#include <QDir>
#include <QJsonArray>
#include <QProcess>

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr double frame = 0.04; // the test movies run at 25 pictures a second

// A 10 s movie with a tone, a key frame every `keyInterval` pictures; the hue turns from each picture to
// the next, so that neighbours differ clearly.
QString tenSeconds(const TestMedia &media, int keyInterval)
{
    return media.make(QStringLiteral("movie-%1.mp4").arg(keyInterval),
        { QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
            QStringLiteral("testsrc=size=320x240:rate=25,hue=h=n*40"), QStringLiteral("-f"), QStringLiteral("lavfi"),
            QStringLiteral("-i"), QStringLiteral("sine=frequency=440:sample_rate=44100"), QStringLiteral("-t"),
            QStringLiteral("10"), QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-g"),
            QString::number(keyInterval), QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p"), QStringLiteral("-c:a"),
            QStringLiteral("aac") });
}

double durationOf(const QJsonObject &stream)
{
    return stream.value(QStringLiteral("duration")).toString().toDouble();
}

// The mean difference of two pictures of the same size, per channel, 0 to 255.
double difference(const QImage &a, const QImage &b)
{
    const QImage x = a.convertToFormat(QImage::Format_RGB32);
    const QImage y = b.convertToFormat(QImage::Format_RGB32);
    if (x.size() != y.size() || x.isNull())
        return 255;
    double sum = 0;
    for (int row = 0; row < x.height(); ++row) {
        const auto *p = reinterpret_cast<const QRgb *>(x.constScanLine(row));
        const auto *q = reinterpret_cast<const QRgb *>(y.constScanLine(row));
        for (int col = 0; col < x.width(); ++col)
            sum += std::abs(qRed(p[col]) - qRed(q[col])) + std::abs(qGreen(p[col]) - qGreen(q[col]))
                + std::abs(qBlue(p[col]) - qBlue(q[col]));
    }
    return sum / (3.0 * x.width() * x.height());
}

// What ffmpeg says when it decodes the whole file; empty when it finds nothing wrong.
QString decodeErrors(const QString &file)
{
    QProcess ffmpeg;
    ffmpeg.start(QStringLiteral("ffmpeg"),
        { QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), file, QStringLiteral("-f"),
            QStringLiteral("null"), QStringLiteral("-") });
    ffmpeg.waitForFinished(60000);
    return QString::fromUtf8(ffmpeg.readAllStandardError());
}

// The sizes of a file's video packets whose picture is shown in [from, to), in decoding order.
std::vector<int> packetSizes(const QString &file, double from, double to)
{
    QProcess ffprobe;
    ffprobe.start(QStringLiteral("ffprobe"),
        { QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-select_streams"), QStringLiteral("v"),
            QStringLiteral("-show_entries"), QStringLiteral("packet=pts_time,size"), QStringLiteral("-of"),
            QStringLiteral("csv=p=0"), file });
    ffprobe.waitForFinished(60000);
    std::vector<int> sizes;
    for (const QByteArray &line : ffprobe.readAllStandardOutput().split('\n')) {
        const QList<QByteArray> fields = line.split(',');
        if (fields.size() < 2)
            continue;
        const double pts = fields[0].toDouble();
        if (pts >= from - 0.001 && pts < to - 0.001)
            sizes.push_back(fields[1].toInt());
    }
    return sizes;
}

class VideoTrimTest : public ::testing::TestWithParam<int>
{
protected:
    TestHome home;
    TestMedia media { home.filePath(QStringLiteral("media")) };
};

} // namespace

// 2.0 to 7.5 s of a 10 s movie: 5.5 s within a picture, starting with the picture shown at 2.0 s, with
// its sound, and decodable throughout. With one key frame only, everything is encoded again; with a key
// frame every 1.2 s, the whole groups between 2.4 and 7.2 s are the movie's own packets.
TEST_P(VideoTrimTest, TheTrimOfTwoToSevenAndAHalfSecondsLastsFiveAndAHalf)
{
    const QString movie = tenSeconds(media, GetParam());
    const QString cut = media.path(QStringLiteral("cut.mov"));
    std::vector<double> fractions;
    const QString error = VideoTrim::cut({ movie, 2.0, 7.5, cut, 18 }, [&](double fraction) {
        fractions.push_back(fraction);
        return true;
    });
    ASSERT_TRUE(error.isEmpty()) << qPrintable(error);
    EXPECT_FALSE(QFile::exists(cut + QStringLiteral(".part")));
    ASSERT_FALSE(fractions.empty());
    EXPECT_EQ(fractions.back(), 1.0);
    EXPECT_TRUE(std::is_sorted(fractions.begin(), fractions.end()));

    const std::vector<QJsonObject> video = streamsOf(cut, QStringLiteral("video"));
    const std::vector<QJsonObject> audio = streamsOf(cut, QStringLiteral("audio"));
    ASSERT_EQ(video.size(), 1U);
    ASSERT_EQ(audio.size(), 1U);
    EXPECT_NEAR(durationOf(video.front()), 5.5, frame + 0.001);
    EXPECT_NEAR(durationOf(audio.front()), 5.5, 0.05);
    EXPECT_EQ(video.front().value(QStringLiteral("codec_name")).toString(), QStringLiteral("h264"));
    EXPECT_TRUE(decodeErrors(cut).isEmpty()) << qPrintable(decodeErrors(cut));

    // Its first picture is the one of 2.0 s, not its neighbours.
    const QImage first = frameAt(cut, 0);
    const double atStart = difference(first, frameAt(movie, 2.0));
    EXPECT_LT(atStart, 2.0);
    EXPECT_LT(atStart, difference(first, frameAt(movie, 2.0 - frame)) / 4);
    EXPECT_LT(atStart, difference(first, frameAt(movie, 2.0 + frame)) / 4);
    // And its last the one shown just before 7.5 s.
    EXPECT_LT(difference(frameAt(cut, 5.5 - frame), frameAt(movie, 7.5 - frame)), 2.0);

    if (GetParam() == 30) {
        const std::vector<int> copied = packetSizes(cut, 0.4, 5.2);
        const std::vector<int> source = packetSizes(movie, 2.4, 7.2);
        ASSERT_EQ(copied.size(), source.size());
        // The first carries the movie's parameter sets in front of its picture.
        EXPECT_GT(copied.front(), source.front());
        EXPECT_TRUE(std::equal(copied.begin() + 1, copied.end(), source.begin() + 1));
    }
}

INSTANTIATE_TEST_SUITE_P(KeyFrames, VideoTrimTest, ::testing::Values(250, 30));

// A cut that fails or is stopped leaves no file, under its name or beside it.
TEST(VideoTrim, AFailedOrStoppedCutLeavesNoFile)
{
    TestHome home;
    const TestMedia media(home.filePath(QStringLiteral("media")));
    const QString movie = tenSeconds(media, 30);
    const QString cut = media.path(QStringLiteral("cut.mp4"));

    const QString stopped
        = VideoTrim::cut({ movie, 1.0, 9.0, cut, 18 }, [](double fraction) { return fraction < 0.5; });
    EXPECT_FALSE(stopped.isEmpty());
    EXPECT_EQ(QDir(media.path({})).entryList({ QStringLiteral("cut*") }, QDir::Files), QStringList());

    EXPECT_FALSE(
        VideoTrim::cut({ movie, 1.0, 2.0, media.path(QStringLiteral("no/such/folder/cut.mp4")), 18 }).isEmpty());
    EXPECT_FALSE(VideoTrim::cut({ movie, 12.0, 14.0, cut, 18 }).isEmpty()); // past the end
    EXPECT_FALSE(VideoTrim::cut({ movie, 3.0, 2.0, cut, 18 }).isEmpty());
    EXPECT_FALSE(VideoTrim::cut({ media.path(QStringLiteral("missing.mp4")), 1.0, 2.0, cut, 18 }).isEmpty());
    EXPECT_FALSE(QFile::exists(cut));
}

// quillet-tool trim makes the same cut and prints its path.
TEST(VideoTrim, QuilletToolTrimPrintsTheCut)
{
    TestHome home;
    const TestMedia media(home.filePath(QStringLiteral("media")));
    const QString movie = tenSeconds(media, 250);
    const QString cut = media.path(QStringLiteral("tool.mp4"));
    const ToolRun run = runQuilletTool({ QStringLiteral("trim"), movie, QStringLiteral("--start"),
        QStringLiteral("2.0"), QStringLiteral("--end"), QStringLiteral("7.5"), QStringLiteral("-o"), cut });
    ASSERT_EQ(run.exitCode, 0) << qPrintable(run.err);
    EXPECT_EQ(run.out.trimmed(), cut);
    EXPECT_NEAR(durationOf(streamsOf(cut, QStringLiteral("video")).front()), 5.5, frame + 0.001);

    const ToolRun bad
        = runQuilletTool({ QStringLiteral("trim"), movie, QStringLiteral("--start"), QStringLiteral("x") });
    EXPECT_NE(bad.exitCode, 0);
    EXPECT_TRUE(bad.err.contains(QStringLiteral("usage")));
}
