// The bars below the canvas, driven as the user taps them: which bar a selection opens, the rows of each
// bar, the sliders and colours on the selected layer or the background, and the return to the top level.
#include "editorfixture.h"

#include "backgroundimageview.h"
#include "backgroundtools.h"
#include "canvasbackground.h"
#include "hexcolor.h"
#include "menusliders.h"
#include "resizableimageview.h"
#include "resizableview.h"
#include "stickerimageview.h"
#include "toolmenus.h"

#include <QTest>
#include <QtMath>

#include <gtest/gtest.h>

namespace {

const char *const textAndSticker = R"({"width": 360, "height": 640,
    "background_json": {"background_color": "#336699"},
    "text_json": [{"text": "Slide", "xPos": 40, "yPos": 300, "size": 30}],
    "sticker_json": [{"sticker_image": "a.png", "xPos": 100, "yPos": 100, "width": 60, "height": 40}]})";

QStringList texts(const QList<MenuItem> &rows)
{
    QStringList words;
    for (const MenuItem &row : rows)
        words.append(row.text.isEmpty() ? row.image : row.text);
    return words;
}

// The row of the tool bar that shows `word`.
int rowOf(const ToolMenus &menus, const QString &word)
{
    return int(menus.barTexts().indexOf(word));
}

struct MenuFixture : EditorFixture
{
    explicit MenuFixture(const char *json = textAndSticker)
    {
        picture(QStringLiteral("a.png"));
        loaded = open(json);
    }
    ResizableView *text() const { return layers<ResizableView>().first(); }
    ResizableImageView *sticker() const { return layers<ResizableImageView>().first(); }
    ToolMenus &menus() { return *editor.menus(); }
    void tapRow(const char *word) { menus().didSelectMenuRow(rowOf(menus(), QLatin1String(word))); }

    bool loaded = false;
};

} // namespace

TEST(ToolMenus, ASelectionOpensItsKindsBarAndACanvasTapResetsThem)
{
    MenuFixture f;
    ASSERT_TRUE(f.loaded);
    ToolMenus &menus = f.menus();
    EXPECT_EQ(menus.menuTag(), MenuTag::noMenuTag);
    EXPECT_EQ(menus.contentTag(), 0);
    EXPECT_EQ(menus.barTexts(),
        QStringList(
            { "Add Text", "Add Image", "Bkground", "Graphics", "Shapes", "Text Arts", "My Arts", "My Design" }));

    f.text()->tapGesture();
    EXPECT_EQ(menus.menuTag(), MenuTag::fontTag);
    EXPECT_EQ(menus.contentTag(), ContentTag::editTextTag);
    EXPECT_EQ(menus.menuSelectedIndex(), 0);
    EXPECT_EQ(menus.barTexts(),
        QStringList({ "Edit", "Rotation", "Size", "Font", "Color", "Texture", "Shadow", "Style", "Opacity",
            "Letter Spacing", "Vertical Spacing" }));
    EXPECT_EQ(texts(menus.contentRows()), QStringList({ "Edit", "Up", "Down", "Left", "Right" }));

    f.tapRow("Style");
    EXPECT_EQ(menus.contentTag(), ContentTag::alignmentTag);
    EXPECT_EQ(menus.menuSelectedIndex(), 7);
    f.sticker()->tapGesture();
    EXPECT_EQ(menus.menuTag(), MenuTag::stickerTag);
    EXPECT_EQ(menus.contentTag(), ContentTag::stickerDetailsTag);
    EXPECT_EQ(menus.menuSelectedIndex(), 0); // every bar opens at its first row
    EXPECT_EQ(menus.barTexts(), QStringList({ "Edit", "Rotation", "Size", "Crop", "Color", "Opacity" }));
    EXPECT_EQ(texts(menus.contentRows()), QStringList({ "Edit", "Erase", "Up", "Down", "Left", "Right" }));
    f.tapRow("Crop");
    EXPECT_EQ(menus.contentTag(), ContentTag::stickerDetailsTag + ContentTag::stickerShapeCropIndex);
    EXPECT_EQ(texts(menus.contentRows()), QStringList({ "Aspect Ratio", "Crop to Shape" }));

    menus.canvasTapped();
    EXPECT_FALSE(f.editor.selection.selectedIconImgView);
    EXPECT_EQ(menus.menuTag(), MenuTag::noMenuTag);
    EXPECT_EQ(menus.contentTag(), 0);
    EXPECT_EQ(menus.control(), ToolMenus::Control::None);
}

