#include "browsepack.h"
#include "quillettool.h"
#include "testhome.h"

#include <gtest/gtest.h>

namespace {

QStringList lines(const QString &out)
{
    return out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QStringList ids(qint64 first, qint64 count)
{
    QStringList list;
    for (qint64 id = first; id < first + count; ++id)
        list.append(QString::number(id));
    return list;
}

} // namespace

TEST(BrowseCommand, PrintsTheCardsOfTheCatalogScreensAndTheirPages)
{
    TestHome home;
    BrowsePack pack;
    const QString server = pack.baseUrl();

    ToolRun run = runQuilletTool({ QStringLiteral("browse"), QStringLiteral("--server"), server,
        QStringLiteral("--sub-category"), QStringLiteral("47") });
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(lines(run.out), ids(5001, 20));
    // The first catalog's first page came with the catalogs.
    EXPECT_EQ(pack.templateCalls(47, 301, 1), 0);

    run = runQuilletTool({ QStringLiteral("browse"), QStringLiteral("--server"), server,
        QStringLiteral("--sub-category"), QStringLiteral("47"), QStringLiteral("--catalog"), QStringLiteral("301"),
        QStringLiteral("--page"), QStringLiteral("3") });
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(lines(run.out), ids(5001, 45));

    run = runQuilletTool({ QStringLiteral("browse"), QStringLiteral("--server"), server,
        QStringLiteral("--sub-category"), QStringLiteral("56"), QStringLiteral("--page"), QStringLiteral("2") });
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(lines(run.out), ids(7001, 50));
}

TEST(BrowseCommand, SearchesPrintTheResultsAndTheMessageAboveThem)
{
    TestHome home;
    BrowsePack pack;
    ToolRun run = runQuilletTool(
        { QStringLiteral("browse"), QStringLiteral("--server"), pack.baseUrl(), QStringLiteral("--search"),
            QStringLiteral("fitness"), QStringLiteral("--sub-category"), QStringLiteral("56") });
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(lines(run.out), ids(7001, 40));
    EXPECT_TRUE(lines(run.err).contains(QStringLiteral("Results")));

    run = runQuilletTool({ QStringLiteral("browse"), QStringLiteral("--server"), pack.baseUrl(),
        QStringLiteral("--search"), QStringLiteral("trav") });
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(lines(run.out).size(), 20);
    EXPECT_TRUE(run.err.contains(QStringLiteral("Sorry, we couldn't find any templates for \"trav\"")));
}

TEST(BrowseCommand, OfflineTheCacheAnswersAndWithoutOneTheFailedStateSays)
{
    TestHome home;
    BrowsePack pack;
    const QStringList args { QStringLiteral("browse"), QStringLiteral("--server"), pack.baseUrl(),
        QStringLiteral("--sub-category"), QStringLiteral("47") };
    ASSERT_EQ(runQuilletTool(args).exitCode, 0);
    pack.server().setRefuseConnections(true);

    ToolRun cached = runQuilletTool(args);
    ASSERT_EQ(cached.exitCode, 0) << cached.err.toStdString();
    EXPECT_EQ(lines(cached.out), ids(5001, 20));

    TestHome empty;
    ToolRun failed = runQuilletTool(args);
    EXPECT_EQ(failed.exitCode, 1);
    EXPECT_TRUE(failed.out.isEmpty());
    EXPECT_TRUE(failed.err.contains(QStringLiteral("Unable to find data.\nTap to Retry")));
}

TEST(BrowseCommand, RefusesWhatTheScreensCannotShow)
{
    TestHome home;
    for (const QStringList &args :
        { QStringList { QStringLiteral("browse"), QStringLiteral("--sub-category"), QStringLiteral("47") },
            QStringList { QStringLiteral("browse"), QStringLiteral("--server"), QStringLiteral("http://127.0.0.1:9/"),
                QStringLiteral("--sub-category"), QStringLiteral("51") },
            QStringList { QStringLiteral("browse"), QStringLiteral("--server"), QStringLiteral("http://127.0.0.1:9/"),
                QStringLiteral("--search"), QStringLiteral("x"), QStringLiteral("--catalog"), QStringLiteral("3") } }) {
        const ToolRun run = runQuilletTool(args);
        EXPECT_NE(run.exitCode, 0);
        EXPECT_TRUE(run.out.isEmpty());
    }
}
