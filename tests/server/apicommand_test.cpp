#include "catalogserver.h"
#include "quillettool.h"
#include "testhome.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace {

/** The one JSON object that `api` prints on standard output. */
QJsonObject apiRun(const QStringList &args)
{
    const ToolRun run = runQuilletTool(QStringList { QStringLiteral("api") } + args);
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    return QJsonDocument::fromJson(run.out.toUtf8()).object();
}

} // namespace

TEST(ApiCommand, PrintsTheCompletionAndWorksFromTheCacheOffline)
{
    TestHome home;
    CatalogServer content;
    ASSERT_TRUE(content.isRunning());
    const QString server = content.apiBase().toString();
    const QStringList firstPage { QStringLiteral("getTemplateWithCatalogs"), QStringLiteral("--server"), server,
        QStringLiteral("--set"), QStringLiteral("sub_category_id=47"), QStringLiteral("--set"),
        QStringLiteral("catalog_id=0"), QStringLiteral("--set"), QStringLiteral("page=1"), QStringLiteral("--set"),
        QStringLiteral("item_count=20") };

    const QJsonObject online = apiRun(firstPage);
    EXPECT_EQ(online.value(QLatin1String("ok")), true);
    EXPECT_TRUE(online.value(QLatin1String("error")).isNull());
    EXPECT_EQ(online[QLatin1String("data")][QLatin1String("category_list")].toArray().size(), 2);

    // Offline the screen's own entry is read and nothing is sent, even with the server gone.
    content.server().stop();
    const QJsonObject offline = apiRun(firstPage + QStringList { QStringLiteral("--offline") });
    EXPECT_EQ(offline.value(QLatin1String("ok")), true);
    EXPECT_EQ(offline.value(QLatin1String("data")), online.value(QLatin1String("data")));

    const QJsonObject nothing = apiRun({ QStringLiteral("getImagesByCatalogId"), QStringLiteral("--server"), server,
        QStringLiteral("--set"), QStringLiteral("catalog_id=201"), QStringLiteral("--offline") });
    EXPECT_EQ(nothing.value(QLatin1String("ok")), false);
    EXPECT_TRUE(nothing.value(QLatin1String("data")).isNull());
    EXPECT_TRUE(nothing.value(QLatin1String("error"))
                    .toString()
                    .endsWith(QLatin1String(" is unable to connect with internet")));

    // Online with the server gone: the connection's own road, error and all.
    const QJsonObject down = apiRun({ QStringLiteral("getImagesByCatalogId"), QStringLiteral("--server"), server,
        QStringLiteral("--set"), QStringLiteral("catalog_id=201") });
    EXPECT_EQ(down.value(QLatin1String("ok")), false);
    EXPECT_FALSE(down.value(QLatin1String("error")).toString().isEmpty());
}

TEST(ApiCommand, SearchTakesTextAndRejectsUnknownFields)
{
    TestHome home;
    CatalogServer content;
    ASSERT_TRUE(content.isRunning());
    const QString server = content.apiBase().toString();
    const QJsonObject found = apiRun({ QStringLiteral("searchCardsBySubCategoryId"), QStringLiteral("--server"), server,
        QStringLiteral("--set"), QStringLiteral("sub_category_id=47"), QStringLiteral("--set"),
        QStringLiteral("search_category=party"), QStringLiteral("--set"), QStringLiteral("page=1") });
    EXPECT_EQ(found.value(QLatin1String("ok")), true);
    EXPECT_EQ(found[QLatin1String("data")][QLatin1String("result")].toArray().size(), 1);

    const ToolRun typo = runQuilletTool({ QStringLiteral("api"), QStringLiteral("getJsonData"),
        QStringLiteral("--server"), server, QStringLiteral("--set"), QStringLiteral("jsonid=1") });
    EXPECT_NE(typo.exitCode, 0);
    EXPECT_TRUE(typo.err.contains(QLatin1String("json_id")));
}