TEST(ToolMenus, APictureInPictureDesignHasNoBkgroundRowAndItsTextsGetOnlyOpacity)
{
    MenuFixture f(R"({"width": 360, "height": 640, "is_pip": true,
        "text_json": [{"text": "Slide", "xPos": 40, "yPos": 300, "size": 30}]})");
    ASSERT_TRUE(f.loaded);
    ToolMenus &menus = f.menus();
    EXPECT_EQ(menus.barTexts(),
        QStringList({ "Add Text", "Add Image", "Graphics", "Shapes", "Text Arts", "My Arts", "My Design" }));

    f.text()->tapGesture();
    EXPECT_EQ(menus.menuTag(), MenuTag::adjustmentTag);
    EXPECT_EQ(menus.barTexts(), QStringList({ "Opacity" }));
    EXPECT_EQ(menus.control(), ToolMenus::Control::Slider);
    MenuSliders &slider = *menus.sliders();
    EXPECT_EQ(slider.kind(), MenuSliders::Kind::TextOpacity);
    EXPECT_EQ(slider.value(), 100);
    slider.sliderChanged(40);
    EXPECT_EQ(f.editor.undoArray().size(), 1); // a drag records nothing
    slider.sliderDidEndSliding();
    EXPECT_EQ(f.editor.undoArray().size(), 2);
    EXPECT_NEAR(*f.text()->textJson->opacity, 40, 1e-9);
    EXPECT_EQ(slider.lblSlider(), QStringLiteral("40"));
}

TEST(ToolMenus, TheSaveButtonIsNarrowOnScreensUnder375Points)
{
    EXPECT_EQ(ToolMenus::saveButtonWidth(320), 52);
    EXPECT_EQ(ToolMenus::saveButtonWidth(374.5), 52);
    EXPECT_EQ(ToolMenus::saveButtonWidth(375), 68);
    EXPECT_EQ(ToolMenus::saveButtonWidth(1024), 68);
}

TEST(ToolMenus, TheScaleSliderRunsTo2ForEveryLayerAndRecordsOnRelease)
{
    MenuFixture f;
    ASSERT_TRUE(f.loaded);
    ToolMenus &menus = f.menus();
    MenuSliders &sliders = *menus.sliders();
    f.text()->tapGesture();
    f.tapRow("Size");
    EXPECT_EQ(menus.control(), ToolMenus::Control::Scale);
    EXPECT_EQ(sliders.scaleMaximum(), 2);
    EXPECT_EQ(sliders.scale(), 1);
    sliders.scaleChanged(1.5);
    sliders.scaleDidEnd();
    EXPECT_NEAR(*f.text()->textJson->size, 45, 1e-9);

    f.sticker()->tapGesture();
    f.tapRow("Size");
    EXPECT_EQ(sliders.scaleMaximum(), 2);
    EXPECT_EQ(sliders.scale(), 1); // relative to the layer as it is when the view opens
    const qreal width = f.sticker()->bounds().width();
    sliders.scaleChanged(3); // held beyond the end: the slider stops at its maximum
    EXPECT_EQ(sliders.scale(), 2);
    sliders.scaleBy(-0.5);
    EXPECT_NEAR(f.sticker()->bounds().width(), width * 1.5, 1e-6);
    sliders.scaleDidEnd();
    EXPECT_EQ(f.editor.undoArray().size(), 3);

    f.tapRow("Rotation");
    EXPECT_EQ(menus.control(), ToolMenus::Control::Rotation);
    sliders.rotateBy(30);
    sliders.rotateBy(15);
    sliders.rotationDidEnd();
    EXPECT_NEAR(*f.sticker()->stickerJson->angle, qDegreesToRadians(45.0), 1e-6);
}

