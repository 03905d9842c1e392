// The user's photos in a template's slots: the placeholder's sheet, the crop screen's picture placed as one
// step, and the gestures on the picture inside a slot, on real templates of the generated content pack.
#include "packtemplates.h"

#include "backgroundimageview.h"
#include "cropscreens.h"
#include "cropviewcontroller.h"
#include "designstore.h"
#include "editimageportraitmode.h"
#include "navigationcontroller.h"
#include "picturesourcesheet.h"
#include "saveflow.h"
#include "storyboard.h"
#include "testhome.h"

#include <QCoreApplication>
#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>

namespace {

/** An editor at the root of a stack on a 360 by 640 area, opening a template of the pack. */
struct SlotEditor
{
    explicit SlotEditor(const nlohmann::ordered_json &document)
    {
        EXPECT_TRUE(PackTemplates::linkResources(home.path())) << "build the content-pack target";
        EXPECT_TRUE(document.is_object()) << "the pack has no such template";
        CropScreens::registerScreens(storyboard);
        editor->setStoryboard(&storyboard);
        editor->setDesignStore(&store);
        editor->setCanvasArea(QRectF(0, 0, 360, 640));
        editor->screenSize = QSizeF(360, 640);
        editor->contentJson = Mapper::map<Json>(document);
        navigation.setRoot(editor);
    }

    template<class Layer> Layer *first() const
    {
        for (View *view : editor->viewMain->subviews()) {
            if (auto *layer = qobject_cast<Layer *>(view))
                return layer;
        }
        return nullptr;
    }

    /** A photograph of one colour, written where the gallery would find it. */
    QString photo(QColor color, QSize size = { 400, 300 }) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        QString path = home.filePath(QStringLiteral("photo-%1.png").arg(color.name().mid(1)));
        image.save(path);
        return path;
    }

    /** The picture sheet's gallery row gives `path`, and Done on the crop screen cuts it whole. */
    bool pickThroughSheet(const QString &path)
    {
        auto *sheet = qobject_cast<PictureSourceSheet *>(navigation.topViewController());
        if (!sheet)
            return false;
        sheet->pickedFile(QUrl::fromLocalFile(path));
        CropViewController *crop = nullptr;
        if (!QTest::qWaitFor(
                [&] { return (crop = qobject_cast<CropViewController *>(navigation.topViewController())); }, 20000))
            return false;
        crop->setViewSize(390, 700);
        if (!QTest::qWaitFor([crop] { return !crop->isBusy(); }, 20000))
            return false;
        crop->done();
        return QTest::qWaitFor([this] { return navigation.depth() == 1; }, 20000);
    }

    TestHome home;
    DesignStore store;
    Storyboard storyboard;
    NavigationController navigation;
    EditImagePortraitMode *editor = new EditImagePortraitMode();
};

// The photo's colour at its centre, within what a lossy store of the picture may change.
bool isGreenAtCentre(const QImage &image)
{
    const QRgb pixel = image.pixel(image.width() / 2, image.height() / 2);
    return qRed(pixel) < 4 && qGreen(pixel) > 251 && qBlue(pixel) < 4;
}

} // namespace

