// quillet-tool filter as scripts run it, on a picture made with ffmpeg.
#include "filterpictures.h"
#include "quillettool.h"
#include "testhome.h"

#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

using namespace FilterPictures;

namespace {

class FilterCommand : public ::testing::Test
{
protected:
    void SetUp() override
    {
        QProcess ffmpeg;
        ffmpeg.start(QStringLiteral("ffmpeg"),
            { "-loglevel", "error", "-y", "-f", "lavfi", "-i", "testsrc2=size=180x320", "-frames:v", "1", input });
        ASSERT_TRUE(ffmpeg.waitForFinished(30000) && ffmpeg.exitCode() == 0)
            << ffmpeg.readAllStandardError().constData();
    }

    ToolRun filter(const QStringList &operation)
    {
        return runQuilletTool(QStringList { "filter", input } + operation + QStringList { "-o", output });
    }

    TestHome home;
    const QString input = home.filePath(QStringLiteral("in.png"));
    const QString output = home.filePath(QStringLiteral("out.png"));
};

} // namespace

TEST_F(FilterCommand, RunsTheNamedRowOrTheSlider)
{
    ToolRun run = filter({ "--filter", "Mono" });
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(run.out.trimmed(), output + QStringLiteral(" 180x320"));
    EXPECT_TRUE(everyPixel(
        QImage(output), 0, 320, [](const QColor &c) { return c.red() == c.green() && c.green() == c.blue(); }));

    // The filter's own name works as well as the row's word.
    run = filter({ "--filter", "CISepiaTone" });
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();

    run = filter({ "--opacity", "0" });
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(everyPixel(QImage(output), 0, 320, [](const QColor &c) { return c.alpha() == 0; }));

    run = filter({ "--brightness", "0" });
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_LE(largestDifference(QImage(output), QImage(input)), 1);
}

TEST_F(FilterCommand, FeatherFadesTheEdgesOfThePicture)
{
    const ToolRun run = filter({ "--feather", "12" });
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    const QImage result(output);
    EXPECT_EQ(at(result, 90, 160).alpha(), 255);
    EXPECT_LT(at(result, 0, 0).alpha(), 64);
    EXPECT_LT(at(result, 0, 160).alpha(), 160);
}

TEST_F(FilterCommand, RefusesWhatItCannotDoAndWritesNothing)
{
    ToolRun run = filter({ "--filter", "Bogus" });
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.err.contains(QStringLiteral("unknown filter 'Bogus'"))) << run.err.toStdString();
    run = filter({ "--contrast", "lots" });
    EXPECT_EQ(run.exitCode, 1);
    run = filter({ "--brightness", "10", "--contrast", "10" });
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.err.contains(QStringLiteral("usage: filter IN.png"))) << run.err.toStdString();
    run = runQuilletTool({ "filter", home.filePath(QStringLiteral("missing.png")), "--contrast", "10", "-o", output });
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_FALSE(QFile::exists(output));
}