TEST(ToolMenus, UndoAndRedoReturnToTheTopLevelAndHideThePopTip)
{
    MenuFixture f;
    ASSERT_TRUE(f.loaded);
    ToolMenus &menus = f.menus();
    EXPECT_FALSE(f.editor.canUndo());
    f.editor.addNewText(QStringLiteral("New"), QStringLiteral("Montserrat-Bold"), QColor(Qt::white));
    EXPECT_EQ(menus.menuTag(), MenuTag::fontTag);
    f.tapRow("Font");
    EXPECT_EQ(menus.contentTag(), ContentTag::fontStyleTag);
    EXPECT_TRUE(menus.popTipShown());
    EXPECT_EQ(ToolMenus::popTipText(), QStringLiteral("Tap here to know \"How to use fonts?\""));

    f.editor.undo();
    EXPECT_EQ(menus.menuTag(), MenuTag::noMenuTag);
    EXPECT_EQ(menus.contentTag(), 0);
    EXPECT_FALSE(menus.popTipShown());
    EXPECT_FALSE(f.editor.canUndo()); // back at the loaded design: the undo button greys out
    EXPECT_TRUE(f.editor.canRedo());
    f.editor.redo();
    EXPECT_EQ(menus.menuTag(), MenuTag::noMenuTag);
    EXPECT_TRUE(f.editor.canUndo());

    // The tip shows the first time the font tool opens, and never again.
    f.text()->tapGesture();
    f.tapRow("Font");
    EXPECT_FALSE(menus.popTipShown());

    // Closing the selected layer takes the bars back too; closing another one leaves them.
    f.sticker()->buttonTapGesture();
    EXPECT_EQ(menus.menuTag(), MenuTag::fontTag);
    f.text()->buttonTapGesture();
    EXPECT_EQ(menus.menuTag(), MenuTag::noMenuTag);
}

TEST(ToolMenus, TextToolsChangeTheTextAsOneStepEach)
{
    MenuFixture f;
    ASSERT_TRUE(f.loaded);
    ToolMenus &menus = f.menus();
    ResizableView *text = f.text();
    text->tapGesture();
    const int steps = int(f.editor.undoArray().size());

    f.tapRow("Style");
    menus.didSelectContentRow(4); // uppercase
    EXPECT_EQ(text->textJson->text, QStringLiteral("SLIDE"));
    menus.didSelectContentRow(0); // left
    EXPECT_EQ(text->textJson->alignment, 1);
    f.tapRow("Texture");
    EXPECT_EQ(menus.contentRows().size(), 114);
    menus.didSelectContentRow(6);
    EXPECT_FALSE(text->textJson->texture_image.value_or(QString()).isEmpty());
    f.tapRow("Color");
    EXPECT_EQ(menus.contentTag(), ContentTag::textColorTag);
    EXPECT_EQ(menus.control(), ToolMenus::Control::Colors);
    menus.didSelectColor(4);
    EXPECT_EQ(HexColor::fromString(text->textJson->color.value_or(QString())),
        HexColor::fromString(MenuItems::colorsArray().at(4)));
    EXPECT_FALSE(text->textJson->texture_image); // a plain colour replaces the texture
    EXPECT_EQ(menus.colorIndex(), 4);
    f.tapRow("Shadow");
    menus.sliders()->sliderChanged(8);
    menus.sliders()->sliderDidEndSliding();
    EXPECT_NEAR(text->textJson->shadowRadius.value_or(0), 8, 1e-9);
    f.tapRow("Letter Spacing");
    menus.sliders()->sliderChanged(4);
    menus.sliders()->sliderDidEndSliding();
    EXPECT_NEAR(text->textJson->land_space.value_or(0), 4, 1e-9);
    f.tapRow("Edit");
    const double y = text->textJson->yPos.value_or(0);
    menus.didSelectContentRow(2); // down
    EXPECT_NEAR(text->textJson->yPos.value_or(0), y + 2, 1e-9);
    EXPECT_EQ(int(f.editor.undoArray().size()), steps + 7);
}

