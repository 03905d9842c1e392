#include "designstore.h"
#include "mapper.h"
#include "quillettool.h"
#include "testhome.h"

#include <QDir>
#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

namespace {

// A template with a text and two stickers, in canvas points on a 360 x 640 area.
QString writeTemplate(const TestHome &home)
{
    QDir().mkpath(home.filePath(QStringLiteral("resource")));
    QImage red(40, 40, QImage::Format_ARGB32);
    red.fill(Qt::red);
    red.save(home.filePath(QStringLiteral("resource/red.png")));
    return home.write(QStringLiteral("design.json"), R"({"width": 360, "height": 640, "sample_image": "sample.jpg",
        "text_json": [{"text": "Hello", "xPos": 40, "yPos": 300, "size": 20}],
        "sticker_json": [{"sticker_image": "red.png", "xPos": 100, "yPos": 100, "width": 40, "height": 40},
                         {"sticker_image": "red.png", "xPos": 200, "yPos": 100, "width": 40, "height": 40}]})");
}

struct EditRun
{
    int exitCode = -1;
    nlohmann::ordered_json result;
    QString errors;
};

EditRun edit(const TestHome &home, const QByteArray &steps)
{
    const QString stepsPath = home.write(QStringLiteral("steps.json"), steps);
    const ToolRun run = runQuilletTool({ "edit", writeTemplate(home), "--area", "360x640", "--steps", stepsPath });
    return { run.exitCode, Mapper::parse(run.out), run.err };
}

QStringList stackOf(const nlohmann::ordered_json &result)
{
    QStringList stack;
    for (const auto &entry : result["stack"])
        stack.append(QString::fromStdString(entry.get<std::string>()));
    return stack;
}

} // namespace

TEST(EditCommand, StepsEditTheDesignAndUndoWalksBack)
{
    TestHome home;
    const EditRun run = edit(home, R"([
        {"op": "pan", "layer": "sticker:2", "dx": 10, "dy": -4},
        {"op": "pinch", "layer": "sticker:2", "scale": 1.5},
        {"op": "rotate", "layer": "text:1", "degrees": 30},
        {"op": "opacity", "layer": "sticker:1", "value": 40},
        {"op": "close", "layer": "text:1"},
        {"op": "undo"}])");
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    const auto &document = run.result["masterJson"];
    EXPECT_EQ(run.result["undoCount"], 5);
    EXPECT_EQ(run.result["canUndo"], true);
    EXPECT_EQ(run.result["canRedo"], true);
    // The closed text came back on top, turned as it was before its close.
    EXPECT_EQ(stackOf(run.result), (QStringList { "sticker:1", "sticker:2", "text:1" }));
    EXPECT_NEAR(document["text_json"][0]["angle"].get<double>(), M_PI / 6, 1e-5);
    EXPECT_EQ(document["text_json"][0]["status"], 2);
    const auto &moved = document["sticker_json"][1];
    EXPECT_NEAR(moved["width"].get<double>(), 60 + 28 * 0.5, 1e-3); // the outer box scales, handles included
    EXPECT_NEAR(document["sticker_json"][0]["opacity"].get<double>(), 40, 1e-3);
    // Nothing but the result on stdout; the design was stored along the way.
    DesignStore store;
    ASSERT_EQ(store.allDesigns().size(), 1);
    EXPECT_FALSE(store.savedDesigns().first().document->is_editsaved);
}

TEST(EditCommand, NewLayersDuplicateAndReorder)
{
    TestHome home;
    QImage blue(20, 10, QImage::Format_ARGB32);
    blue.fill(Qt::blue);
    const QString picture = home.filePath(QStringLiteral("blue.png"));
    blue.save(picture);
    const EditRun run = edit(home,
        QStringLiteral(R"([
        {"op": "addText", "text": "Hi", "font": "Montserrat-Bold", "color": "ff0000"},
        {"op": "addSticker", "image": "%1"},
        {"op": "duplicate", "layer": "sticker:1"},
        {"op": "reorder", "from": 0, "to": 3}])")
            .arg(picture)
            .toUtf8());
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    // The rows were 4, 3, 2, 1 (topmost first); the stickers of rows 0 and 3 swapped places in the stack.
    EXPECT_EQ(
        stackOf(run.result), (QStringList { "sticker:4", "sticker:2", "text:1", "text:2", "sticker:3", "sticker:1" }));
    EXPECT_EQ(run.result["undoCount"], 4); // the reorder is no step
    const auto &texts = run.result["masterJson"]["text_json"];
    ASSERT_EQ(texts.size(), 2);
    EXPECT_EQ(texts[1]["text"], "Hi");
    EXPECT_EQ(texts[1]["color"], "#ff0000");
    EXPECT_EQ(texts[1]["fontName"], "Montserrat-Bold");
    EXPECT_EQ(texts[1]["size"], 28);
    const auto &stickers = run.result["masterJson"]["sticker_json"];
    ASSERT_EQ(stickers.size(), 4);
    EXPECT_EQ(stickers[3]["index"], 4);
    EXPECT_NEAR(stickers[3]["xPos"].get<double>(), stickers[0]["xPos"].get<double>() + 10, 1e-3);
}

