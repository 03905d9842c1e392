// The crop arithmetic: handles with and without a ratio, turns, zoom and pan, reset, and the cut of the
// full picture.
#include "cropbox.h"
#include "cropfixture.h"

#include <QTransform>

#include <gtest/gtest.h>

namespace {

using Handle = CropBox::Handle;

const QRectF area(14, 14, 362, 600);

void expectRect(const QRectF &actual, const QRectF &expected, qreal tolerance = 1e-6)
{
    EXPECT_NEAR(actual.x(), expected.x(), tolerance);
    EXPECT_NEAR(actual.y(), expected.y(), tolerance);
    EXPECT_NEAR(actual.width(), expected.width(), tolerance);
    EXPECT_NEAR(actual.height(), expected.height(), tolerance);
}

/** A handle dragged from where the box lies now, as the screen does it. */
void drag(CropBox &box, Handle handle, QPointF translation)
{
    box.dragHandle(box.cropRect(), handle, translation, box.fitted(area), area);
}

/** The same on a screen so large that only the picture's edges hold the box. */
void dragFar(CropBox &box, Handle handle, QPointF translation)
{
    box.dragHandle(box.cropRect(), handle, translation, box.fitted(area), QRectF(-1e6, -1e6, 2e6, 2e6));
}

} // namespace

TEST(CropBox, FitsTheWholePictureIntoTheAreaAtFirst)
{
    const CropBox box(QSize(3000, 2000));
    EXPECT_TRUE(box.isReset());
    expectRect(box.cropRect(), QRectF(0, 0, 3000, 2000));
    const CropBox::Placement placement = box.fitted(area);
    EXPECT_NEAR(placement.scale, 362.0 / 3000, 1e-12);
    // Centred: the box spans the area's width, and its middle is the area's middle.
    expectRect(placement.toView(box.cropRect()), QRectF(14, 314 - 120.66666666666667, 362, 241.33333333333334));
}

TEST(CropBox, FreeHandlesMoveTheirEdgesWithinThePictureAndNoNarrowerThanTheLeastBox)
{
    CropBox box(QSize(3000, 2000));
    const qreal scale = box.fitted(area).scale;

    // The bottom right corner in by 100 and 50 points: the top left corner stays.
    drag(box, Handle::BottomRight, QPointF(-100, -50));
    expectRect(box.cropRect(), QRectF(0, 0, 3000 - 100 / scale, 2000 - 50 / scale));

    // An edge moves its own edge only, at the scale of the box fitted anew.
    const QRectF before = box.cropRect();
    const qreal refitted = box.fitted(area).scale;
    EXPECT_GT(refitted, scale);
    drag(box, Handle::Left, QPointF(30, 999));
    expectRect(box.cropRect(), QRectF(30 / refitted, 0, before.width() - 30 / refitted, before.height()));

    // Out past the picture: the edge stops at the picture's edge.
    dragFar(box, Handle::Left, QPointF(-5000, 0));
    EXPECT_DOUBLE_EQ(box.cropRect().left(), 0);
    dragFar(box, Handle::Bottom, QPointF(0, 5000));
    EXPECT_DOUBLE_EQ(box.cropRect().bottom(), 2000);

    // Across the opposite edge: the box stops at the least size on screen, 42 points.
    const CropBox::Placement held = box.fitted(area);
    box.dragHandle(box.cropRect(), Handle::TopLeft, QPointF(5000, 5000), held, area);
    EXPECT_NEAR(box.cropRect().width() * held.scale, CropBox::minimumBoxSide, 1e-9);
    EXPECT_NEAR(box.cropRect().height() * held.scale, CropBox::minimumBoxSide, 1e-9);
    EXPECT_FALSE(box.isReset());
}

TEST(CropBox, AHeldPictureKeepsTheBoxInsideTheArea)
{
    // A tall crop fitted by its height: the box can grow sideways to the area's edges only, though the
    // picture goes on.
    CropBox box(QSize(4000, 4000));
    drag(box, Handle::Right, QPointF(-250, 0));
    const CropBox::Placement held = box.fitted(area);
    const QRectF start = box.cropRect();
    box.dragHandle(start, Handle::Right, QPointF(1000, 0), held, area);
    EXPECT_NEAR(held.toView(box.cropRect()).right(), area.right(), 1e-9);
    EXPECT_LE(box.cropRect().right(), 4000);
}

