// The background under the layers and the frame over them: the kinds a record shows, the changes the
// menus and pickers make, the flips and filters of the picture, and how each meets undo and redo.
#include "backgroundimageview.h"
#include "backgroundtools.h"
#include "canvasbackground.h"
#include "editorfixture.h"
#include "photofilters.h"
#include "saveflow.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

using Pass = BackgroundTools::Pass;
using Mode = BackgroundTools::Mode;

// Every pixel different, so that a mirror, a half turn and a vertical mirror all tell apart.
QImage distinctPixels(QSize size = { 24, 16 })
{
    QImage picture(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y, qRgb(x * 255 / size.width(), y * 255 / size.height(), (x * 7 + y * 13) % 256));
    }
    return picture;
}

QImage checkerTile()
{
    QImage tile(2, 2, QImage::Format_ARGB32);
    tile.setPixel(0, 0, qRgb(255, 0, 255));
    tile.setPixel(1, 1, qRgb(255, 0, 255));
    tile.setPixel(1, 0, qRgb(255, 255, 0));
    tile.setPixel(0, 1, qRgb(255, 255, 0));
    return tile;
}

bool samePixels(const QImage &a, const QImage &b)
{
    return !a.isNull() && a.convertToFormat(QImage::Format_ARGB32) == b.convertToFormat(QImage::Format_ARGB32);
}

int filterRow(const QString &name)
{
    const QList<FilterItem> &items = PhotoFilters::filterItemsArray();
    for (qsizetype row = 0; row < items.size(); ++row) {
        if (items.at(row).name == name)
            return int(row);
    }
    return -1;
}

// A 360 x 640 design whose background is a picture of distinct pixels, written into resource/.
struct PictureDesign : EditorFixture
{
    PictureDesign()
    {
        QDir().mkpath(home.filePath(QStringLiteral("resource")));
        source.save(home.filePath(QStringLiteral("resource/quad.png")));
        loaded = open(R"({"width": 360, "height": 640, "background_json": {"background_image": "quad.png"}})");
    }

    [[nodiscard]] QImage shown() const { return editor.backgroundImageView->image(); }
    [[nodiscard]] qsizetype steps() const { return editor.undoArray().size(); }
    [[nodiscard]] BackgroundTools &tools() const { return *editor.backgroundTools(); }

    QImage source = distinctPixels();
    bool loaded = false;
};

} // namespace

TEST(BackgroundFlip, RowZeroTwiceIsTheStartAndRowOneAfterRowZeroDropsTheMirror)
{
    PictureDesign d;
    ASSERT_TRUE(d.loaded);
    ASSERT_TRUE(samePixels(d.shown(), d.source));
    CanvasBackground &background = d.editor.background();

    background.flip(0);
    EXPECT_TRUE(samePixels(d.shown(), d.source.mirrored(true, false)));
    EXPECT_EQ(background.orientation(), CanvasBackground::Orientation::UpMirrored);
    background.flip(0);
    EXPECT_TRUE(samePixels(d.shown(), d.source));
    EXPECT_EQ(background.orientation(), CanvasBackground::Orientation::Up);

    // Row 1 is a half turn of the unmirrored picture, not a mirror added to the first.
    background.flip(0);
    background.flip(1);
    EXPECT_TRUE(samePixels(d.shown(), d.source.mirrored(true, true)));
    EXPECT_FALSE(samePixels(d.shown(), d.source.mirrored(false, true)));
    EXPECT_TRUE(samePixels(background.editedImage, d.shown()));
    EXPECT_TRUE(samePixels(background.croppedOriginalImage, d.shown()));
    background.flip(1);
    EXPECT_TRUE(samePixels(d.shown(), d.source));

    // Every flip is one step, kept as the picture alone.
    EXPECT_EQ(d.steps(), 1 + 5);
    const auto &record = *d.editor.masterJson->background_json;
    EXPECT_FALSE(record.background_image.value_or(QString()).isEmpty());
    EXPECT_FALSE(record.background_color || record.texture_image || record.gradient_colors);
    d.editor.undo();
    EXPECT_TRUE(samePixels(d.shown(), d.source.mirrored(true, true)));
}