TEST(EditCommand, UnknownOpOrLayerFailsWithExitCodeOne)
{
    TestHome home;
    for (const QByteArray &steps :
        { QByteArray(R"([{"op": "fly"}])"), QByteArray(R"([{"op": "pan", "layer": "sticker:9", "dx": 1, "dy": 1}])"),
            QByteArray(R"([{"op": "close", "layer": "balloon:1"}])"), QByteArray(R"({"op": "undo"})"),
            QByteArray(R"([{"op": "pan", "layer": "sticker:1"}])") }) {
        const EditRun run = edit(home, steps);
        EXPECT_EQ(run.exitCode, 1) << steps.constData();
        EXPECT_TRUE(run.result.is_discarded()) << steps.constData();
        EXPECT_FALSE(run.errors.isEmpty());
    }
}

TEST(EditCommand, LeaveAnswersYesAndStoresTheSavedDesignOnlyAfterEdits)
{
    TestHome home;
    const EditRun edited = edit(home, R"([{"op": "pan", "layer": "sticker:1", "dx": 5, "dy": 5}, {"op": "leave"}])");
    ASSERT_EQ(edited.exitCode, 0) << edited.errors.toStdString();
    EXPECT_EQ(edited.result["masterJson"]["is_editsaved"], true);
    DesignStore store;
    const QList<SavePhoto> rows = store.allDesigns();
    ASSERT_EQ(rows.size(), 1);
    EXPECT_FALSE(rows.first().jsonString.contains(QStringLiteral("changed_")));
    const auto stored = store.savedDesigns().first().document;
    EXPECT_TRUE(stored->is_editsaved);
    EXPECT_TRUE(QFile::exists(home.filePath(QStringLiteral("Documents/") + stored->sample_image.value_or("-"))));
    EXPECT_TRUE(QFile::exists(home.filePath(QStringLiteral("Documents/") + stored->thumbnail_img.value_or("-"))));

    TestHome untouched;
    const EditRun left = edit(untouched, R"([{"op": "leave"}])");
    ASSERT_EQ(left.exitCode, 0) << left.errors.toStdString();
    EXPECT_TRUE(DesignStore().allDesigns().isEmpty());

    // Nothing follows the leaving.
    EXPECT_EQ(edit(untouched, R"([{"op": "leave"}, {"op": "undo"}])").exitCode, 1);
}

TEST(EditCommand, ReeditOpensAStoredDesignInCanvasPointsAndRadians)
{
    TestHome home;
    QDir().mkpath(home.filePath(QStringLiteral("Documents")));
    QImage red(40, 40, QImage::Format_ARGB32);
    red.fill(Qt::red);
    red.save(home.filePath(QStringLiteral("Documents/red.png")));
    const QString stored = home.write(QStringLiteral("stored.json"), R"({"sample_image": "", "width": 1080,
        "height": 1920, "sticker_json": [{"sticker_image": "red.png", "xPos": 100, "yPos": 100, "width": 40,
        "height": 40, "angle": 0.5, "index": 3}]})");
    const QString steps = home.write(QStringLiteral("steps.json"), R"([{"op": "pan", "layer": "sticker:3",
        "dx": 10, "dy": 0}])");
    const ToolRun run = runQuilletTool({ "edit", stored, "--area", "360x640", "--steps", steps, "--reedit" });
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    const auto sticker = Mapper::parse(run.out)["masterJson"]["sticker_json"][0];
    EXPECT_NEAR(sticker["xPos"].get<double>(), 110, 1e-3); // not scaled again
    EXPECT_NEAR(sticker["angle"].get<double>(), 0.5, 1e-6); // not converted again
    EXPECT_EQ(sticker["index"], 3);
}
