// quillet-tool prepare: the prepared document on stdout, the final state on stderr, the exit code.
#include "contentserverfixture.h"
#include "json.h"
#include "mapper.h"
#include "quillettool.h"
#include "testhome.h"

#include <gtest/gtest.h>

namespace {

TEST(PrepareCommand, PreparesOnlineThenFromTheCachesOfflineAndFailsWithoutThem)
{
    TestHome home;
    TestContentServer server;
    const QStringList video = { QStringLiteral("prepare"), QStringLiteral("--server"), server.baseUrl(),
        QStringLiteral("--json-id"), QStringLiteral("1026"), QStringLiteral("--video") };
    const ToolRun online = runQuilletTool(video);
    ASSERT_EQ(online.exitCode, 0) << online.err.toStdString();
    EXPECT_TRUE(online.err.trimmed().endsWith(QStringLiteral("ready")));
    const auto document = Mapper::map<Json>(online.out);
    ASSERT_TRUE(document);
    EXPECT_TRUE(document->background_json->background_image->startsWith(QStringLiteral("file://")));

    const ToolRun offline = runQuilletTool(video + QStringList { QStringLiteral("--offline") });
    EXPECT_EQ(offline.exitCode, 0) << offline.err.toStdString();

    const ToolRun uncached = runQuilletTool({ QStringLiteral("prepare"), QStringLiteral("--server"), server.baseUrl(),
        QStringLiteral("--json-id"), QStringLiteral("1002"), QStringLiteral("--offline") });
    EXPECT_EQ(uncached.exitCode, 1);
    EXPECT_TRUE(uncached.out.isEmpty());
    EXPECT_TRUE(uncached.err.trimmed().endsWith(QStringLiteral("failed")));
}

} // namespace