TEST(SlotPictures, ThePlaceholderOpensTheSheetAndTheCutPhotoFillsTheOutlinedSlotAsOneStep)
{
    SlotEditor screen(PackTemplates::outlined());
    auto *slot = screen.first<BorderedResizableImageView>();
    ASSERT_NE(slot, nullptr);
    ASSERT_TRUE(slot->isNotImage());
    ASSERT_NE(slot->plusView(), nullptr);
    EXPECT_TRUE(slot->hole()->hasMask());
    const qsizetype steps = screen.editor->undoArray().size();
    const QImage background = screen.editor->backgroundImageView->image();
    const auto backgroundRecord = Mapper::toJSON(*screen.editor->masterJson->background_json);

    slot->plusTapGesture();
    auto *sheet = qobject_cast<PictureSourceSheet *>(screen.navigation.topViewController());
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->title(), QStringLiteral("Choose Image From"));
    EXPECT_EQ(screen.editor->imagePickerTag(), ImagePickerTarget::selectedLayerTag);
    ASSERT_TRUE(screen.pickThroughSheet(screen.photo(Qt::green)));

    ASSERT_FALSE(slot->isNotImage());
    EXPECT_EQ(slot->plusView(), nullptr);
    EXPECT_TRUE(isGreenAtCentre(slot->contentImageView->image()));
    EXPECT_EQ(screen.editor->undoArray().size(), steps + 1);
    const auto &record = *screen.editor->masterJson->frame_image_sticker_json->first();
    EXPECT_EQ(record.status, 2);
    EXPECT_TRUE(record.image_sticker_selected_image.has_value());
    EXPECT_FALSE(record.pip_image.value_or(QString()).isEmpty());
    // Only a picture-in-picture template's load puts a slot's picture behind the design.
    EXPECT_EQ(screen.editor->backgroundImageView->image().cacheKey(), background.cacheKey());
    EXPECT_EQ(Mapper::toJSON(*screen.editor->masterJson->background_json), backgroundRecord);

    // A tap makes the placed slot active; a second tap on the picture's menu would replace it.
    slot->tapGesture();
    EXPECT_TRUE(slot->isActive());
    EXPECT_FALSE(slot->redDashedBorderView->isHidden());
    screen.editor->choosePictureFor(slot);
    sheet = qobject_cast<PictureSourceSheet *>(screen.navigation.topViewController());
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->title(), QStringLiteral("Replace Image From"));
    sheet->cancel();

    screen.editor->undo();
    auto *restored = screen.first<BorderedResizableImageView>();
    ASSERT_NE(restored, nullptr);
    EXPECT_TRUE(restored->isNotImage());
    EXPECT_EQ(screen.editor->masterJson->frame_image_sticker_json->first()->status, 2);
    EXPECT_FALSE(screen.editor->masterJson->frame_image_sticker_json->first()->pip_image.has_value());

    screen.editor->redo();
    auto *again = screen.first<BorderedResizableImageView>();
    ASSERT_NE(again, nullptr);
    ASSERT_FALSE(again->isNotImage());
    EXPECT_TRUE(isGreenAtCentre(again->contentImageView->image()));
}

TEST(SlotPictures, TheOutlinedPictureMovesOnlyWhileActiveAndKeepsItsLimits)
{
    SlotEditor screen(PackTemplates::outlined());
    auto *slot = screen.first<BorderedResizableImageView>();
    ASSERT_NE(slot, nullptr);
    screen.editor->selection.select(slot);
    screen.editor->replaceSelectedLayerImage(QImage(screen.photo(Qt::blue)));
    ASSERT_FALSE(slot->isNotImage());
    const qsizetype steps = screen.editor->undoArray().size();

    // Not active: the fingers change nothing.
    slot->panGesture(SlotView::Changed, QPointF(20, 0));
    slot->panGesture(SlotView::Ended, QPointF());
    EXPECT_EQ(screen.editor->undoArray().size(), steps);

    slot->tapGesture();
    ASSERT_TRUE(slot->isActive());
    const QRectF before = slot->contentImageView->frame();
    slot->pinchGesture(SlotView::Began, 1.0);
    slot->pinchGesture(SlotView::Changed, 0.05); // smaller than buttonSize: refused
    EXPECT_EQ(slot->contentImageView->frame(), before);
    slot->pinchGesture(SlotView::Changed, 0.5);
    EXPECT_NEAR(slot->contentImageView->bounds().width(), before.width() * 0.5, 1e-6);
    slot->pinchGesture(SlotView::Ended, 0.5);
    EXPECT_EQ(screen.editor->undoArray().size(), steps + 1);

    // A quarter turn shows the dashed outline while the fingers are down, not after.
    slot->rotateGesture(SlotView::Began, 0);
    slot->rotateGesture(SlotView::Changed, M_PI / 2);
    EXPECT_NE(slot->dashedBorderView, nullptr);
    slot->rotateGesture(SlotView::Ended, 0);
    EXPECT_EQ(slot->dashedBorderView, nullptr);
    const auto &record = *slot->frameImageStickerJson;
    EXPECT_NEAR(record.angleImage.value_or(0), M_PI / 2, 1e-6);
    EXPECT_EQ(screen.editor->undoArray().size(), steps + 2);

    // The double tap puts the picture back to the record's frame, unturned, as one more step.
    slot->doubleTapGesture();
    EXPECT_EQ(slot->contentImageView->frame(), QRectF(0, 0, *record.width, *record.height));
    EXPECT_EQ(slot->zAngleImage, 0);
    EXPECT_EQ(screen.editor->undoArray().size(), steps + 3);

    // Another selection, or none, ends the active state.
    auto *sticker = screen.first<ResizableImageView>();
    ASSERT_NE(sticker, nullptr);
    sticker->tapGesture();
    EXPECT_FALSE(slot->isActive());
    EXPECT_TRUE(slot->redDashedBorderView->isHidden());
    slot->tapGesture();
    ASSERT_TRUE(slot->isActive());
    screen.editor->deselectAll();
    EXPECT_FALSE(slot->isActive());
    EXPECT_TRUE(screen.editor->selection.selectedBorderedImageView.isNull());
}