TEST(CropBox, AFixedRatioTakesThePresentAreaAndCentreAsLargeAsThePictureAllows)
{
    CropBox box(QSize(3000, 2000));
    box.setAspectRatio(1.0);
    expectRect(box.cropRect(), QRectF(500, 0, 2000, 2000));
    EXPECT_FALSE(box.isReset());

    // From the square, 16:9 of the same area about the same centre; from the whole picture, the widest.
    box.setAspectRatio(16.0 / 9.0);
    expectRect(box.cropRect(), QRectF(1500 - 2000.0 * 4 / 6, 1000 - 750, 2000.0 * 8 / 6, 1500), 1e-9);
    box.reset();
    box.setAspectRatio(16.0 / 9.0);
    expectRect(box.cropRect(), QRectF(0, (2000 - 3000 * 9.0 / 16) / 2, 3000, 3000 * 9.0 / 16));

    // A small crop keeps its area: a 600 by 600 square becomes 3:2 of the same area about the same centre.
    box.setAspectRatio(1.0);
    drag(box, Handle::BottomRight, QPointF(-1000, -1000));
    const QRectF square = box.cropRect();
    box.setAspectRatio(1.5);
    const QRectF wide = box.cropRect();
    EXPECT_NEAR(wide.width() / wide.height(), 1.5, 1e-9);
    EXPECT_NEAR(wide.width() * wide.height(), square.width() * square.height(), 1e-6);
    EXPECT_NEAR(wide.center().x(), square.center().x(), 1e-9);
    EXPECT_NEAR(wide.center().y(), square.center().y(), 1e-9);

    box.setAspectRatio(std::nullopt);
    EXPECT_FALSE(box.aspectRatio());
    expectRect(box.cropRect(), wide);
}

TEST(CropBox, HandlesKeepAFixedRatio)
{
    CropBox box(QSize(3000, 2000));
    box.setAspectRatio(1.0);
    const qreal scale = box.fitted(area).scale;

    // A corner: the axis the finger moved more decides, the opposite corner stays.
    drag(box, Handle::BottomRight, QPointF(-60, -10));
    expectRect(box.cropRect(), QRectF(500, 0, 2000 - 60 / scale, 2000 - 60 / scale), 1e-9);

    // An edge: the other axis follows about its middle.
    const QRectF before = box.cropRect();
    drag(box, Handle::Left, QPointF(40, 0));
    const QRectF after = box.cropRect();
    EXPECT_NEAR(after.width(), after.height(), 1e-9);
    EXPECT_NEAR(after.right(), before.right(), 1e-9);
    EXPECT_NEAR(after.center().y(), before.center().y(), 1e-9);

    // Growing an edge stops where the other axis meets the picture's edge.
    dragFar(box, Handle::Left, QPointF(-5000, 0));
    EXPECT_NEAR(box.cropRect().width(), box.cropRect().height(), 1e-9);
    EXPECT_GE(box.cropRect().top(), -1e-9);
    EXPECT_LE(box.cropRect().bottom(), 2000 + 1e-9);
    EXPECT_NEAR(std::min(box.cropRect().top(), 2000 - box.cropRect().bottom()), 0, 1e-9);
}

TEST(CropBox, QuarterTurnsTurnTheCropAndItsRatioWithThePicture)
{
    CropBox box(QSize(3000, 2000));
    box.setAspectRatio(1.5);
    drag(box, Handle::TopLeft, QPointF(50, 50));
    const QRectF start = box.cropRect();

    box.rotateClockwise();
    EXPECT_EQ(box.angle(), 90);
    EXPECT_EQ(box.turnedSize(), QSizeF(2000, 3000));
    expectRect(box.cropRect(), QRectF(2000 - start.bottom(), start.left(), start.height(), start.width()));
    EXPECT_NEAR(*box.aspectRatio(), 2.0 / 3.0, 1e-12);

    box.rotateClockwise();
    box.rotateClockwise();
    box.rotateClockwise();
    EXPECT_EQ(box.angle(), 0);
    expectRect(box.cropRect(), start, 1e-9);
    EXPECT_NEAR(*box.aspectRatio(), 1.5, 1e-12);

    // A turn the other way is three turns clockwise, and undoes one.
    CropBox thrice = box;
    for (int turn = 0; turn < 3; ++turn)
        thrice.rotateClockwise();
    box.rotateCounterclockwise();
    EXPECT_EQ(box.angle(), 270);
    EXPECT_EQ(box.turnedSize(), QSizeF(2000, 3000));
    expectRect(box.cropRect(), thrice.cropRect(), 1e-9);
    EXPECT_NEAR(*box.aspectRatio(), 2.0 / 3.0, 1e-12);
    box.rotateClockwise();
    EXPECT_EQ(box.angle(), 0);
    expectRect(box.cropRect(), start, 1e-9);
}

