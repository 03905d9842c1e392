// The crop screen's controller: gestures in points become a crop in full-resolution pixels, the ratio
// rows, and Done cutting a large picture off the GUI thread.
#include "cropfixture.h"

#include <QTimer>
#include <QTransform>

#include <gtest/gtest.h>

namespace {

/** The controller in a navigation stack over a screen, as the picture sheet presents it. */
struct Presented
{
    NavigationController navigation;
    CropViewController *crop = new CropViewController();
    CropRecorder recorder;

    explicit Presented(const QImage &picture)
    {
        navigation.setRoot(new ViewController());
        crop->setImage(picture);
        crop->delegate = &recorder;
        navigation.present(crop, false);
        crop->setViewSize(390, 628); // an area of 362 by 600 points inside the padding
    }
};

} // namespace

TEST(CropViewController, HandleDragsInPointsCutFullResolutionPixels)
{
    Presented screen(codedPicture(QSize(4000, 3000)));
    CropViewController &crop = *screen.crop;
    // A large picture is shown from a smaller copy; the geometry stays in the picture's pixels.
    ASSERT_TRUE(waitFor([&] { return !crop.isBusy(); }));
    EXPECT_EQ(crop.preview().size(), QSize(2048, 1536));
    const qreal scale = 362.0 / 4000;
    EXPECT_NEAR(crop.imageRect().width(), 362, 1e-9);
    EXPECT_EQ(crop.cropBoxRect(), crop.imageRect());
    EXPECT_FALSE(crop.canReset());

    crop.beginHandleDrag(CropViewController::Right);
    EXPECT_TRUE(crop.isInteracting());
    crop.moveHandle(-181, 0);
    // While the handle is held the picture stays, and the box follows the finger.
    EXPECT_NEAR(crop.imageRect().width(), 362, 1e-9);
    EXPECT_NEAR(crop.cropBoxRect().width(), 181, 1e-9);
    crop.endHandleDrag();
    EXPECT_FALSE(crop.isInteracting());
    EXPECT_NEAR(crop.cropBox().cropRect().width(), 181 / scale, 1e-6);
    EXPECT_EQ(crop.cropBox().pixelRect(), QRect(0, 0, 2000, 3000));
    // Let go, the box fills the area again: 2000 by 3000 pixels fit its width.
    EXPECT_NEAR(crop.cropBoxRect().width(), 362, 1e-9);
    EXPECT_NEAR(crop.cropBoxRect().height(), 543, 1e-9);
    EXPECT_TRUE(crop.canReset());

    crop.done();
    ASSERT_TRUE(waitFor([&] { return screen.recorder.image.has_value(); }));
    EXPECT_EQ(screen.recorder.rect, QRect(0, 0, 2000, 3000));
    EXPECT_EQ(screen.recorder.angle, 0);
    EXPECT_EQ(*screen.recorder.image, crop.image().copy(0, 0, 2000, 3000));
}

TEST(CropViewController, ALargePictureIsCutOffTheGuiThread)
{
    const QImage picture = codedPicture(QSize(6000, 4000));
    Presented screen(picture);
    CropViewController &crop = *screen.crop;
    // The screen's copy is made off the GUI thread too.
    EXPECT_TRUE(crop.isBusy());
    EXPECT_TRUE(crop.preview().isNull());
    ASSERT_TRUE(waitFor([&] { return !crop.isBusy(); }));
    EXPECT_EQ(crop.preview().size(), QSize(2048, 1365));

    crop.rotateClockwise();
    EXPECT_EQ(crop.preview().size(), QSize(1365, 2048));
    crop.selectAspectRatio(crop.aspectRatioTitles().indexOf(QStringLiteral("Square")));
    crop.done();
    // Done returns at once; the GUI thread goes on turning its events while the cut is made.
    EXPECT_TRUE(crop.isBusy());
    EXPECT_FALSE(screen.recorder.image.has_value());
    int ticks = 0;
    QTimer ticker;
    QObject::connect(&ticker, &QTimer::timeout, [&ticks] { ++ticks; });
    ticker.start(0);
    ASSERT_TRUE(waitFor([&] { return screen.recorder.image.has_value(); }));
    EXPECT_GT(ticks, 0);
    EXPECT_FALSE(crop.isBusy());

    const QRect rect = screen.recorder.rect;
    EXPECT_EQ(rect, QRect(0, 1000, 4000, 4000));
    EXPECT_EQ(screen.recorder.angle, 90);
    const QImage &cut = *screen.recorder.image;
    ASSERT_EQ(cut.size(), QSize(4000, 4000));
    const QRect source = CropBox::unturned(rect, picture.size(), 90);
    EXPECT_EQ(source, QRect(1000, 0, 4000, 4000));
    for (const QPoint corner : { QPoint(0, 0), QPoint(3999, 0), QPoint(0, 3999), QPoint(3999, 3999) }) {
        // A clockwise quarter turn: (u, v) of the cut shows the source's (left + v, bottom - u).
        EXPECT_EQ(cut.pixel(corner), picture.pixel(source.left() + corner.y(), source.bottom() - corner.x()));
    }
}

