// Every way into the editor stores a design that reads back with all its layers.
#include "backgroundimageview.h"
#include "borderedresizableimageview.h"
#include "canvasbackground.h"
#include "editorfixture.h"
#include "editvideoportraitmode.h"
#include "resizableimageview.h"
#include "resizableview.h"
#include "storeddesign.h"

#include <gtest/gtest.h>

namespace {

// The stored design of the one row, as the designs list reads it.
std::shared_ptr<Json> storedDesign(DesignStore &store)
{
    const QList<SavePhoto> rows = store.allDesigns();
    return rows.size() == 1 ? readStoredDesign(rows.first().jsonString) : nullptr;
}

// The document the custom-size screen hands over: a size, and nothing in it.
std::shared_ptr<Json> customSize(double width, double height)
{
    auto document = std::make_shared<Json>();
    document->width = width;
    document->height = height;
    document->is_portrait = width <= height;
    document->background_json = std::make_shared<BackgroundJson>();
    document->text_json.emplace();
    document->sticker_json.emplace();
    document->image_sticker_json.emplace();
    document->frame_image_sticker_json.emplace();
    document->frame_json = std::make_shared<FrameJson>();
    return document;
}

} // namespace

TEST(EditorRoutes, ACustomSizeDesignGetsARenderedPreviewAndReopensWithItsLayers)
{
    EditorFixture f;
    f.editor.isCreateOwn = true;
    auto document = customSize(500, 800);
    document->background_json->background_color = QStringLiteral("00ff00");
    f.editor.contentJson = document;
    f.editor.viewDidLoad();
    ASSERT_TRUE(f.editor.masterJson);
    const QString sample = f.editor.masterJson->sample_image.value_or(QString());
    const QImage preview(f.home.filePath(QStringLiteral("Documents/") + sample));
    ASSERT_EQ(preview.size(), QSize(500, 800)) << qPrintable(sample);
    EXPECT_EQ(preview.pixelColor(250, 400), QColor(Qt::green));
    // The preview is part of the first state, so an undo back to it keeps it.
    EXPECT_EQ(f.editor.undoArray().first()["sample_image"], sample.toStdString());

    f.editor.addNewText(QStringLiteral("Mine"), QStringLiteral("Montserrat-Bold"), QColor(Qt::white));
    f.editor.undo();
    f.editor.redo();
    const auto stored = storedDesign(f.store);
    ASSERT_TRUE(stored);
    ASSERT_TRUE(stored->text_json);
    ASSERT_EQ(stored->text_json->size(), 1);
    EXPECT_EQ(stored->text_json->first()->text, QStringLiteral("Mine"));
    EXPECT_EQ(stored->background_json->background_color, QStringLiteral("00ff00"));
}

TEST(EditorRoutes, ABarePictureBecomesAWholeDocumentThatReopensWithItsPicture)
{
    EditorFixture f;
    QImage photo(300, 200, QImage::Format_RGB32);
    photo.fill(Qt::blue);
    f.editor.background().croppedImage = photo;
    f.editor.viewDidLoad();
    ASSERT_TRUE(f.editor.masterJson);
    EXPECT_EQ(f.editor.viewMain->bounds().size(), QSizeF(360, 240)); // fitted to the picture
    EXPECT_EQ(f.editor.backgroundImageView->image().size(), QSize(300, 200));
    EXPECT_EQ(f.editor.background().croppedOriginalImage.size(), QSize(300, 200));

    QImage mark(20, 20, QImage::Format_ARGB32);
    mark.fill(Qt::red);
    f.editor.addNewSticker(mark);
    const auto stored = storedDesign(f.store);
    ASSERT_TRUE(stored);
    ASSERT_TRUE(stored->sticker_json);
    EXPECT_EQ(stored->sticker_json->size(), 1);
    EXPECT_EQ(stored->width, 300);
    EXPECT_FALSE(*stored->is_portrait);

    // Opened again from the store, the picture and the sticker are there.
    EditImagePortraitMode reopened;
    reopened.setCanvasArea(QRectF(0, 0, 360, 640));
    ASSERT_TRUE(reopened.loadReEdit(stored));
    EXPECT_EQ(reopened.backgroundImageView->image().size(), QSize(300, 200));
    const QColor shown = reopened.backgroundImageView->image().pixelColor(10, 10);
    EXPECT_GE(shown.blue(), 250); // an opaque picture is kept as JPEG at full quality
    EXPECT_LE(shown.red() + shown.green(), 6);
    int stickers = 0;
    for (View *view : reopened.viewMain->subviews())
        stickers += qobject_cast<ResizableImageView *>(view) != nullptr;
    EXPECT_EQ(stickers, 1);
}

