#include "gifreader.h"
#include "quillettool.h"
#include "testhome.h"
#include "testmedia.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

class VideoToolTest : public ::testing::Test
{
protected:
    QString overlay()
    {
        return media.make(QStringLiteral("overlay.png"),
            { QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                QStringLiteral("color=c=black@0.0:s=160x90,format=rgba,drawbox=x=0:y=0:w=80:h=90:color=lime:t=fill"),
                QStringLiteral("-frames:v"), QStringLiteral("1") });
    }

    TestHome home;
    TestMedia media { home.filePath(QStringLiteral("media")) };
    QString documents = home.filePath(QStringLiteral("Documents"));
};

} // namespace

TEST_F(VideoToolTest, MergePrintsTheMovieOrTheShapeOfTheFailure)
{
    const QString video = media.movie(QStringLiteral("v.mp4"), QStringLiteral("testsrc2=s=160x90:r=30"), 1.5, true);
    const ToolRun done = runQuilletTool({ QStringLiteral("merge"), video, QStringLiteral("--overlay"), overlay(),
        QStringLiteral("--size"), QStringLiteral("320x180"), QStringLiteral("--quality"), QStringLiteral("medium"),
        QStringLiteral("--dir"), documents });
    ASSERT_EQ(done.exitCode, 0) << done.err.toStdString();
    const QString movie = done.out.trimmed();
    EXPECT_EQ(QFileInfo(movie).absolutePath(), QFileInfo(documents).absoluteFilePath());
    EXPECT_TRUE(done.err.contains(QStringLiteral("progress ")));
    const std::vector<QJsonObject> pictures = streamsOf(movie, QStringLiteral("video"));
    ASSERT_EQ(pictures.size(), 1u);
    EXPECT_EQ(pictures[0].value(QStringLiteral("width")).toInt(), 320);
    EXPECT_EQ(streamsOf(movie, QStringLiteral("audio")).size(), 1u);

    const QString music = media.music(QStringLiteral("damaged.m4a"), 2);
    TestMedia::scrambleMediaData(music);
    const ToolRun retry = runQuilletTool({ QStringLiteral("merge"), video, QStringLiteral("--overlay"), overlay(),
        QStringLiteral("--audio"), music, QStringLiteral("--dir"), documents });
    EXPECT_EQ(retry.exitCode, 1);
    EXPECT_EQ(retry.out.trimmed(), QStringLiteral("retry-muted"));
    const ToolRun muted = runQuilletTool({ QStringLiteral("merge"), video, QStringLiteral("--overlay"), overlay(),
        QStringLiteral("--audio"), music, QStringLiteral("--muted"), QStringLiteral("--dir"), documents });
    EXPECT_EQ(muted.exitCode, 0) << muted.err.toStdString();
    EXPECT_TRUE(streamsOf(muted.out.trimmed(), QStringLiteral("audio")).empty());

    const ToolRun noPicture = runQuilletTool(
        { QStringLiteral("merge"), music, QStringLiteral("--overlay"), overlay(), QStringLiteral("--dir"), documents });
    EXPECT_EQ(noPicture.exitCode, 1);
    EXPECT_EQ(noPicture.out.trimmed(), QStringLiteral("no-url"));

    const ToolRun badQuality = runQuilletTool({ QStringLiteral("merge"), video, QStringLiteral("--overlay"), overlay(),
        QStringLiteral("--quality"), QStringLiteral("best"), QStringLiteral("--dir"), documents });
    EXPECT_EQ(badQuality.exitCode, 1);
    EXPECT_TRUE(badQuality.out.isEmpty());
    EXPECT_EQ(QDir(documents).entryList(QDir::Files).size(), 2);
}

TEST_F(VideoToolTest, GifMakesTheGifAtTheSizeRuleOfTheRenderSize)
{
    const QString video = media.movie(QStringLiteral("v.mp4"), QStringLiteral("testsrc2=s=160x90:r=30"), 2);
    const QString output = home.filePath(QStringLiteral("out.gif"));
    const ToolRun made = runQuilletTool({ QStringLiteral("gif"), video, QStringLiteral("--size"),
        QStringLiteral("1920x1080"), QStringLiteral("-o"), output });
    ASSERT_EQ(made.exitCode, 0) << made.err.toStdString();
    EXPECT_EQ(made.out.trimmed(), output + QStringLiteral(" 1024x576"));
    const std::optional<GifContents> gif = readGif(output);
    ASSERT_TRUE(gif);
    EXPECT_EQ(gif->size, QSize(1024, 576));
    EXPECT_EQ(gif->frames.size(), 16u);

    const QString failed = home.filePath(QStringLiteral("failed.gif"));
    const ToolRun notMovie = runQuilletTool({ QStringLiteral("gif"), overlay(), QStringLiteral("--size"),
        QStringLiteral("160x90"), QStringLiteral("-o"), failed });
    EXPECT_EQ(notMovie.exitCode, 1);
    EXPECT_FALSE(QFileInfo::exists(failed));
}
