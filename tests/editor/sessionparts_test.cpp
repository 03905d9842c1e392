// What the tool menus and the pickers call on the session: the sliders and their releases, the
// pictures handed back, and the session's part of undo and redo.
#include "backgroundimageview.h"
#include "canvasbackground.h"
#include "editorfixture.h"
#include "resizableimageview.h"
#include "resizableview.h"
#include "toolsliders.h"

#include <gtest/gtest.h>

namespace {

const char *const textAndSticker = R"({"width": 360, "height": 640, "sample_image": "s.png",
    "background_json": {"background_color": "#336699"},
    "text_json": [{"text": "Slide", "xPos": 40, "yPos": 300, "size": 30}],
    "sticker_json": [{"sticker_image": "a.png", "xPos": 100, "yPos": 100, "width": 60, "height": 40}]})";

QImage filled(QColor color, QSize size = { 30, 20 })
{
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(color);
    return picture;
}

} // namespace

TEST(ToolSliders, TheScaleSliderIsRelativeToTheLayerWhenTheToolOpens)
{
    EditorFixture f;
    f.picture(QStringLiteral("a.png"));
    ASSERT_TRUE(f.open(textAndSticker));
    ToolSliders &sliders = *f.editor.sliders();

    auto *text = f.layers<ResizableView>().first();
    text->tapGesture();
    EXPECT_EQ(sliders.beginScale(), 1.0);
    sliders.scale(1.5);
    sliders.scale(2.0); // a drag: every value against the size at opening, not the last one
    EXPECT_NEAR(text->textView->fontSize, 60, 1e-9);
    EXPECT_EQ(f.editor.undoArray().size(), 1); // nothing recorded while dragging
    sliders.sliderDidEndSliding(ToolSliders::Slider::Scale);
    EXPECT_EQ(f.editor.undoArray().size(), 2);
    EXPECT_NEAR(*text->textJson->size, 60, 1e-9);
    sliders.beginScale();
    sliders.scale(0.0); // the font never reaches 1
    EXPECT_NEAR(text->textView->fontSize, 60, 1e-9);

    auto *sticker = f.layers<ResizableImageView>().first();
    sticker->tapGesture();
    const qreal width = sticker->bounds().width();
    sliders.beginScale();
    sliders.scale(1.5);
    EXPECT_NEAR(sticker->bounds().width(), width * 1.5, 1e-9);
    sliders.sliderDidEndSliding(ToolSliders::Slider::Scale);
    EXPECT_NEAR(*sticker->stickerJson->width, width * 1.5 - ResizableImageView::buttonSize, 1e-9);
    EXPECT_EQ(f.editor.undoArray().size(), 3);
}

TEST(ToolSliders, ReleasesWriteTheRecordOnceForTextsAndStickers)
{
    EditorFixture f;
    f.picture(QStringLiteral("a.png"));
    ASSERT_TRUE(f.open(textAndSticker));
    ToolSliders &sliders = *f.editor.sliders();
    auto *text = f.layers<ResizableView>().first();
    text->tapGesture();
    sliders.rotate(0.25);
    sliders.rotate(0.25);
    sliders.setOpacity(60);
    sliders.setLetterSpacing(3);
    sliders.setLineSpacing(5);
    EXPECT_EQ(f.editor.undoArray().size(), 1);
    sliders.sliderDidEndSliding(ToolSliders::Slider::LineSpacing);
    EXPECT_EQ(f.editor.undoArray().size(), 2);
    EXPECT_NEAR(*text->textJson->angle, 0.5, 1e-6);
    EXPECT_NEAR(*text->textJson->opacity, 60, 1e-9);
    EXPECT_EQ(text->textJson->land_space, 3);
    EXPECT_EQ(text->textJson->vert_space, 5);

    auto *sticker = f.layers<ResizableImageView>().first();
    sticker->tapGesture();
    sliders.setOpacity(25);
    sliders.sliderDidEndSliding(ToolSliders::Slider::Opacity);
    EXPECT_NEAR(*sticker->stickerJson->opacity, 25, 1e-9);
    sliders.rotate(-0.3);
    sliders.sliderDidEndSliding(ToolSliders::Slider::Rotation);
    EXPECT_NEAR(*sticker->stickerJson->angle, -0.3, 1e-6);
    EXPECT_EQ(f.editor.undoArray().size(), 4);
    // Spacing belongs to texts only.
    sliders.setLetterSpacing(9);
    sliders.sliderDidEndSliding(ToolSliders::Slider::LetterSpacing);
    EXPECT_EQ(f.editor.undoArray().size(), 4);
}

