#include "hexcolor.h"
#include "holder.h"
#include "layergeometry.h"
#include "layerrecorder.h"
#include "resizableimageview.h"
#include "stickersize.h"
#include "stickertint.h"
#include "testhome.h"

#include "apppaths.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <numbers>

namespace {

QImage picture(int w = 40, int h = 40)
{
    QImage image(w, h, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (int y = 0; y < h; ++y) {
        for (int x = w / 4; x < w; ++x)
            image.setPixel(x, y, qRgba(200, 100, 50, 255));
    }
    return image;
}

struct Sticker
{
    TestHome home;
    LayerRecorder editor;
    View canvas { QRectF(0, 0, 400, 600) };
    ResizableImageView *layer;

    explicit Sticker(const QRectF &pictureFrame = QRectF(100, 200, 50, 40))
        : layer(new ResizableImageView(pictureFrame))
    {
        AppPaths::ensureCreated();
        canvas.addSubview(layer);
        layer->delegate = &editor;
        layer->contentImageView->tintedImage = picture();
        layer->setStickerColor(Qt::white);
        layer->showControls();
        editor.calls.clear();
    }
};

} // namespace

TEST(StickerLayout, OuterViewGrowsByTheHandleMarginAroundThePicture)
{
    Sticker s;
    EXPECT_EQ(s.layer->frame(), QRectF(100, 200, 78, 68));
    EXPECT_EQ(s.layer->mainView->frame(), QRectF(14, 14, 50, 40));
    EXPECT_EQ(s.layer->borderView->frame(), QRectF(-1, -1, 52, 42));
    EXPECT_EQ(s.layer->cancelButton->frame(), QRectF(0, 0, 28, 28));
    EXPECT_EQ(s.layer->rotateButton->frame(), QRectF(0, 40, 28, 28));
    EXPECT_EQ(s.layer->resizeButton->frame(), QRectF(50, 40, 28, 28));
    EXPECT_EQ(s.layer->minWidth, 78);
}

TEST(StickerSelection, HandlesCountForHitsOnlyWhileSelected)
{
    Sticker s;
    const QPointF onHandle(5, 5); // the close handle, outside the picture
    EXPECT_TRUE(s.layer->pointInside(onHandle));
    s.layer->hideControls();
    EXPECT_FALSE(s.layer->isSelected());
    EXPECT_FALSE(s.layer->pointInside(onHandle));
    EXPECT_TRUE(s.layer->pointInside(QPointF(20, 20)));
    EXPECT_EQ(s.editor.calls, QStringList { "stickerDidDeselect" });
}

TEST(StickerSelection, GesturesOnADeselectedLayerDoNothing)
{
    Sticker s;
    s.layer->hideControls();
    const QRectF before = s.layer->frame();
    s.layer->panGesture(LayerView::Changed, QPointF(30, 30));
    s.layer->pinchGesture(LayerView::Began, 1);
    s.layer->pinchGesture(LayerView::Changed, 2);
    EXPECT_EQ(s.layer->frame(), before);
}

TEST(StickerMove, MovesWithoutLimitAndWritesBackAtTheEnd)
{
    Sticker s;
    s.layer->stickerJson = std::make_shared<StickerJson>();
    s.layer->panGesture(LayerView::Began, QPointF(0, 0));
    s.layer->panGesture(LayerView::Changed, QPointF(-500, 10));
    s.layer->panGesture(LayerView::Ended, QPointF(0, 0));
    EXPECT_EQ(*s.layer->stickerJson->xPos, 114 - 500);
    EXPECT_EQ(*s.layer->stickerJson->yPos, 214 + 10);
    EXPECT_EQ(s.layer->stickerJson->status, 2);
    EXPECT_EQ(
        s.editor.calls, (QStringList { "stickerDidDrag", "stickerDidDrag", "stickerDidUpdate", "stickerDidEndDrag" }));
}

TEST(StickerPinch, ALayerAtTheFloorCanOnlyGrow)
{
    Sticker s(QRectF(100, 100, 28, 28)); // outer 56 x 56
    s.layer->pinchGesture(LayerView::Began, 1);
    s.layer->pinchGesture(LayerView::Changed, 0.5);
    EXPECT_EQ(s.layer->bounds().size(), QSizeF(56, 56));
    s.layer->pinchGesture(LayerView::Changed, 0.99);
    EXPECT_EQ(s.layer->bounds().size(), QSizeF(56, 56));
    s.layer->pinchGesture(LayerView::Changed, 1.5);
    EXPECT_EQ(s.layer->bounds().size(), QSizeF(84, 84));
    EXPECT_EQ(s.layer->mainView->bounds().size(), QSizeF(56, 56));
    EXPECT_EQ(s.layer->contentImageView->frame(), QRectF(0, 0, 56, 56));
    EXPECT_EQ(s.layer->center(), QPointF(128, 128)); // scales about the centre
}

TEST(StickerPinch, KeepsTheTurnAndScalesAgainstTheStartOfThePinch)
{
    Sticker s(QRectF(0, 0, 72, 72)); // outer 100
    s.layer->rotate(std::numbers::pi / 6);
    s.layer->pinchGesture(LayerView::Began, 1);
    s.layer->pinchGesture(LayerView::Changed, 1.2);
    s.layer->pinchGesture(LayerView::Changed, 1.5); // cumulative, not 1.2 x 1.5
    EXPECT_DOUBLE_EQ(s.layer->bounds().width(), 150);
    EXPECT_NEAR(s.layer->rotationDegrees(), 30, 1e-9);
    s.layer->pinchGesture(LayerView::Ended, 1.5);
    EXPECT_EQ(Holder::boundsBeforeScaling.size(), QSizeF(150, 150));
    EXPECT_EQ(*s.layer->stickerJson->width, 122);
}

TEST(StickerResize, ARefusedStepStillMovesThePreviousPoint)
{
    Sticker s(QRectF(0, 0, 28, 28)); // picture exactly buttonSize wide
    s.layer->buttonPanGesture(LayerView::Began, QPointF(50, 50));
    s.layer->buttonPanGesture(LayerView::Changed, QPointF(40, 50));
    EXPECT_EQ(s.layer->bounds().size(), QSizeF(56, 56));
    EXPECT_EQ(s.layer->prevPoint, QPointF(40, 50));
    // Coming back is measured from where the finger was, so it grows rather than jumps.
    s.layer->buttonPanGesture(LayerView::Changed, QPointF(50, 50));
    EXPECT_EQ(s.layer->bounds().size(), QSizeF(66, 66));
}

TEST(StickerResize, OnlyTheHorizontalPartOfTheDragCounts)
{
    Sticker s;
    const QSizeF before = s.layer->bounds().size();
    s.layer->buttonPanGesture(LayerView::Began, QPointF(60, 50));
    s.layer->buttonPanGesture(LayerView::Changed, QPointF(60, 150));
    EXPECT_EQ(s.layer->bounds().size(), before);
    s.layer->buttonPanGesture(LayerView::Changed, QPointF(99, 150)); // dx 39 on a 78 wide layer
    EXPECT_DOUBLE_EQ(s.layer->bounds().width(), 117);
    EXPECT_DOUBLE_EQ(s.layer->bounds().height(), 102);
    EXPECT_EQ(s.layer->mainView->frame(), QRectF(14, 14, 89, 74));
    EXPECT_EQ(s.layer->resizeButton->frame().topLeft(), QPointF(89, 74));
    s.layer->buttonPanGesture(LayerView::Ended, QPointF(99, 150));
    EXPECT_DOUBLE_EQ(*s.layer->stickerJson->width, 89);
    EXPECT_DOUBLE_EQ(*s.layer->stickerJson->height, 74);
}

TEST(StickerTurn, SnapsToFortyFiveAndClearsTheBorderAtTheEnd)
{
    Sticker s;
    const QPointF c = s.layer->center();
    auto at = [&](double degrees) {
        const double r = degrees * std::numbers::pi / 180;
        return c + QPointF(100 * std::cos(r), 100 * std::sin(r));
    };
    s.layer->buttonRotateGesture(LayerView::Began, at(0));
    s.layer->buttonRotateGesture(LayerView::Changed, at(50));
    EXPECT_NEAR(s.layer->rotationDegrees(), 45, 1e-9);
    EXPECT_EQ(Holder::transformBeforeScaling, s.layer->transform());
    s.layer->buttonRotateGesture(LayerView::Changed, at(60));
    EXPECT_NEAR(s.layer->rotationDegrees(), 60, 1e-4);
    EXPECT_FALSE(s.layer->isSnapped());
    s.layer->buttonRotateGesture(LayerView::Changed, at(88));
    s.layer->buttonRotateGesture(LayerView::Ended, at(88));
    EXPECT_FALSE(s.layer->isSnapped());
    EXPECT_EQ(s.layer->startAngle, 0);
    EXPECT_NEAR(s.layer->zAngle, std::numbers::pi / 2, 1e-9);
    EXPECT_EQ(*s.layer->stickerJson->angle, s.layer->zAngle);
}

TEST(StickerTurn, ASliderTurnOntoAListedAngleKeepsTheBorder)
{
    Sticker s;
    s.layer->rotate(std::numbers::pi / 2);
    EXPECT_TRUE(s.layer->isSnapped());
    EXPECT_EQ(s.layer->dashedBorderView->superview(), s.layer->mainView);
    s.layer->rotate(0.01);
    EXPECT_FALSE(s.layer->isSnapped());
    s.layer->rotate(-0.01);
    // Back by the same amount lands a few ulps off 90, whose text is not a listed one.
    EXPECT_EQ(s.layer->isSnapped(),
        LayerGeometry::isSnapAngleText(LayerGeometry::swiftDescription(s.layer->rotationDegrees())));
    EXPECT_EQ(s.editor.calls, QStringList {}); // the slider writes nothing by itself
}

TEST(StickerRecord, WriteBackHoldsThePicturesUnrotatedBox)
{
    Sticker s(QRectF(86, 186, 50, 40));
    s.layer->rotate(0.7);
    s.layer->setTag(3);
    const StickerJson &json = *s.layer->stickerJson;
    EXPECT_DOUBLE_EQ(*json.xPos, 100);
    EXPECT_DOUBLE_EQ(*json.yPos, 200);
    EXPECT_DOUBLE_EQ(*json.width, 50);
    EXPECT_DOUBLE_EQ(*json.height, 40);
    EXPECT_DOUBLE_EQ(*json.angle, s.layer->zAngle);
    EXPECT_EQ(json.index, 3);
    EXPECT_EQ(json.status, 1); // setTag leaves status alone
    EXPECT_TRUE(QFileInfo::exists(QDir(AppPaths::documents()).filePath(*json.sticker_image)));
    EXPECT_TRUE(json.sticker_image->endsWith(".png"));
    EXPECT_EQ(s.editor.calls, QStringList { "stickerDidAttach" });
}

TEST(StickerRecord, AnIndexOfZeroTakesTheTagAndKeepsIt)
{
    Sticker s;
    s.layer->stickerJson = std::make_shared<StickerJson>();
    s.layer->stickerJson->index = 0;
    s.layer->setTag(5);
    EXPECT_EQ(s.layer->stickerJson->index, 5);
    s.layer->setTag(9);
    EXPECT_EQ(s.layer->stickerJson->index, 5);
}

TEST(StickerRecord, OpacityIsWrittenAsPercent)
{
    Sticker s;
    s.layer->stickerJson = std::make_shared<StickerJson>();
    s.layer->contentImageView->setAlpha(0.25);
    s.layer->storeOpacity();
    EXPECT_DOUBLE_EQ(*s.layer->stickerJson->opacity, 25);
    EXPECT_EQ(s.editor.calls, QStringList { "stickerDidUpdate" });
}

TEST(StickerTint, EveryTintStartsFromTheUncolouredPicture)
{
    Sticker s;
    const QImage source = *s.layer->contentImageView->tintedImage;
    s.layer->setStickerColor(QColor(255, 0, 0));
    EXPECT_EQ(s.layer->stickerJson->color, "#ff0000");
    const QRgb red = s.layer->contentImageView->image().pixel(30, 5);
    EXPECT_EQ(qRed(red), 200);
    EXPECT_EQ(qGreen(red), 0);
    EXPECT_EQ(qAlpha(s.layer->contentImageView->image().pixel(0, 0)), 0); // transparency stays
    s.layer->setStickerColor(QColor(0, 0, 255));
    s.layer->setStickerColor(Qt::white);
    EXPECT_EQ(s.layer->contentImageView->image(), source.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    EXPECT_EQ(s.layer->stickerJson->color, "#ffffff");
}

TEST(StickerTint, WithoutAnUncolouredPictureNothingIsTinted)
{
    Sticker s;
    s.layer->contentImageView->tintedImage.reset();
    s.layer->stickerJson->color.reset();
    s.layer->setStickerColor(Qt::red);
    EXPECT_FALSE(s.layer->stickerJson->color.has_value());
}

TEST(StickerTint, ColourTextTruncatesComponents)
{
    EXPECT_EQ(HexColor::toString(QColor::fromRgbF(0.5f, 0.999f, 0.0f)), "#7ffe00");
    EXPECT_EQ(HexColor::fromString("E05863"), QColor(0xE0, 0x58, 0x63));
    EXPECT_FALSE(HexColor::fromString("#12").isValid());
}

TEST(StickerClose, TellsTheEditorAroundLeavingTheCanvas)
{
    Sticker s;
    s.layer->buttonTapGesture();
    EXPECT_EQ(s.layer->superview(), nullptr);
    EXPECT_TRUE(s.canvas.subviews().isEmpty());
    EXPECT_EQ(s.editor.calls, (QStringList { "stickerWillClose", "stickerDidClose" }));
}

TEST(StickerContentSize, ResizesAboutTheCentreAndRefreshesTheHeldBounds)
{
    Sticker s(QRectF(0, 0, 50, 50));
    const QPointF c = s.layer->center();
    s.layer->setContentSize(100, 20);
    EXPECT_EQ(s.layer->center(), c);
    EXPECT_EQ(s.layer->bounds().size(), QSizeF(128, 48));
    EXPECT_EQ(s.layer->contentImageView->frame(), QRectF(0, 0, 100, 20));
    EXPECT_EQ(s.layer->resizeButton->frame().topLeft(), QPointF(100, 20));
    EXPECT_EQ(Holder::boundsBeforeScaling.size(), QSizeF(128, 48));
    EXPECT_EQ(s.layer->minHeight, 48);
}

TEST(NewStickerSize, LongerSideFollowsTheScreenThenTheContainerClamps)
{
    const QSizeF phone(390, 844);
    EXPECT_EQ(StickerSize::forNewSticker(QSizeF(200, 100), phone, QSizeF(360, 640)), QSizeF(156, 78));
    EXPECT_EQ(StickerSize::forNewSticker(QSizeF(100, 200), phone, QSizeF(360, 640)), QSizeF(78, 156));
    // A narrow container clamps the width, and the height follows the picture.
    EXPECT_EQ(StickerSize::forNewSticker(QSizeF(200, 100), phone, QSizeF(128, 640)), QSizeF(100, 50));
    // The floor is 36.4 even on a tiny screen and container.
    EXPECT_EQ(StickerSize::forNewSticker(QSizeF(10, 10), QSizeF(50, 50), QSizeF(10, 10)), QSizeF(36.4, 36.4));
    EXPECT_EQ(StickerSize::forReplacement(QSizeF(300, 100), QSizeF(60, 80), QSizeF(400, 400)), QSizeF(240, 80));
}

TEST(StickerScaleSlider, StoringKeepsTheScaleAndResettingClearsIt)
{
    Sticker s(QRectF(0, 0, 72, 72)); // outer 100
    s.layer->showControls(); // the slider scales against the bounds held at selection
    s.layer->scaleStoring(1.5);
    EXPECT_EQ(s.layer->bounds().size(), QSizeF(150, 150));
    const QTransform scale = s.layer->scaleTransform;
    EXPECT_DOUBLE_EQ(std::sqrt(scale.m11() * scale.m11() + scale.m21() * scale.m21()), 1.5);
    s.layer->scaleResetting(0.5); // 50 x 50 would pass the floor
    EXPECT_EQ(s.layer->bounds().size(), QSizeF(150, 150));
    EXPECT_EQ(s.layer->scaleTransform, QTransform::fromScale(1.5, 1.5));
    s.layer->scaleResetting(0.8);
    EXPECT_EQ(s.layer->bounds().size(), QSizeF(80, 80));
    EXPECT_TRUE(s.layer->scaleTransform.isIdentity());
}

TEST(StickerRecord, PicturesWithoutAnAlphaByteStayLosslessAndSkippedAlphaGoesToJpeg)
{
    Sticker s;
    const struct
    {
        QImage::Format format;
        const char *suffix;
    } cases[] = { { QImage::Format_RGB888, ".png" }, { QImage::Format_Grayscale8, ".png" },
        { QImage::Format_RGB32, ".jpg" } };
    for (const auto &c : cases) {
        QImage photo(32, 24, c.format);
        for (int y = 0; y < photo.height(); ++y) {
            for (int x = 0; x < photo.width(); ++x)
                photo.setPixelColor(x, y, QColor(x * 8, y * 10, (x * y) % 256));
        }
        s.layer->contentImageView->tintedImage = photo;
        s.layer->setTag(1);
        const QString name = s.layer->stickerJson->sticker_image.value_or(QString());
        EXPECT_TRUE(name.endsWith(QLatin1String(c.suffix))) << qPrintable(name);
        if (name.endsWith(QLatin1String(".png"))) {
            const QImage stored(QDir(AppPaths::documents()).filePath(name));
            EXPECT_EQ(stored.convertToFormat(c.format), photo) << qPrintable(name); // not a pixel lost
        }
    }
}
