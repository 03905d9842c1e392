// quillet-tool edit on the pictures in a template's slots: placing a photo, the gestures on it, and the
// canvas drawn with -o as a save draws it, on real templates of the generated content pack.
#include "packtemplates.h"

#include "quillettool.h"
#include "testhome.h"

#include <QImage>

#include <cmath>

#include <gtest/gtest.h>

namespace {

using ordered_json = nlohmann::ordered_json;

struct SlotRun
{
    int exitCode = -1;
    ordered_json result;
    QString errors;
};

/** Steps on a template of the pack, in a home that has the pack's pictures and a green photograph. */
class SlotCommand
{
public:
    explicit SlotCommand(ordered_json document)
        : m_document(std::move(document))
    {
        EXPECT_TRUE(PackTemplates::linkResources(m_home.path())) << "build the content-pack target";
        EXPECT_TRUE(m_document.is_object()) << "the pack has no such template";
        QImage photo(400, 300, QImage::Format_RGB32);
        photo.fill(Qt::green);
        photo.save(photoPath());
    }

    [[nodiscard]] QString photoPath() const { return m_home.filePath(QStringLiteral("green.png")); }
    [[nodiscard]] ordered_json &document() { return m_document; }
    [[nodiscard]] QString outPath(const QString &name) const { return m_home.filePath(name); }

    SlotRun run(const QString &steps, const QStringList &extra = {})
    {
        const QString documentPath = write(QStringLiteral("template.json"), Mapper::print(m_document, false));
        const QString stepsPath
            = write(QStringLiteral("steps.json"), QString(steps).replace(QStringLiteral("PHOTO"), photoPath()));
        const ToolRun run
            = runQuilletTool(QStringList { "edit", documentPath, "--area", "360x640", "--steps", stepsPath } + extra);
        return { run.exitCode, Mapper::parse(run.out), run.err };
    }

private:
    QString write(const QString &name, const QString &text) const
    {
        QFile file(m_home.filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(text.toUtf8());
        return file.fileName();
    }

    TestHome m_home;
    ordered_json m_document;
};

double field(const ordered_json &record, const char *key)
{
    return record.value(key, ordered_json()).is_number() ? record[key].get<double>() : std::nan("");
}

} // namespace

TEST(SlotCommand, OutlinedSlotGesturesAreOneStepEachAndWriteThePicturesPlace)
{
    SlotCommand command(PackTemplates::outlined());
    const SlotRun placed = command.run(R"([{"op": "placeImage", "layer": "outlined:1", "image": "PHOTO"}])");
    ASSERT_EQ(placed.exitCode, 0) << placed.errors.toStdString();
    const ordered_json start = placed.result["masterJson"]["frame_image_sticker_json"][0];
    EXPECT_EQ(placed.result["undoCount"], 2);
    EXPECT_EQ(start["status"], 2);
    EXPECT_FALSE(start.value("pip_image", std::string()).empty());
    const double width = field(start, "width");
    const double height = field(start, "height");
    EXPECT_NEAR(field(start, "widthImage"), width - 26, 1e-6);

    const SlotRun moved = command.run(R"([
        {"op": "placeImage", "layer": "outlined:1", "image": "PHOTO"},
        {"op": "slotPan", "layer": "outlined:1", "dx": 12, "dy": -8},
        {"op": "slotPinch", "layer": "outlined:1", "scale": 1.5},
        {"op": "slotTurn", "layer": "outlined:1", "degrees": 30}])");
    ASSERT_EQ(moved.exitCode, 0) << moved.errors.toStdString();
    EXPECT_EQ(moved.result["undoCount"], 5);
    const ordered_json &record = moved.result["masterJson"]["frame_image_sticker_json"][0];
    // The pinch scales about the picture's centre, which the pan moved.
    EXPECT_NEAR(field(record, "widthImage"), width * 1.5 - 26, 1e-3);
    EXPECT_NEAR(field(record, "heightImage"), height * 1.5 - 26, 1e-3);
    EXPECT_NEAR(field(record, "xPosImage"), 12 - width * 0.25, 1e-3);
    EXPECT_NEAR(field(record, "yPosImage"), -8 - height * 0.25, 1e-3);
    EXPECT_NEAR(field(record, "angleImage"), M_PI / 6, 1e-5);
    // The slot itself never moves.
    for (const char *key : { "xPos", "yPos", "width", "height" })
        EXPECT_EQ(record[key], start[key]) << key;