TEST(PickerTarget, PicturesHandedBackAreTakenWhenTheEditorAppears)
{
    EditorFixture f;
    f.picture(QStringLiteral("a.png"));
    ASSERT_TRUE(f.open(textAndSticker));
    PickerTarget &target = f.editor;

    // A new sticker, from the catalog entry the picker names.
    PickedSticker picked;
    picked.newStickerImage = filled(Qt::blue);
    picked.selected_sticker_id = 12;
    target.setNewStickerImage(picked);
    f.editor.viewWillAppear();
    ASSERT_EQ(f.layers<ResizableImageView>().size(), 2);
    EXPECT_EQ(f.layers<ResizableImageView>().last()->stickerJson->selected_sticker_id, 12);
    EXPECT_TRUE(f.editor.picked.newStickerImage.isNull()); // taken once

    // The selected sticker's picture replaced: its place stays, its picture takes the new shape.
    auto *sticker = f.layers<ResizableImageView>().first();
    sticker->tapGesture();
    const QPointF centre = sticker->center();
    picked.newStickerImage = filled(Qt::green, { 20, 40 });
    picked.isStickerChange = true;
    target.setNewStickerImage(picked);
    f.editor.viewWillAppear();
    EXPECT_EQ(f.layers<ResizableImageView>().size(), 2);
    EXPECT_EQ(sticker->center(), centre);
    EXPECT_NEAR(sticker->mainView->bounds().width() * 2, sticker->mainView->bounds().height(), 1e-6);
    EXPECT_EQ(sticker->contentImageView->tintedImage->pixelColor(0, 0), QColor(Qt::green));

    // A background picture is kept in a file of the design and recorded as one step.
    const qsizetype steps = f.editor.undoArray().size();
    target.setNewBgImage(filled(Qt::yellow, { 36, 64 }), QString());
    f.editor.viewWillAppear();
    EXPECT_EQ(f.editor.undoArray().size(), steps + 1);
    EXPECT_EQ(f.editor.backgroundImageView->image().pixelColor(1, 1), QColor(Qt::yellow));
    const QString file = f.editor.masterJson->background_json->background_image.value_or(QString());
    EXPECT_EQ(QImage(f.home.filePath(QStringLiteral("Documents/") + file)).size(), QSize(36, 64));
    f.editor.undo();
    EXPECT_TRUE(f.editor.backgroundImageView->image().isNull());
    EXPECT_EQ(f.editor.backgroundImageView->backgroundColor(), QColor(0x33, 0x66, 0x99));
}

TEST(Replay, AStepThatMakesNoLayerClearsOnlyItsKindsSelection)
{
    EditorFixture f;
    f.picture(QStringLiteral("a.png"));
    ASSERT_TRUE(f.open(textAndSticker));
    f.editor.addNewSticker(filled(Qt::red));
    auto *text = f.layers<ResizableView>().first();
    text->tapGesture();
    f.editor.undo(); // the new sticker goes; the text stays selected
    EXPECT_EQ(f.layers<ResizableImageView>().size(), 1);
    EXPECT_EQ(f.editor.selection.selectedView, text);
    EXPECT_TRUE(text->isSelected());

    f.layers<ResizableImageView>().first()->tapGesture();
    f.editor.redo(); // the sticker comes back: every new layer clears the selection
    EXPECT_FALSE(f.editor.selection.selectedIconImgView);
    f.layers<ResizableImageView>().first()->tapGesture();
    f.editor.undo(); // the same kind's selection goes with a sticker that is not made again
    EXPECT_FALSE(f.editor.selection.selectedIconImgView);
}
