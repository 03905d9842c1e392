#include "alertmodel.h"
#include "backgroundimageview.h"
#include "borderedresizableimageview.h"
#include "canvasbackground.h"
#include "designloader.h"
#include "editimageportraitmode.h"
#include "layerbuilder.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "resizableimageview.h"
#include "resizableview.h"
#include "staticresizableimageview.h"
#include "testhome.h"

#include <QDir>
#include <QImage>
#include <QTest>

#include <gtest/gtest.h>

namespace {

std::shared_ptr<Json> documentFrom(const char *json)
{
    return Mapper::map<Json>(QString::fromUtf8(json));
}

// A session with the canvas area at the origin, as quillet-tool's headless session has it.
struct Session
{
    explicit Session(QSizeF area, qreal scale = 1.0)
    {
        editor.screenScale = scale;
        editor.setCanvasArea(QRectF(QPointF(0, 0), area));
    }
    EditImagePortraitMode editor;
};

void writePicture(const TestHome &home, const QString &name, QSize size = { 40, 40 })
{
    QDir().mkpath(home.filePath(QStringLiteral("resource")));
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(home.filePath(QStringLiteral("resource/") + name)));
}

} // namespace

TEST(CanvasFit, TallSquareAndWideDesignsFitTheArea)
{
    Session s(QSizeF(300, 400));
    s.editor.loader().fitCanvas(1080, 1920);
    EXPECT_EQ(s.editor.viewMain->bounds().size(), QSizeF(225, 400));
    EXPECT_EQ(s.editor.viewMain->center(), QPointF(150, 200));
    // A square one takes the width of the area; the height follows.
    s.editor.loader().fitCanvas(500, 500);
    EXPECT_EQ(s.editor.viewMain->bounds().size(), QSizeF(300, 300));
    s.editor.loader().fitCanvas(1920, 1080);
    EXPECT_EQ(s.editor.viewMain->bounds().size(), QSizeF(300, 168.75));
    // Too tall for the width: the width wins.
    Session narrow(QSizeF(100, 400));
    narrow.editor.loader().fitCanvas(1000, 2000);
    EXPECT_EQ(narrow.editor.viewMain->bounds().size(), QSizeF(100, 200));
    // Too wide for the height: the height wins.
    Session flat(QSizeF(400, 100));
    flat.editor.loader().fitCanvas(2000, 1000);
    EXPECT_EQ(flat.editor.viewMain->bounds().size(), QSizeF(200, 100));
    EXPECT_EQ(flat.editor.backgroundImageView->frame(), QRectF(0, 0, 200, 100));
    EXPECT_EQ(*flat.editor.imageViewFrame, QRectF(0, 0, 200, 100));
}

TEST(CanvasFit, MissingSizeFillsTheCanvasAsItStands)
{
    TestHome home;
    Session s(QSizeF(320, 480));
    ASSERT_TRUE(s.editor.loadTemplate(documentFrom(R"({"text_json": []})")));
    EXPECT_EQ(s.editor.viewMain->bounds().size(), QSizeF(320, 480));
}

TEST(TemplateToCanvas, ScalesByScreenScaleAndCanvasRatio)
{
    TestHome home;
    Session s(QSizeF(360, 640), 3.0);
    s.editor.masterJson = documentFrom(R"({"width": 1080, "height": 1920})");
    s.editor.loader().fitCanvas(1080, 1920);
    EXPECT_EQ(s.editor.loader().convertRect(540, 960, 300, 150), QRectF(180, 320, 100, 50));
    EXPECT_DOUBLE_EQ(s.editor.loader().convertHeight(96), 32);
    // Absent fields count as 0.
    EXPECT_EQ(
        s.editor.loader().convertRect(std::nullopt, std::nullopt, std::nullopt, std::nullopt), QRectF(0, 0, 0, 0));
}

TEST(TemplateLoad, TextWithoutPositionSitsAtTheCanvasOriginPlusItsMargins)
{
    TestHome home;
    Session s(QSizeF(360, 640));
    ASSERT_TRUE(s.editor.loadTemplate(
        documentFrom(R"({"width": 360, "height": 640, "text_json": [{"text": "Hi", "size": 20}]})")));
    auto text = s.editor.masterJson->text_json->first();
    EXPECT_NEAR(text->xPos.value(), 0.0, 1e-4);
    EXPECT_NEAR(text->yPos.value(), 0.0, 1e-4);
    auto *layer = qobject_cast<ResizableView *>(s.editor.layerViews().first());
    ASSERT_NE(layer, nullptr);
    EXPECT_NEAR(layer->unrotatedFrame().x(), -14 - 8, 1e-4);
}

