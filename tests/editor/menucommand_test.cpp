#include "quillettool.h"
#include "testhome.h"

#include <QDir>
#include <QImage>

#include <gtest/gtest.h>

namespace {

QString writeDesign(const TestHome &home, const char *name, const char *json)
{
    QDir().mkpath(home.filePath(QStringLiteral("resource")));
    QImage red(40, 40, QImage::Format_ARGB32);
    red.fill(Qt::red);
    red.save(home.filePath(QStringLiteral("resource/red.png")));
    return home.write(QString::fromLatin1(name), json);
}

const char *const design = R"({"width": 360, "height": 640,
    "text_json": [{"text": "Hello", "xPos": 40, "yPos": 300, "size": 20}],
    "sticker_json": [{"sticker_image": "red.png", "xPos": 100, "yPos": 100, "width": 40, "height": 40}]})";

} // namespace

// The line that the bars show, from the same controller as the screen.
TEST(MenuCommand, PrintsTheBarOfTheSelectionInEachEditor)
{
    TestHome home;
    const QString file = writeDesign(home, "design.json", design);
    auto menu = [&file](QStringList extra) {
        QStringList args { QStringLiteral("menu"), file, QStringLiteral("--area"), QStringLiteral("360x640") };
        return runQuilletTool(args + extra);
    };
    ToolRun run = menu({});
    ASSERT_EQ(run.exitCode, 0) << qPrintable(run.err);
    EXPECT_EQ(run.out,
        QStringLiteral(R"({"menuTag": 0, "contentTag": 0, "items": ["Add Text", "Add Image", "Bkground", )"
                       R"("Graphics", "Shapes", "Text Arts", "My Arts", "My Design"]})"
                       "\n"));
    run = menu({ QStringLiteral("--select"), QStringLiteral("text:1") });
    EXPECT_EQ(run.out,
        QStringLiteral(R"({"menuTag": 4, "contentTag": 11, "items": ["Edit", "Rotation", "Size", "Font", )"
                       R"("Color", "Texture", "Shadow", "Style", "Opacity", "Letter Spacing", "Vertical Spacing"]})"
                       "\n"));
    run = menu({ QStringLiteral("--select"), QStringLiteral("sticker:1") });
    EXPECT_EQ(run.out,
        QStringLiteral(R"({"menuTag": 2, "contentTag": 300, "items": ["Edit", "Rotation", "Size", "Crop", )"
                       R"("Color", "Opacity"]})"
                       "\n"));
    run = menu({ QStringLiteral("--editor"), QStringLiteral("EditVideoPortraitMode") });
    EXPECT_EQ(run.out,
        QStringLiteral(R"({"menuTag": 0, "contentTag": 0, "items": ["Add Text", "Add Image", "Add Video", )"
                       R"("Music", "Graphics", "Shapes", "Text Arts", "My Arts"]})"
                       "\n"));

    run = menu({ QStringLiteral("--select"), QStringLiteral("text:9") });
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.err.contains(QStringLiteral("no layer \"text:9\""))) << qPrintable(run.err);
    run = menu({ QStringLiteral("--editor"), QStringLiteral("NoSuchEditor") });
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.err.contains(QStringLiteral("no editor"))) << qPrintable(run.err);
}

TEST(MenuCommand, APictureInPictureTextShowsOnlyOpacity)
{
    TestHome home;
    const QString file = writeDesign(home, "pip.json", R"({"width": 360, "height": 640, "is_pip": true,
        "text_json": [{"text": "Hello", "xPos": 40, "yPos": 300, "size": 20}]})");
    const ToolRun run = runQuilletTool({ QStringLiteral("menu"), file, QStringLiteral("--area"),
        QStringLiteral("360x640"), QStringLiteral("--select"), QStringLiteral("text:1") });
    ASSERT_EQ(run.exitCode, 0) << qPrintable(run.err);
    EXPECT_EQ(run.out, QStringLiteral("{\"menuTag\": 5, \"contentTag\": 0, \"items\": [\"Opacity\"]}\n"));
}