    const SlotRun reset = command.run(R"([
        {"op": "placeImage", "layer": "outlined:1", "image": "PHOTO"},
        {"op": "slotPan", "layer": "outlined:1", "dx": 12, "dy": -8},
        {"op": "slotTurn", "layer": "outlined:1", "degrees": 45},
        {"op": "slotReset", "layer": "outlined:1"},
        {"op": "undo"}, {"op": "undo"}, {"op": "undo"}, {"op": "undo"}])");
    ASSERT_EQ(reset.exitCode, 0) << reset.errors.toStdString();
    EXPECT_EQ(reset.result["canUndo"], false);
    const ordered_json &empty = reset.result["masterJson"]["frame_image_sticker_json"][0];
    EXPECT_FALSE(empty.contains("pip_image") && empty["pip_image"].is_string());

    const SlotRun doubleTapped = command.run(R"([
        {"op": "placeImage", "layer": "outlined:1", "image": "PHOTO"},
        {"op": "slotPan", "layer": "outlined:1", "dx": 12, "dy": -8},
        {"op": "slotTurn", "layer": "outlined:1", "degrees": 45},
        {"op": "slotReset", "layer": "outlined:1"}])");
    ASSERT_EQ(doubleTapped.exitCode, 0) << doubleTapped.errors.toStdString();
    const ordered_json &back = doubleTapped.result["masterJson"]["frame_image_sticker_json"][0];
    EXPECT_NEAR(field(back, "xPosImage"), 0, 1e-6);
    EXPECT_NEAR(field(back, "yPosImage"), 0, 1e-6);
    EXPECT_NEAR(field(back, "widthImage"), width - 26, 1e-6);
    EXPECT_NEAR(field(back, "angleImage"), 0, 1e-9);
}

TEST(SlotCommand, PictureSlotGesturesKeepTheLoadedScaleAndRefuseTheDoubleTap)
{
    SlotCommand command(PackTemplates::roundSlot());
    const SlotRun run = command.run(R"([
        {"op": "placeImage", "layer": "slot:1", "image": "PHOTO"},
        {"op": "slotPan", "layer": "slot:1", "dx": 10, "dy": 5},
        {"op": "slotPinch", "layer": "slot:1", "scale": 0.5},
        {"op": "slotPinch", "layer": "slot:1", "scale": 2}])");
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    EXPECT_EQ(run.result["undoCount"], 5);
    const ordered_json &record = run.result["masterJson"]["image_sticker_json"][0];
    EXPECT_EQ(record["status"], 2);
    // The hole is the record's size less the border's margins; the picture's centre starts in its middle.
    const double holeWidth = field(record, "width") - 26;
    EXPECT_NEAR(field(record, "centerX"), holeWidth / 2 + 10, 1e-3);
    EXPECT_NEAR(field(record, "zScale"), 2, 1e-9);

    const SlotRun refused = command.run(R"([{"op": "slotReset", "layer": "slot:1"}])");
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_TRUE(refused.errors.contains(QStringLiteral("outlined"))) << refused.errors.toStdString();
}

TEST(SlotCommand, TheRenderLeavesOutAnEmptyOutlinedSlotAndShowsAPlacedPhoto)
{
    SlotCommand command(PackTemplates::outlined());
    const QString withSlot = command.outPath(QStringLiteral("with-slot.png"));
    ASSERT_EQ(command.run(QStringLiteral("[]"), { "-o", withSlot }).exitCode, 0);
    const ordered_json slot = command.document()["frame_image_sticker_json"][0];
    const QString placed = command.outPath(QStringLiteral("placed.png"));
    const SlotRun placing
        = command.run(R"([{"op": "placeImage", "layer": "outlined:1", "image": "PHOTO"}])", { "-o", placed, "--hd" });
    ASSERT_EQ(placing.exitCode, 0) << placing.errors.toStdString();
    command.document()["frame_image_sticker_json"] = ordered_json::array();
    const QString withoutSlot = command.outPath(QStringLiteral("without-slot.png"));
    ASSERT_EQ(command.run(QStringLiteral("[]"), { "-o", withoutSlot }).exitCode, 0);

    const QImage empty(withSlot);
    const QImage none(withoutSlot);
    ASSERT_FALSE(empty.isNull());
    EXPECT_EQ(empty.size(), QSize(command.document()["width"].get<int>(), command.document()["height"].get<int>()));
    EXPECT_EQ(empty.convertToFormat(QImage::Format_ARGB32), none.convertToFormat(QImage::Format_ARGB32));

    const QImage hd(placed);
    ASSERT_EQ(hd.size(), empty.size() * 2);
    const QPointF centre(
        field(slot, "xPos") + field(slot, "width") / 2, field(slot, "yPos") + field(slot, "height") / 2);
    const QRgb pixel = hd.pixel((centre * 2).toPoint());
    EXPECT_GT(qGreen(pixel), 200);
    EXPECT_LT(qRed(pixel), 60);
}