TEST(TemplateLoad, LayersStackInLoadOrderBetweenBackgroundAndFrame)
{
    TestHome home;
    writePicture(home, QStringLiteral("a.png"));
    Session s(QSizeF(360, 640));
    ASSERT_TRUE(s.editor.loadTemplate(documentFrom(R"({"width": 360, "height": 640,
        "text_json": [{"text": "T"}],
        "sticker_json": [{"sticker_image": "a.png", "width": 50, "height": 50}, {"sticker_image": ""}],
        "frame_image_sticker_json": [{"image_sticker_image": "a.png", "width": 80, "height": 80}],
        "image_sticker_json": [{"image_sticker_image": "a.png", "width": 80, "height": 80}, {"width": 10}],
        "frame_json": {"frame_image": "a.png"}})")));
    const auto &views = s.editor.viewMain->subviews();
    ASSERT_EQ(views.size(), 7);
    EXPECT_EQ(views.at(0), s.editor.backgroundImageView);
    EXPECT_TRUE(qobject_cast<StaticResizableImageView *>(views.at(1)));
    EXPECT_TRUE(qobject_cast<BorderedResizableImageView *>(views.at(2)));
    EXPECT_TRUE(qobject_cast<ResizableImageView *>(views.at(3)));
    EXPECT_TRUE(qobject_cast<ResizableView *>(views.at(4)));
    EXPECT_EQ(views.at(5), s.editor.fgImageView);
    EXPECT_EQ(views.at(6), s.editor.gridView);
    EXPECT_TRUE(s.editor.gridView->isHidden());
    EXPECT_EQ(s.editor.builder().imageLimit, 1);
    // The frame's name was resolved into resource/ and written back.
    EXPECT_EQ(*s.editor.masterJson->frame_json->frame_image, home.filePath(QStringLiteral("resource/a.png")));
    EXPECT_FALSE(s.editor.fgImageView->image().isNull());
}

// The veil of the load's flash: a light blue view over the whole layer.
bool flashes(const View *layer)
{
    const auto &children = layer->subviews();
    return std::any_of(children.cbegin(), children.cend(), [layer](const View *child) {
        return child->backgroundColor() == QColor(0x00, 0xD3, 0xFF) && child->frame().size() == layer->bounds().size();
    });
}

TEST(TemplateLoad, EveryLayerOfTheLoadFlashesAndLayersOfAReplayDoNot)
{
    TestHome home;
    writePicture(home, QStringLiteral("a.png"));
    Session s(QSizeF(360, 640));
    ASSERT_TRUE(s.editor.loadTemplate(documentFrom(R"({"width": 360, "height": 640, "sample_image": "s.png",
        "text_json": [{"text": "T"}],
        "sticker_json": [{"sticker_image": "a.png", "width": 50, "height": 50}],
        "frame_image_sticker_json": [{"image_sticker_image": "a.png", "width": 80, "height": 80}],
        "image_sticker_json": [{"image_sticker_image": "a.png", "width": 80, "height": 80}]})")));
    QList<View *> layers;
    for (View *view : s.editor.viewMain->subviews()) {
        if (view != s.editor.backgroundImageView && view != s.editor.fgImageView && view != s.editor.gridView)
            layers.append(view);
    }
    ASSERT_EQ(layers.size(), 4);
    for (const View *layer : std::as_const(layers))
        EXPECT_TRUE(flashes(layer)) << layer->metaObject()->className();
    // The veil goes by itself.
    EXPECT_TRUE(QTest::qWaitFor([&layers] { return !flashes(layers.first()); }, 3000));

    auto *sticker = qobject_cast<ResizableImageView *>(layers.at(2));
    sticker->tapGesture();
    sticker->buttonTapGesture();
    s.editor.undo();
    const auto &views = s.editor.viewMain->subviews();
    const auto revived = std::find_if(
        views.cbegin(), views.cend(), [](View *view) { return qobject_cast<ResizableImageView *>(view) != nullptr; });
    ASSERT_NE(revived, views.cend());
    EXPECT_FALSE(flashes(*revived));
}

TEST(TemplateLoad, IndexCountersAdvanceForEveryLayerWhetherOrNotTheIndexWasTaken)
{
    TestHome home;
    writePicture(home, QStringLiteral("a.png"));
    Session s(QSizeF(360, 640));
    ASSERT_TRUE(s.editor.loadTemplate(documentFrom(R"({"width": 360, "height": 640, "sticker_json": [
        {"sticker_image": "a.png", "index": 0}, {"sticker_image": "a.png", "index": 7},
        {"sticker_image": "a.png"}, {"sticker_image": "a.png"}]})")));
    QList<qint64> indexes;
    for (const auto &record : *s.editor.masterJson->sticker_json)
        indexes.append(record->index.value_or(-1));
    EXPECT_EQ(indexes, (QList<qint64> { 1, 7, 3, 4 }));
    EXPECT_EQ(s.editor.builder().counters.stickerJsonIndex, 5);
    EXPECT_EQ(s.editor.builder().counters.textJsonIndex, 1);
    // Different kinds number on their own.
    s.editor.builder().counters.textJsonIndex = 1;
}

TEST(TemplateLoad, AnglesBecomeRadiansOnceAndGeometryBecomesCanvasPoints)
{
    TestHome home;
    writePicture(home, QStringLiteral("a.png"));
    Session s(QSizeF(540, 960), 2.0);
    ASSERT_TRUE(s.editor.loadTemplate(documentFrom(R"({"width": 1080, "height": 1920, "sticker_json": [
        {"sticker_image": "a.png", "xPos": 200, "yPos": 400, "width": 100, "height": 60, "angle": 90}]})")));
    auto sticker = s.editor.masterJson->sticker_json->first();
    EXPECT_NEAR(sticker->angle.value(), M_PI / 2, 1e-6);
    EXPECT_NEAR(sticker->xPos.value(), 100, 1e-4);
    EXPECT_NEAR(sticker->yPos.value(), 200, 1e-4);
    EXPECT_NEAR(sticker->width.value(), 50, 1e-4);
    EXPECT_NEAR(sticker->height.value(), 30, 1e-4);
    EXPECT_EQ(s.editor.undoArray().size(), 1);
    EXPECT_FALSE(s.editor.masterJson->changed_background_json);

    // The stored form opens again without any conversion, on another screen size too.
    const auto stored = Mapper::toJSONString(*s.editor.masterJson, true);
    Session again(QSizeF(300, 500));
    ASSERT_TRUE(again.editor.loadReEdit(Mapper::map<Json>(*stored)));
    auto reopened = again.editor.masterJson->sticker_json->first();
    EXPECT_NEAR(reopened->angle.value(), M_PI / 2, 1e-6);
    EXPECT_NEAR(reopened->xPos.value(), 100, 1e-4);
    EXPECT_NEAR(reopened->width.value(), 50, 1e-4);
}

TEST(TemplateLoad, NullFlagsRefuseTheDocumentOnlyWhereTheyMatter)
{
    TestHome home;
    writePicture(home, QStringLiteral("a.png"));
    Session withSlots(QSizeF(360, 640));
    EXPECT_FALSE(withSlots.editor.loadTemplate(
        documentFrom(R"({"is_pip": null, "image_sticker_json": [{"image_sticker_image": "a.png"}]})")));
    EXPECT_FALSE(withSlots.editor.errorString().isEmpty());
    Session withoutSlots(QSizeF(360, 640));
    EXPECT_TRUE(withoutSlots.editor.loadTemplate(documentFrom(R"({"is_pip": null})")));
    Session missing(QSizeF(360, 640));
    EXPECT_TRUE(
        missing.editor.loadTemplate(documentFrom(R"({"image_sticker_json": [{"image_sticker_image": "a.png"}]})")));
    EXPECT_FALSE(missing.editor.is_pip);
    Session offline(QSizeF(360, 640));
    EXPECT_FALSE(offline.editor.loadTemplate(documentFrom(R"({"is_offline": null})")));
}

TEST(TemplateLoad, PictureInPictureMakesTheSlotPictureTheBackground)
{
    TestHome home;
    writePicture(home, QStringLiteral("a.png"), QSize(30, 60));
    Session s(QSizeF(360, 640));
    ASSERT_TRUE(
        s.editor.loadTemplate(documentFrom(R"({"is_pip": true, "background_json": {"background_color": "00ff00"},
        "image_sticker_json": [{"image_sticker_image": "a.png", "width": 100, "height": 100}]})")));
    EXPECT_TRUE(s.editor.is_pip);
    EXPECT_EQ(s.editor.backgroundImageView->image().size(), QSize(30, 60));
    EXPECT_FALSE(s.editor.background().defaultBgColor.has_value());
    EXPECT_EQ(s.editor.background().croppedImage.size(), QSize(30, 60));
}

TEST(Background, ColourAndGradientComeFromTheRecord)
{
    TestHome home;
    Session s(QSizeF(360, 640));
    ASSERT_TRUE(s.editor.loadTemplate(documentFrom(
        R"({"background_json": {"background_color": "#E05863", "gradient_colors": ["ff0000", "0000ff"]}})")));
    EXPECT_EQ(s.editor.backgroundImageView->backgroundColor(), QColor(0xE0, 0x58, 0x63));
    EXPECT_EQ(
        s.editor.background().bgGradientArray, (QStringList { QStringLiteral("ff0000"), QStringLiteral("0000ff") }));
    EXPECT_EQ(*s.editor.background().defaultBgColor, QColor(0xE0, 0x58, 0x63));
}

TEST(Leaving, ConfirmationWithoutEditsPopsAtOnce)
{
    TestHome home;
    NavigationController navigation;
    navigation.setRoot(new ViewController());
    auto *editor = new EditImagePortraitMode();
    editor->setCanvasArea(QRectF(15, 15, 300, 500));
    editor->contentJson = documentFrom(R"({"width": 100, "height": 100})");
    navigation.push(editor);
    editor->requestLeave();
    ASSERT_NE(navigation.alert(), nullptr);
    EXPECT_EQ(navigation.alert()->title(), QStringLiteral("Confirm"));
    EXPECT_EQ(navigation.alert()->message(), QStringLiteral("Are you sure?"));
    EXPECT_EQ(navigation.alert()->actionTitles(), (QStringList { QStringLiteral("NO"), QStringLiteral("YES") }));
    navigation.alert()->trigger(QStringLiteral("NO"));
    EXPECT_EQ(navigation.depth(), 2);
    editor->requestLeave();
    navigation.alert()->trigger(QStringLiteral("YES"));
    EXPECT_EQ(navigation.depth(), 1);
}