TEST(CropViewController, RatioRowsTurnWithThePictureAndResetFreesThem)
{
    Presented screen(codedPicture(QSize(1200, 800)));
    CropViewController &crop = *screen.crop;
    const QStringList titles = crop.aspectRatioTitles();
    EXPECT_EQ(titles, QStringList({ "Free", "Original", "Square", "3:2", "4:3", "16:9", "2:3", "3:4", "9:16" }));
    EXPECT_EQ(crop.aspectRatioIndex(), 0);

    crop.selectAspectRatio(titles.indexOf(QStringLiteral("16:9")));
    EXPECT_NEAR(*crop.cropBox().aspectRatio(), 16.0 / 9, 1e-12);
    crop.rotateClockwise();
    EXPECT_EQ(titles.at(crop.aspectRatioIndex()), QStringLiteral("9:16"));
    EXPECT_NEAR(*crop.cropBox().aspectRatio(), 9.0 / 16, 1e-12);
    crop.rotateCounterclockwise();
    EXPECT_EQ(titles.at(crop.aspectRatioIndex()), QStringLiteral("16:9"));
    crop.rotateCounterclockwise();
    EXPECT_EQ(titles.at(crop.aspectRatioIndex()), QStringLiteral("9:16"));

    // "Original" is the picture's own shape as it is turned now, and stays "Original" through a turn.
    crop.selectAspectRatio(titles.indexOf(QStringLiteral("Original")));
    EXPECT_NEAR(*crop.cropBox().aspectRatio(), 800.0 / 1200, 1e-12);
    crop.rotateClockwise();
    EXPECT_EQ(titles.at(crop.aspectRatioIndex()), QStringLiteral("Original"));
    EXPECT_NEAR(*crop.cropBox().aspectRatio(), 1200.0 / 800, 1e-12);

    crop.reset();
    EXPECT_EQ(crop.aspectRatioIndex(), 0);
    EXPECT_FALSE(crop.canReset());
    EXPECT_EQ(crop.preview().size(), QSize(1200, 800));
    EXPECT_EQ(crop.cropBox().pixelRect(), QRect(0, 0, 1200, 800));
}

TEST(CropViewController, ThePictureZoomsUnderTheBoxAndTheWheelZoomsWhereItPoints)
{
    Presented screen(codedPicture(QSize(1200, 800)));
    CropViewController &crop = *screen.crop;
    const QRectF box = crop.cropBoxRect();
    crop.beginImageGesture();
    crop.moveImage(0, 0, 2.0, box.center().x(), box.center().y());
    EXPECT_EQ(crop.cropBoxRect(), box);
    EXPECT_NEAR(crop.imageRect().width(), 2 * box.width(), 1e-9);
    crop.endImageGesture();
    EXPECT_EQ(crop.cropBox().pixelRect(), QRect(300, 200, 600, 400));

    // A wheel step at the box's left edge keeps the picture's point under it.
    crop.zoomImage(1.5, box.left(), box.center().y());
    EXPECT_EQ(crop.cropBox().pixelRect(), QRect(300, 267, 400, 266));
}

TEST(CropViewController, CancelTellsTheDelegateOrDismissesTheScreen)
{
    Presented screen(codedPicture(QSize(300, 200)));
    screen.crop->cancel();
    EXPECT_EQ(screen.recorder.cancels, 1);
    EXPECT_EQ(screen.navigation.depth(), 2);

    screen.crop->delegate = nullptr;
    screen.crop->cancel();
    EXPECT_EQ(screen.navigation.depth(), 1);
}
