// quillet-tool prepare: the prepared document on stdout, the final state on stderr, the exit code.
#include "contentserverfixture.h"
#include "json.h"
#include "mapper.h"
#include "quillettool.h"
#include "testhome.h"

#include <gtest/gtest.h>

namespace {

TEST(PrepareCommand, AFreshProcessPreparesFromTheCachesAloneAsTheCatalogScreensReadThem)
{
    TestHome home;
    TestContentServer server;
    auto prepare = [&](const QString &jsonId, const QStringList &more = {}) {
        return runQuilletTool(QStringList { QStringLiteral("prepare"), QStringLiteral("--server"), server.baseUrl(),
                                  QStringLiteral("--json-id"), jsonId }
            + more);
    };
    const ToolRun online = prepare(QStringLiteral("1026"), { QStringLiteral("--video") });
    ASSERT_EQ(online.exitCode, 0) << online.err.toStdString();
    EXPECT_TRUE(online.err.trimmed().endsWith(QStringLiteral("ready")));
    const auto document = Mapper::map<Json>(online.out);
    ASSERT_TRUE(document);
    EXPECT_TRUE(document->background_json->background_image->startsWith(QStringLiteral("file://")));
    // A card of the second catalog: found on that catalog's own page.
    ASSERT_EQ(prepare(QStringLiteral("1009")).exitCode, 0);

    // From here on nothing answers: the sub-category entry, the catalog pages and the templates are all there is.
    server.server().setRefuseConnections(true);
    const ToolRun video = prepare(QStringLiteral("1026"), { QStringLiteral("--video"), QStringLiteral("--offline") });
    EXPECT_EQ(video.exitCode, 0) << video.err.toStdString();
    EXPECT_EQ(
        Mapper::map<Json>(video.out)->background_json->background_image, document->background_json->background_image);
    const ToolRun image = prepare(QStringLiteral("1009"), { QStringLiteral("--offline") });
    EXPECT_EQ(image.exitCode, 0) << image.err.toStdString();
    EXPECT_EQ(Mapper::map<Json>(image.out)->json_id, 1009);

    // A card that is listed but whose template was never fetched fails; one never listed is not found.
    const ToolRun uncached = prepare(QStringLiteral("1002"), { QStringLiteral("--offline") });
    EXPECT_EQ(uncached.exitCode, 1);
    EXPECT_TRUE(uncached.out.isEmpty());
    EXPECT_TRUE(uncached.err.trimmed().endsWith(QStringLiteral("failed")));
    const ToolRun unlisted
        = prepare(QStringLiteral("1030"), { QStringLiteral("--video"), QStringLiteral("--offline") });
    EXPECT_EQ(unlisted.exitCode, 1);
    EXPECT_TRUE(unlisted.err.contains(QStringLiteral("no card with json_id 1030")));
}

} // namespace
