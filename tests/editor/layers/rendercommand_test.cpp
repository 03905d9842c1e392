#include "testhome.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>

#include <gtest/gtest.h>

namespace {

struct ToolRun
{
    int exitCode = -1;
    QString errors;
};

ToolRun quilletTool(const TestHome &home, const QStringList &args)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QUILLET_HOME"), home.path());
    process.setProcessEnvironment(environment);
    // The tool is built beside the tests unless the run says otherwise.
    const QString bin = qEnvironmentVariable("QUILLET_BIN_DIR", QCoreApplication::applicationDirPath());
    process.start(bin + QStringLiteral("/quillet-tool"), args);
    if (!process.waitForFinished(60000))
        return {};
    return { process.exitCode(), QString::fromUtf8(process.readAllStandardError()) };
}

// A 200 x 400 template without a background: a red sticker picture and a white text.
QString writeDesign(const TestHome &home, const QString &size)
{
    QDir().mkpath(home.filePath(QStringLiteral("resource")));
    QImage red(50, 50, QImage::Format_ARGB32);
    red.fill(Qt::red);
    red.save(home.filePath(QStringLiteral("resource/red.png")));
    const QString path = home.filePath(QStringLiteral("design.json"));
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(QStringLiteral(R"({%1 "is_offline": false,
        "sticker_json": [{"xPos": 20, "yPos": 20, "width": 60, "height": 60, "sticker_image": "red.png"}],
        "text_json": [{"xPos": 20, "yPos": 300, "size": 30, "text": "Hi", "color": "FFFFFF"}]})")
                   .arg(size)
                   .toUtf8());
    return path;
}

} // namespace

TEST(RenderCommand, DrawsTheDesignAtItsOwnSizeWithTransparencyAround)
{
    TestHome home;
    const QString design = writeDesign(home, QStringLiteral(R"("width": 200, "height": 400,)"));
    const QString out = home.filePath(QStringLiteral("out.png"));
    const ToolRun run = quilletTool(home, { "render", design, "--area", "300x600", "-o", out });
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    const QImage picture(out);
    ASSERT_EQ(picture.size(), QSize(200, 400));
    EXPECT_EQ(picture.pixelColor(50, 50), QColor(Qt::red));
    EXPECT_EQ(qAlpha(picture.pixel(150, 150)), 0);
    EXPECT_EQ(qAlpha(picture.pixel(19, 19)), 0); // no handles, borders or dimming in the picture

    const ToolRun hd = quilletTool(home, { "render", design, "--area", "300x600", "--hd", "-o", out });
    ASSERT_EQ(hd.exitCode, 0) << hd.errors.toStdString();
    EXPECT_EQ(QImage(out).size(), QSize(400, 800));
}

TEST(RenderCommand, RefusesDesignsWithoutASizeAndBadArguments)
{
    TestHome home;
    const QString design = writeDesign(home, QString());
    const QString out = home.filePath(QStringLiteral("out.png"));
    const ToolRun unsized = quilletTool(home, { "render", design, "--area", "300x600", "-o", out });
    EXPECT_NE(unsized.exitCode, 0);
    EXPECT_TRUE(unsized.errors.contains("no width and height")) << unsized.errors.toStdString();
    EXPECT_FALSE(QFile::exists(out));
    EXPECT_NE(quilletTool(home, { "render", design, "--area", "300x600" }).exitCode, 0);
    EXPECT_NE(quilletTool(home, { "render", design, "--area", "wide", "-o", out }).exitCode, 0);
}
