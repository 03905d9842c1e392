#include "quillettool.h"
#include "testhome.h"

#include <nlohmann/json.hpp>

#include <gtest/gtest.h>

namespace {

QString run(const QStringList &args)
{
    const ToolRun result = runQuilletTool(args);
    EXPECT_EQ(result.exitCode, 0) << qPrintable(args.join(u' ')) << qPrintable(result.err);
    return result.out.trimmed();
}

} // namespace

TEST(StoreTool, SavesListsAndDeletesDesigns)
{
    TestHome home;
    const QString current = home.write(QStringLiteral("a.json"), R"({"sample_image": "a.png", "is_Video": true})");
    const QString old = home.write(QStringLiteral("b.json"), R"({"image": "b.png"})");
    const QString first = run({ QStringLiteral("store"), QStringLiteral("save"), current, QStringLiteral("--video") });
    const QString second = run({ QStringLiteral("store"), QStringLiteral("save"), old });
    EXPECT_EQ(first, QStringLiteral("x-quillet://QuilletStore/SavePhoto/p1"));
    EXPECT_EQ(run({ QStringLiteral("store"), QStringLiteral("save"), current, QStringLiteral("--id"), first,
                  QStringLiteral("--video") }),
        first);

    const auto list = nlohmann::json::parse(run({ QStringLiteral("store"), QStringLiteral("list") }).toStdString());
    ASSERT_EQ(list.size(), 2);
    // The re-saved design is the newest.
    EXPECT_EQ(list[0]["id"], first.toStdString());
    EXPECT_EQ(list[0]["is_video"], true);
    EXPECT_EQ(list[0]["document"]["sample_image"], "a.png");
    EXPECT_EQ(list[1]["id"], second.toStdString());
    EXPECT_EQ(list[1]["document"]["sample_image"], "b.png");
    EXPECT_TRUE(list[1]["updated_at"].is_string());

    EXPECT_EQ(run({ QStringLiteral("store"), QStringLiteral("delete"), second }), QStringLiteral("true"));
    EXPECT_EQ(run({ QStringLiteral("store"), QStringLiteral("delete"), second }), QStringLiteral("false"));
    EXPECT_EQ(run({ QStringLiteral("store"), QStringLiteral("delete"), QStringLiteral("nonsense") }),
        QStringLiteral("false"));
    EXPECT_EQ(nlohmann::json::parse(run({ QStringLiteral("store"), QStringLiteral("list") }).toStdString()).size(), 1);
}

// The tool's duplicate is the list's Duplicate: a new row of the same kind and document, sharing its files.
TEST(StoreTool, DuplicatesADesignAsTheListDoes)
{
    TestHome home;
    const QString video = home.write(QStringLiteral("v.json"),
        R"({"sample_image": "v.jpg", "sample_video": "file:///old/Documents/1.mov", "is_Video": true})");
    const QString source = run({ QStringLiteral("store"), QStringLiteral("save"), video, QStringLiteral("--video") });
    const QString copy = run({ QStringLiteral("store"), QStringLiteral("duplicate"), source });
    EXPECT_EQ(copy, QStringLiteral("x-quillet://QuilletStore/SavePhoto/p2"));
    const auto list = nlohmann::json::parse(run({ QStringLiteral("store"), QStringLiteral("list") }).toStdString());
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list[0]["id"], copy.toStdString());
    EXPECT_EQ(list[0]["is_video"], true);
    EXPECT_EQ(list[0]["document"]["sample_video"], list[1]["document"]["sample_video"]);

    EXPECT_EQ(runQuilletTool({ QStringLiteral("store"), QStringLiteral("duplicate"),
                                 QStringLiteral("x-quillet://QuilletStore/SavePhoto/p9") })
                  .exitCode,
        1);
}

TEST(StoreTool, RefusesBadArguments)
{
    TestHome home;
    for (const QStringList &args :
        { QStringList { QStringLiteral("store"), QStringLiteral("save") },
            QStringList { QStringLiteral("store"), QStringLiteral("save"), home.filePath(QStringLiteral("none.json")) },
            QStringList { QStringLiteral("store"), QStringLiteral("save"), QStringLiteral("x"), QStringLiteral("--id"),
                QStringLiteral("p1") },
            QStringList { QStringLiteral("store"), QStringLiteral("delete") },
            QStringList { QStringLiteral("store"), QStringLiteral("duplicate"), QStringLiteral("p1") },
            QStringList { QStringLiteral("store") } }) {
        const ToolRun result = runQuilletTool(args);
        EXPECT_EQ(result.exitCode, 1) << qPrintable(args.join(u' '));
        EXPECT_TRUE(result.out.isEmpty());
    }
}