TEST(BackgroundFilters, EveryRowAndSliderStartsFromTheSourceOfTheTool)
{
    PictureDesign d;
    ASSERT_TRUE(d.loaded);
    BackgroundTools &tools = d.tools();
    const QImage source = d.shown();
    tools.setupCoreImage();

    // Filters replace one another.
    tools.perform(Pass::Filter, filterRow(QStringLiteral("Monochrome")), Mode::Now);
    const QImage mono = d.shown();
    EXPECT_FALSE(samePixels(mono, source));
    tools.perform(Pass::Filter, filterRow(QStringLiteral("Sepia")), Mode::Now);
    const QImage sepia = d.shown();
    EXPECT_TRUE(samePixels(sepia, BackgroundTools::compute(source, Pass::Filter, filterRow(QStringLiteral("Sepia")))));
    EXPECT_FALSE(samePixels(sepia, BackgroundTools::compute(mono, Pass::Filter, filterRow(QStringLiteral("Sepia")))));
    EXPECT_TRUE(samePixels(d.editor.background().editedImage, sepia));
    EXPECT_EQ(d.steps(), 1 + 2);

    // Brightness then contrast keeps only the contrast; the history waits for the slider's release.
    tools.setupCoreImage();
    tools.perform(Pass::Brightness, 80, Mode::Now);
    tools.perform(Pass::Contrast, 60, Mode::Now);
    EXPECT_TRUE(samePixels(d.shown(), BackgroundTools::compute(sepia, Pass::Contrast, 60)));
    EXPECT_EQ(d.steps(), 1 + 2);
    tools.adjustmentDidEnd();
    EXPECT_EQ(d.steps(), 1 + 3);
    tools.adjustmentDidEnd();
    EXPECT_EQ(d.steps(), 1 + 3);

    // Opacity fades the working picture, which the adjustments left as the filter made it.
    tools.perform(Pass::Opacity, 0, Mode::Now);
    EXPECT_EQ(qAlpha(d.shown().pixel(3, 3)), 0);
    EXPECT_TRUE(samePixels(d.editor.background().editedImage, sepia));

    d.editor.undo();
    EXPECT_TRUE(samePixels(d.shown(), sepia));
}

TEST(BackgroundFilters, OnTheScreenPassesRunOffTheGuiThreadAndLandAsOneStepEach)
{
    PictureDesign d;
    ASSERT_TRUE(d.loaded);
    BackgroundTools &tools = d.tools();
    const QImage source = d.shown();
    tools.setupCoreImage();
    QSignalSpy busy(&tools, &BackgroundTools::busyChanged);

    tools.selectFilter(filterRow(QStringLiteral("Noir")));
    EXPECT_TRUE(tools.busy());
    EXPECT_TRUE(samePixels(d.shown(), source)); // the picture changes when the pass comes back
    ASSERT_TRUE(busy.wait(10000) || !tools.busy());
    ASSERT_FALSE(tools.busy());
    EXPECT_TRUE(
        samePixels(d.shown(), BackgroundTools::compute(source, Pass::Filter, filterRow(QStringLiteral("Noir")))));
    EXPECT_EQ(d.steps(), 1 + 1);

    // A slider let go while its pass runs becomes a step when the last value is shown.
    tools.setupCoreImage();
    const QImage noir = d.shown();
    tools.adjust(Pass::Saturation, 40);
    tools.adjust(Pass::Saturation, -100);
    tools.adjustmentDidEnd();
    EXPECT_EQ(d.steps(), 1 + 1);
    while (tools.busy())
        ASSERT_TRUE(busy.wait(10000));
    EXPECT_TRUE(samePixels(d.shown(), BackgroundTools::compute(noir, Pass::Saturation, -100)));
    EXPECT_EQ(d.steps(), 1 + 2);
}

TEST(BackgroundColour, AColourClearsThePictureSoFiltersAndFlipsHaveNothingToActOn)
{
    PictureDesign d;
    ASSERT_TRUE(d.loaded);
    CanvasBackground &background = d.editor.background();
    ASSERT_TRUE(background.bgOriginalFrame);
    EXPECT_EQ(*background.bgOriginalFrame, d.editor.backgroundImageView->frame());
    d.editor.backgroundImageView->setFrame(QRectF(10, 10, 50, 50)); // as a crop leaves it

    d.editor.setBackgroundColor(QColor(Qt::blue));
    EXPECT_TRUE(d.shown().isNull());
    EXPECT_TRUE(background.editedImage.isNull());
    EXPECT_EQ(d.editor.backgroundImageView->frame(), *background.bgOriginalFrame);
    const auto &record = *d.editor.masterJson->background_json;
    EXPECT_EQ(record.background_color, QStringLiteral("#0000ff"));
    EXPECT_FALSE(record.background_image || record.texture_image || record.gradient_colors);
    EXPECT_EQ(d.steps(), 1 + 1);

    d.tools().setupCoreImage();
    d.tools().perform(Pass::Filter, filterRow(QStringLiteral("Sepia")), Mode::Now);
    d.tools().perform(Pass::Brightness, 50, Mode::Now);
    d.tools().adjustmentDidEnd();
    background.flip(0);
    EXPECT_TRUE(d.shown().isNull());
    EXPECT_EQ(d.steps(), 1 + 1);

    // "Transparent" stores the empty colour.
    d.editor.setBackgroundColor(std::nullopt);
    EXPECT_EQ(d.editor.masterJson->background_json->background_color, QString());
}

