#include "quillettool.h"
#include "testhome.h"

#include <gtest/gtest.h>

namespace { } // namespace

TEST(DocTool, PrintsAStoredDesignInTheCurrentForm)
{
    TestHome home;
    const QString path
        = home.write(QStringLiteral("old.json"), R"({"image": "p.jpg", "fgImage": {"height": 640.5}, "unknown": 1})");
    const ToolRun run = runQuilletTool({ QStringLiteral("doc"), QStringLiteral("print"), path });
    ASSERT_EQ(run.exitCode, 0) << qPrintable(run.err);
    EXPECT_EQ(run.out, QStringLiteral(R"({
  "frame_json": {},
  "sample_image": "p.jpg",
  "is_pip": false,
  "is_sample": false,
  "height": 640.5,
  "is_free": true,
  "is_featured": false,
  "is_offline": false,
  "is_editsaved": true,
  "is_Video": false,
  "isHighlightCover": false
}
)"));
}

TEST(DocTool, RefusesUnreadableInput)
{
    TestHome home;
    const QString notJson = home.write(QStringLiteral("bad.json"), "{\"sample_image\": ");
    const QString array = home.write(QStringLiteral("array.json"), "[]");
    for (const QStringList &args :
        { QStringList { QStringLiteral("doc"), QStringLiteral("print"), home.filePath(QStringLiteral("missing.json")) },
            QStringList { QStringLiteral("doc"), QStringLiteral("print"), notJson },
            QStringList { QStringLiteral("doc"), QStringLiteral("print"), array },
            QStringList { QStringLiteral("doc"), QStringLiteral("show") } }) {
        const ToolRun run = runQuilletTool(args);
        EXPECT_EQ(run.exitCode, 1) << qPrintable(args.join(QLatin1Char(' ')));
        EXPECT_TRUE(run.out.isEmpty());
        EXPECT_TRUE(run.err.contains(QStringLiteral("quillet-tool: "))) << qPrintable(run.err);
    }
}