TEST(SlotPictures, APictureSlotIsNeverPinchedBelowItsLoadedScale)
{
    SlotEditor screen(PackTemplates::roundSlot());
    auto *slot = screen.first<StaticResizableImageView>();
    ASSERT_NE(slot, nullptr);
    // The hidden edit view carries the edit picture in its middle.
    EXPECT_FALSE(slot->editButton->image().isNull());
    EXPECT_EQ(slot->editButton->frame().center(), slot->editView->bounds().center());
    slot->tapGesture();
    const auto pinch = [slot](qreal scale) {
        slot->pinchGesture(SlotView::Began, 1.0);
        slot->pinchGesture(SlotView::Changed, scale);
        QCoreApplication::processEvents();
        slot->pinchGesture(SlotView::Ended, 1.0);
    };
    pinch(0.5);
    EXPECT_EQ(slot->contentImageView->transform().m11(), 1.0);
    pinch(2.0);
    EXPECT_DOUBLE_EQ(slot->contentImageView->transform().m11(), 2.0);
    EXPECT_DOUBLE_EQ(slot->zScale, 2.0);
    pinch(0.75); // 1.5: allowed, and zScale keeps the last step that grew the picture
    EXPECT_DOUBLE_EQ(slot->contentImageView->transform().m11(), 1.5);
    EXPECT_DOUBLE_EQ(slot->zScale, 2.0);
    pinch(0.6); // 0.9: below the loaded scale
    EXPECT_DOUBLE_EQ(slot->contentImageView->transform().m11(), 1.5);
    EXPECT_DOUBLE_EQ(slot->imageStickerJson->zScale.value_or(0), 1.5);
}

TEST(SlotPictures, ARoundSlotShowsItsPhotoInACircle)
{
    SlotEditor screen(PackTemplates::roundSlot());
    auto *slot = screen.first<StaticResizableImageView>();
    ASSERT_NE(slot, nullptr);
    ASSERT_TRUE(slot->is_round);
    screen.editor->selection.select(slot);
    screen.editor->replaceSelectedLayerImage(QImage(screen.photo(Qt::green)));
    // Only the slot over the background: the template's stickers and texts may lie across its corners.
    for (QObject *layer : screen.editor->layerViews())
        qobject_cast<View *>(layer)->setHidden(true);
    screen.editor->fgImageView->setHidden(true);
    const QImage picture = screen.editor->saving().render(false);
    ASSERT_FALSE(picture.isNull());
    const qreal scale = picture.width() / screen.editor->viewMain->bounds().width();
    const QRectF hole = slot->hole()->frame().translated(slot->frame().topLeft());
    const auto at = [&](QPointF point) { return picture.pixel((point * scale).toPoint()); };
    EXPECT_EQ(at(hole.center()), qRgb(0, 255, 0));
    // Just inside each corner of the square hole lies outside the circle.
    const qreal in = hole.width() * 0.04;
    for (const QPointF corner : { hole.topLeft() + QPointF(in, in), hole.topRight() + QPointF(-in, in),
             hole.bottomLeft() + QPointF(in, -in), hole.bottomRight() + QPointF(-in, -in) })
        EXPECT_NE(at(corner), qRgb(0, 255, 0)) << corner.x() << "," << corner.y();
}