TEST(ToolMenus, TheBackgroundBarColoursPatternsAndFiltersTheBackground)
{
    MenuFixture f;
    ASSERT_TRUE(f.loaded);
    ToolMenus &menus = f.menus();
    menus.canvasTapped(); // nothing selected: the background's bar
    EXPECT_EQ(menus.menuTag(), MenuTag::bgTag);
    EXPECT_EQ(menus.contentTag(), ContentTag::bgDetailsTag);
    EXPECT_EQ(menus.control(), ToolMenus::Control::Colors);
    EXPECT_EQ(menus.barTexts(), QStringList({ "Color", "Pattern", "Filter", "Adjust" }));
    menus.didSelectColor(1);
    EXPECT_EQ(f.editor.masterJson->background_json->background_color,
        HexColor::toString(HexColor::fromString(MenuItems::colorsArray().at(1))));

    // A colour leaves no picture for the filters: the list is empty.
    f.tapRow("Filter");
    EXPECT_EQ(menus.menuTag(), MenuTag::filterMenuTag);
    EXPECT_EQ(menus.contentTag(), ContentTag::filterTag);
    EXPECT_TRUE(menus.noDataShown());
    menus.canvasTapped();
    EXPECT_EQ(menus.menuTag(), MenuTag::noMenuTag);
    EXPECT_FALSE(menus.noDataShown());

    menus.canvasTapped();
    f.tapRow("Pattern");
    EXPECT_EQ(menus.contentTag(), ContentTag::bgDetailsTag + 1);
    EXPECT_EQ(texts(menus.contentRows()).mid(0, 5),
        QStringList({ "patternbg_1", "patternbg_2", "patternbg_3", "patternbg_4", "pattern_1" }));
    menus.didSelectContentRow(2);
    EXPECT_FALSE(f.editor.masterJson->background_json->texture_image.value_or(QString()).isEmpty());
    EXPECT_FALSE(f.editor.backgroundImageView->patternColor().isNull());
}

TEST(ToolMenus, FiltersFlipsAndAdjustmentsActOnAPictureBackground)
{
    MenuFixture f;
    ASSERT_TRUE(f.loaded);
    QImage photo(40, 20, QImage::Format_ARGB32);
    photo.fill(QColor(200, 60, 30));
    f.editor.setBackgroundImage(photo);
    ToolMenus &menus = f.menus();
    const int steps = int(f.editor.undoArray().size());
    menus.canvasTapped();
    f.tapRow("Filter");
    EXPECT_FALSE(menus.noDataShown());
    EXPECT_EQ(menus.barTexts().size(), 15);
    EXPECT_EQ(menus.barTexts().at(11), QStringLiteral("Sepia"));
    menus.didSelectContentRow(7); // "Mono"
    EXPECT_TRUE(QTest::qWaitFor([&f] { return !f.editor.backgroundTools()->busy(); }));
    const QColor mono = f.editor.backgroundImageView->image().pixelColor(5, 5);
    EXPECT_EQ(mono.red(), mono.green());
    EXPECT_EQ(int(f.editor.undoArray().size()), steps + 1);

    menus.showMainMenu();
    menus.canvasTapped();
    f.tapRow("Adjust");
    EXPECT_EQ(menus.menuTag(), MenuTag::adjustmentTag);
    EXPECT_EQ(menus.barTexts(), QStringList({ "Opacity", "Brightness", "Contrast", "Saturaion", "Flip", "Feather" }));
    EXPECT_EQ(menus.sliders()->kind(), MenuSliders::Kind::Opacity);
    f.tapRow("Flip");
    EXPECT_EQ(menus.contentTag(), ContentTag::flipTag);
    menus.didSelectContentRow(0);
    EXPECT_EQ(f.editor.background().orientation(), CanvasBackground::Orientation::UpMirrored);
    f.tapRow("Feather");
    EXPECT_EQ(menus.sliders()->kind(), MenuSliders::Kind::Feather);
    menus.sliders()->sliderChanged(10);
    EXPECT_TRUE(QTest::qWaitFor([&f] { return !f.editor.backgroundImageView->featherMask().isNull(); }));
}

TEST(ToolMenus, StickerColourAndOpacityGoToTheSelectedSticker)
{
    MenuFixture f;
    ASSERT_TRUE(f.loaded);
    ToolMenus &menus = f.menus();
    ResizableImageView *sticker = f.sticker();
    sticker->tapGesture();
    f.tapRow("Color");
    EXPECT_EQ(menus.contentTag(), ContentTag::stickerDetailsTag + 4);
    menus.didSelectColor(2);
    EXPECT_EQ(HexColor::fromString(sticker->stickerJson->color.value_or(QString())),
        HexColor::fromString(MenuItems::colorsArray().at(2)));
    EXPECT_EQ(menus.colorIndex(), 2);
    f.tapRow("Opacity");
    EXPECT_EQ(menus.sliders()->kind(), MenuSliders::Kind::StickerOpacity);
    menus.sliders()->sliderChanged(25);
    menus.sliders()->sliderDidEndSliding();
    EXPECT_NEAR(*sticker->stickerJson->opacity, 25, 1e-6);
}
