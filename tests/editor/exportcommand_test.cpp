#include "quillettool.h"
#include "testhome.h"
#include "testmedia.h"

#include "designstore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <gtest/gtest.h>

namespace {

QString writeDesign(const TestHome &home, const QString &video)
{
    return home.write(QStringLiteral("design.json"),
        QStringLiteral(R"({"width": 320, "height": 180, "is_Video": true,
            "background_json": {"background_image": "%1"},
            "text_json": [{"text": "Sale", "size": 40, "xPos": 20, "yPos": 20, "color": "FFFFFF"}]})")
            .arg(QUrl::fromLocalFile(video).toString())
            .toUtf8());
}

} // namespace

// quillet-tool export runs SAVE of a video design without screens: it prints the album's copy of the
// movie or GIF and the stored row's id; each run opens the template anew and stores a new row.
TEST(ExportCommand, PutsTheMovieOrTheGifIntoTheAlbumAndStoresTheDesign)
{
    TestHome home;
    TestMedia media(home.filePath(QStringLiteral("media")));
    const QString video = media.movie(QStringLiteral("v.mp4"), QStringLiteral("testsrc2=s=320x180:r=30"), 1.0, true);
    const QString design = writeDesign(home, video);
    const QString album = home.filePath(QStringLiteral("album"));

    const ToolRun movie = runQuilletTool({ QStringLiteral("export"), design, QStringLiteral("--area"),
        QStringLiteral("360x640"), QStringLiteral("--video"), QStringLiteral("--album"), album });
    ASSERT_EQ(movie.exitCode, 0) << movie.err.toStdString();
    QStringList lines = movie.out.trimmed().split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 2) << movie.out.toStdString();
    EXPECT_EQ(QFileInfo(lines.first()).absolutePath(), album);
    EXPECT_EQ(QFileInfo(lines.first()).suffix(), QStringLiteral("mov"));
    const std::vector<QJsonObject> pictures = streamsOf(lines.first(), QStringLiteral("video"));
    ASSERT_EQ(pictures.size(), 1U);
    EXPECT_EQ(pictures.front().value(QStringLiteral("width")).toInt(), 320);
    EXPECT_EQ(streamsOf(lines.first(), QStringLiteral("audio")).size(), 1U);
    {
        DesignStore store;
        const QList<SavedDesign> designs = store.savedDesigns();
        ASSERT_EQ(designs.size(), 1);
        EXPECT_EQ(designs.first().row.objectID.toString(), lines.last());
        EXPECT_TRUE(designs.first().row.is_video);
        EXPECT_TRUE(designs.first().document->sample_video.value_or(QString()).endsWith(QLatin1String(".mov")));
    }

    const ToolRun gif = runQuilletTool({ QStringLiteral("export"), design, QStringLiteral("--area"),
        QStringLiteral("360x640"), QStringLiteral("--gif"), QStringLiteral("--album"), album });
    ASSERT_EQ(gif.exitCode, 0) << gif.err.toStdString();
    lines = gif.out.trimmed().split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 2) << gif.out.toStdString();
    EXPECT_EQ(QFileInfo(lines.first()).suffix(), QStringLiteral("gif"));
    EXPECT_EQ(DesignStore().allDesigns().size(), 2);

    EXPECT_EQ(runQuilletTool({ QStringLiteral("export"), design, QStringLiteral("--album"), album }).exitCode, 1);
}