TEST(CropBox, ResetForgetsTurnsRatioAndCrop)
{
    CropBox box(QSize(1200, 900));
    box.setAspectRatio(1.0);
    box.rotateClockwise();
    drag(box, Handle::Bottom, QPointF(0, -80));
    ASSERT_FALSE(box.isReset());
    box.reset();
    EXPECT_TRUE(box.isReset());
    EXPECT_EQ(box.angle(), 0);
    EXPECT_FALSE(box.aspectRatio());
    expectRect(box.cropRect(), QRectF(0, 0, 1200, 900));
}

TEST(CropBox, ThePictureZoomsAndPansUnderTheBoxWithinItsEdges)
{
    CropBox box(QSize(3000, 2000));
    const CropBox::Placement start = box.fitted(area);
    const QPointF middle = start.toView(box.cropRect()).center();

    // Twice as large about the box's middle: half the crop about the same centre.
    box.moveImage(box.cropRect(), start, QPointF(), 2.0, middle);
    expectRect(box.cropRect(), QRectF(750, 500, 1500, 1000), 1e-9);

    // The picture dragged right by 30 points: the crop moves left by as many pixels at the new scale.
    const CropBox::Placement zoomed = box.fitted(area);
    EXPECT_NEAR(zoomed.scale, 2 * start.scale, 1e-12);
    box.moveImage(box.cropRect(), zoomed, QPointF(30, 0), 1.0, QPointF());
    EXPECT_NEAR(box.cropRect().left(), 750 - 30 / zoomed.scale, 1e-9);

    // Dragged far: the crop stops at the picture's edge, its size unchanged.
    box.moveImage(box.cropRect(), box.fitted(area), QPointF(10000, 10000), 1.0, QPointF());
    expectRect(box.cropRect(), QRectF(0, 0, 1500, 1000), 1e-9);

    // Zoomed out past the picture: the crop is the picture, and keeps its shape.
    box.moveImage(box.cropRect(), box.fitted(area), QPointF(), 0.1, middle);
    expectRect(box.cropRect(), QRectF(0, 0, 3000, 2000), 1e-9);

    // Zoomed in without end: the crop's short side stops at the least number of pixels.
    box.moveImage(box.cropRect(), box.fitted(area), QPointF(), 1000.0, middle);
    EXPECT_NEAR(box.cropRect().height(), CropBox::minimumPixels, 1e-9);
    EXPECT_NEAR(box.cropRect().width(), CropBox::minimumPixels * 1.5, 1e-9);
}

TEST(CropBox, TheCutIsThePictureTurnedThenCutInFullResolutionPixels)
{
    const QImage picture = codedPicture(QSize(640, 480));
    const QRect rect(37, 101, 211, 150);
    for (const int angle : { 0, 90, 180, 270 }) {
        const QImage turned = picture.transformed(QTransform().rotate(angle));
        const QImage cut = CropBox::crop(picture, rect, angle);
        EXPECT_EQ(cut, turned.copy(rect)) << "angle " << angle;
        // The same rectangle in the picture as it was given holds the same pixels, turned.
        const QRect source = CropBox::unturned(rect, picture.size(), angle);
        EXPECT_EQ(picture.copy(source).transformed(QTransform().rotate(angle)), cut) << "angle " << angle;
    }
}

TEST(CropBox, TurnedThenCutByHandlesGivesThePixelsUnderTheBox)
{
    const QImage picture = codedPicture(QSize(800, 600));
    CropBox box(picture.size());
    box.rotateClockwise();
    drag(box, Handle::TopLeft, QPointF(40, 60));
    drag(box, Handle::Right, QPointF(-25, 0));
    const QRect rect = box.pixelRect();
    EXPECT_TRUE(QRect(QPoint(), QSize(600, 800)).contains(rect));
    EXPECT_NEAR(rect.left(), box.cropRect().left(), 0.5);
    EXPECT_NEAR(rect.width(), box.cropRect().width(), 1.0);
    const QImage cut = CropBox::crop(picture, rect, box.angle());
    EXPECT_EQ(cut, picture.transformed(QTransform().rotate(90)).copy(rect));
    // Its top left pixel is the picture's pixel at the bottom left of the source rectangle.
    const QRect source = CropBox::unturned(rect, picture.size(), 90);
    EXPECT_EQ(cut.pixel(0, 0), picture.pixel(source.left(), source.bottom()));
}