TEST(EditorRoutes, ATemplateWithoutPreviewIsStoredInTheCurrentForm)
{
    EditorFixture f;
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "text_json": [{"text": "kept", "xPos": 10, "yPos": 10}]})"));
    f.editor.addNewText(QStringLiteral("new"), QStringLiteral("Montserrat-Bold"), std::nullopt);
    const auto stored = storedDesign(f.store);
    ASSERT_TRUE(stored);
    ASSERT_TRUE(stored->text_json);
    EXPECT_EQ(stored->text_json->size(), 2);
}

TEST(EditorRoutes, TheVideoEditorLeavesOutlinedSlotsAlone)
{
    TestHome home;
    EditVideoPortraitMode editor;
    editor.setCanvasArea(QRectF(0, 0, 360, 640));
    ASSERT_TRUE(editor.loadReEdit(Mapper::map<Json>(QStringLiteral(R"({"width": 360, "height": 640,
        "frame_image_sticker_json": [{"image_sticker_image": "x.png", "xPos": 0, "yPos": 0, "width": 50, "height": 50}]})"))));
    for (View *view : editor.viewMain->subviews())
        EXPECT_EQ(qobject_cast<BorderedResizableImageView *>(view), nullptr);
    EXPECT_EQ(editor.masterJson->frame_image_sticker_json->size(), 1); // carried through untouched
}

TEST(EditorRoutes, SlotRecordsAreTheSameAfterTemplateStoreReopenStore)
{
    EditorFixture f;
    f.picture(QStringLiteral("p.png"));
    ASSERT_TRUE(f.open(R"({"width": 1080, "height": 1920, "sample_image": "s.png",
        "image_sticker_json": [{"image_sticker_image": "p.png", "xPos": 100, "yPos": 200, "width": 400, "height": 300},
                               {"image_sticker_image": "p.png", "xPos": 500, "yPos": 900, "width": 300, "height": 300,
                                "angle": 30, "is_round": true}],
        "frame_image_sticker_json": [{"image_sticker_image": "p.png", "xPos": 90, "yPos": 1200,
                                      "width": 500, "height": 400, "angle": -15}]})"));
    f.editor.addNewText(QStringLiteral("one"), QStringLiteral("Montserrat-Bold"), std::nullopt);
    auto slotsOf = [](const QString &stored) {
        const nlohmann::ordered_json json = Mapper::parse(stored);
        return std::pair(json["image_sticker_json"].dump(), json["frame_image_sticker_json"].dump());
    };
    const auto first = slotsOf(f.store.allDesigns().first().jsonString);

    EditImagePortraitMode reopened;
    reopened.setDesignStore(&f.store);
    reopened.objectId = f.editor.objectId;
    reopened.setCanvasArea(QRectF(0, 0, 360, 640));
    ASSERT_TRUE(reopened.loadReEdit(storedDesign(f.store)));
    reopened.addNewText(QStringLiteral("two"), QStringLiteral("Montserrat-Bold"), std::nullopt);
    ASSERT_EQ(f.store.allDesigns().size(), 1);
    const auto second = slotsOf(f.store.allDesigns().first().jsonString);
    EXPECT_EQ(first.first, second.first);
    EXPECT_EQ(first.second, second.second);
    // The slot keeps the template's size in canvas points: 400 x 300 of 1080 x 1920 on 360 x 640.
    const auto stored = storedDesign(f.store);
    EXPECT_NEAR(*stored->image_sticker_json->first()->width, 400.0 / 3, 1e-3);
    EXPECT_NEAR(*stored->image_sticker_json->first()->xPos, 100.0 / 3 - 15, 1e-3);
}
