#include "gifreader.h"
#include "quillettool.h"
#include "testhome.h"
#include "testmedia.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

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

// The edit command on a video design: the music that the audio library hands over, the video's own sound
// back, and a movie in place of the background movie, cached into Documents.
TEST_F(VideoToolTest, EditHandsOverTheMusicAndReplacesTheMovieOfAVideoDesign)
{
    const QString first = media.movie(QStringLiteral("first.mp4"), QStringLiteral("testsrc2=s=160x284:r=25"), 2, true);
    const QString picked = media.movie(QStringLiteral("picked.mp4"), QStringLiteral("testsrc=s=160x284:r=25"), 1);
    const QString music = media.music(QStringLiteral("music.m4a"), 1.5);
    auto write = [this](const QString &name, const QJsonValue &json) {
        const QString path = home.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(json.isArray() ? QJsonDocument(json.toArray()).toJson() : QJsonDocument(json.toObject()).toJson());
        return path;
    };
    const QString design = write(QStringLiteral("video.json"),
        QJsonObject { { "width", 540 }, { "height", 960 }, { "is_Video", true },
            { "background_json", QJsonObject { { "background_image", QUrl::fromLocalFile(first).toString() } } } });
    auto edit = [&](const QString &document, const QJsonArray &steps) {
        const ToolRun run = runQuilletTool({ QStringLiteral("edit"), document, QStringLiteral("--area"),
            QStringLiteral("360x640"), QStringLiteral("--steps"), write(QStringLiteral("steps.json"), steps) });
        return std::make_pair(run, QJsonDocument::fromJson(run.out.toUtf8()).object());
    };

    const auto [withMusic, result] = edit(design,
        { QJsonObject { { "op", "music" }, { "url", music } },
            QJsonObject { { "op", "replaceVideo" }, { "path", picked } } });
    ASSERT_EQ(withMusic.exitCode, 0) << withMusic.err.toStdString();
    const QJsonObject master = result.value(QStringLiteral("masterJson")).toObject();
    const QString musicUrl = QUrl::fromLocalFile(music).toString(QUrl::FullyEncoded);
    EXPECT_EQ(
        master.value(QStringLiteral("audio_json")).toObject().value(QStringLiteral("audio_url")).toString(), musicUrl);
    const QString movie = master.value(QStringLiteral("background_json"))
                              .toObject()
                              .value(QStringLiteral("background_image"))
                              .toString();
    EXPECT_EQ(QFileInfo(QUrl(movie).toLocalFile()).absolutePath(), QFileInfo(documents).absoluteFilePath());
    EXPECT_EQ(streamsOf(QUrl(movie).toLocalFile(), QStringLiteral("video")).size(), 1u);
    const QJsonObject video = result.value(QStringLiteral("video")).toObject();
    EXPECT_EQ(video.value(QStringLiteral("url")).toString(), movie);
    EXPECT_EQ(video.value(QStringLiteral("audioURL")).toString(), musicUrl);
    EXPECT_TRUE(video.value(QStringLiteral("playerMuted")).toBool());
    EXPECT_TRUE(video.value(QStringLiteral("soundEnabled")).toBool());

    const auto [ownSound, back] = edit(write(QStringLiteral("withmusic.json"), master),
        { QJsonObject { { "op", "music" }, { "url", QJsonValue::Null } } });
    ASSERT_EQ(ownSound.exitCode, 0) << ownSound.err.toStdString();
    EXPECT_TRUE(back.value(QStringLiteral("masterJson")).toObject().value(QStringLiteral("audio_json")).isNull()
        || !back.value(QStringLiteral("masterJson")).toObject().contains(QStringLiteral("audio_json")));
    EXPECT_FALSE(back.value(QStringLiteral("video")).toObject().value(QStringLiteral("playerMuted")).toBool());
    EXPECT_TRUE(back.value(QStringLiteral("video")).toObject().value(QStringLiteral("audioURL")).isNull());

    const QString image = write(QStringLiteral("image.json"), QJsonObject { { "width", 540 }, { "height", 960 } });
    const ToolRun refused = edit(image, { QJsonObject { { "op", "music" }, { "url", music } } }).first;
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_TRUE(refused.err.contains(QStringLiteral("takes a video design"))) << refused.err.toStdString();
    const ToolRun missing = edit(
        design, { QJsonObject { { "op", "replaceVideo" }, { "path", home.filePath(QStringLiteral("nothing.mp4")) } } })
                                .first;
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_TRUE(missing.err.contains(QStringLiteral("no movie at"))) << missing.err.toStdString();
}