TEST(BackgroundRecord, ATextureBeatsItsColourAndGradientAndAnEmptyGradientShowsNone)
{
    EditorFixture f;
    QDir().mkpath(f.home.filePath(QStringLiteral("resource")));
    checkerTile().save(f.home.filePath(QStringLiteral("resource/tile.png")));
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "background_json": {"background_color": "#0000ff",
        "texture_image": "tile.png", "gradient_colors": ["#ff0000", "#00ff00"]}})"));
    EXPECT_FALSE(f.editor.backgroundImageView->patternColor().isNull());
    const QImage patterned = f.editor.saving().render(false);
    ASSERT_FALSE(patterned.isNull());
    for (const QPoint at : { QPoint(4, 4), QPoint(180, 320), QPoint(355, 635) }) {
        const QColor pixel = patterned.pixelColor(at);
        EXPECT_TRUE(pixel == QColor(255, 0, 255) || pixel == QColor(255, 255, 0)) << pixel.name().toStdString();
    }

    EditorFixture empty;
    ASSERT_TRUE(empty.open(R"({"width": 360, "height": 640, "background_json": {"gradient_colors": []}})"));
    EXPECT_TRUE(empty.editor.background().bgGradientArray.isEmpty());
    EXPECT_EQ(empty.editor.saving().render(false).pixelColor(180, 320).alpha(), 0);

    EditorFixture gradient;
    ASSERT_TRUE(gradient.open(
        R"({"width": 360, "height": 640, "background_json": {"gradient_colors": ["#ff0000", "#0000ff"]}})"));
    const QImage drawn = gradient.editor.saving().render(false);
    EXPECT_GT(drawn.pixelColor(180, 2).red(), 240);
    EXPECT_GT(drawn.pixelColor(180, drawn.height() - 3).blue(), 240);
}

TEST(BackgroundUndo, UndoAndRedoRestorePictureColourAndPattern)
{
    EditorFixture f;
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640})"));
    BackgroundImageView *view = f.editor.backgroundImageView;
    CanvasBackground &background = f.editor.background();
    const QImage picture = distinctPixels();
    f.editor.setNewBgImage(picture, QString());
    f.editor.viewWillAppear();
    f.editor.setBackgroundColor(QColor(Qt::green));
    background.takePattern(checkerTile());
    EXPECT_TRUE(f.editor.masterJson->background_json->texture_image);
    EXPECT_FALSE(f.editor.masterJson->background_json->background_color);
    EXPECT_EQ(view->backgroundColor().alpha(), 0);
    ASSERT_EQ(f.editor.undoArray().size(), 1 + 3);

    f.editor.undo();
    EXPECT_TRUE(view->patternColor().isNull());
    EXPECT_EQ(view->backgroundColor(), QColor(Qt::green));
    f.editor.undo();
    EXPECT_TRUE(samePixels(view->image(), picture));
    EXPECT_EQ(view->backgroundColor().alpha(), 0);
    f.editor.undo();
    EXPECT_TRUE(view->image().isNull());
    EXPECT_TRUE(view->patternColor().isNull());
    EXPECT_EQ(view->backgroundColor().alpha(), 0);

    f.editor.redo();
    EXPECT_TRUE(samePixels(view->image(), picture));
    f.editor.redo();
    EXPECT_EQ(view->backgroundColor(), QColor(Qt::green));
    EXPECT_TRUE(view->image().isNull());
    f.editor.redo();
    EXPECT_TRUE(samePixels(view->patternColor(), checkerTile()));
    EXPECT_TRUE(samePixels(background.bgPatternImage, checkerTile()));
}

TEST(BackgroundFrame, AFrameIsNoStepLiesOverTheLayersAndStaysThroughUndoAndRedo)
{
    EditorFixture f;
    f.picture(QStringLiteral("red.png"), Qt::red, { 100, 100 });
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640,
        "sticker_json": [{"sticker_image": "red.png", "xPos": 0, "yPos": 0, "width": 120, "height": 120}]})"));
    f.editor.setBackgroundColor(QColor(Qt::blue));
    const qsizetype steps = f.editor.undoArray().size();

    // A green border round a clear middle.
    QImage frame(360, 640, QImage::Format_ARGB32);
    frame.fill(Qt::transparent);
    for (int y = 0; y < frame.height(); ++y) {
        for (int x = 0; x < frame.width(); ++x) {
            if (x < 40 || y < 40 || x >= 320 || y >= 600)
                frame.setPixel(x, y, qRgb(0, 255, 0));
        }
    }
    f.editor.background().takeFrame(frame);
    EXPECT_EQ(f.editor.undoArray().size(), steps);
    const QString file = f.editor.masterJson->frame_json->frame_image.value_or(QString());
    EXPECT_FALSE(file.isEmpty());
    const QImage drawn = f.editor.saving().render(false);
    EXPECT_EQ(drawn.pixelColor(30, 30), QColor(Qt::green)); // over the sticker
    EXPECT_EQ(drawn.pixelColor(180, 320), QColor(Qt::blue));

    for (const bool isUndo : { true, false }) {
        if (isUndo)
            f.editor.undo();
        else
            f.editor.redo();
        EXPECT_EQ(f.editor.masterJson->frame_json->frame_image, file);
        EXPECT_TRUE(samePixels(f.editor.fgImageView->image(), frame));
    }
    EXPECT_EQ(f.editor.saving().render(false).pixelColor(30, 30), QColor(Qt::green));
}
