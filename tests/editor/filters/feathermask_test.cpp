// The feather mask: its shape, its following of the picture's alpha, and its hand-back to the GUI thread.
#include "feathermask.h"
#include "filterpictures.h"

#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

using namespace FilterPictures;

namespace {

int alphaAt(const QImage &mask, int x, int y)
{
    return mask.constScanLine(y)[x];
}

} // namespace

TEST(FeatherMask, OpaquePictureFadesOnlyAtItsEdges)
{
    const QImage mask = FeatherMask::compute(filled(Qt::red, 400, 600), 20, QSize(200, 300));
    ASSERT_EQ(mask.size(), QSize(200, 300));
    ASSERT_EQ(mask.format(), QImage::Format_Alpha8);
    EXPECT_EQ(alphaAt(mask, 100, 150), 255);
    EXPECT_LT(alphaAt(mask, 0, 150), 128);
    EXPECT_LT(alphaAt(mask, 0, 0), alphaAt(mask, 0, 150));
    // Rising steadily from the left edge to the middle.
    for (int x = 1; x < 100; ++x)
        ASSERT_GE(alphaAt(mask, x, 150), alphaAt(mask, x - 1, 150)) << x;
    // A larger radius reaches further in.
    const QImage wider = FeatherMask::compute(filled(Qt::red, 400, 600), 60, QSize(200, 300));
    EXPECT_LT(alphaAt(wider, 20, 150), alphaAt(mask, 20, 150));
}

TEST(FeatherMask, RadiusZeroMasksNothing)
{
    const QImage mask = FeatherMask::compute(filled(Qt::red, 400, 600), 0, QSize(200, 300));
    for (int y = 0; y < 300; y += 37) {
        for (int x = 0; x < 200; x += 23)
            ASSERT_EQ(alphaAt(mask, x, y), 255);
    }
}

TEST(FeatherMask, FollowsThePicturesOwnAlpha)
{
    // Left half transparent, right half opaque: only the alpha of the blurred copy counts.
    QImage picture = filled(Qt::transparent, 400, 400);
    for (int y = 0; y < 400; ++y) {
        for (int x = 200; x < 400; ++x)
            picture.setPixel(x, y, qRgba(0, 0, 255, 255));
    }
    const QImage mask = FeatherMask::compute(picture, 8, QSize(400, 400));
    EXPECT_LT(alphaAt(mask, 100, 200), 5);
    EXPECT_GT(alphaAt(mask, 300, 200), 250);
    EXPECT_GT(alphaAt(mask, 200, 200), 60);
    EXPECT_LT(alphaAt(mask, 200, 200), 200);
}

TEST(FeatherMask, OpaqueAndTranslucentPicturesBlurAlike)
{
    // One transparent pixel takes the picture off the opaque shortcut; the mask must not change elsewhere.
    const QImage opaque = filled(Qt::red, 400, 600);
    QImage holed = opaque;
    holed.setPixel(399, 599, 0);
    const QImage a = FeatherMask::compute(opaque, 15, QSize(300, 450));
    const QImage b = FeatherMask::compute(holed, 15, QSize(300, 450));
    // Within the rounding of the general path's eight-bit passes.
    EXPECT_LE(largestDifference(a.copy(0, 0, 250, 400), b.copy(0, 0, 250, 400)), 6);
}

TEST(FeatherMask, AspectFillsAViewOfAnotherShape)
{
    // A wide picture in a tall view: the mask is cut from the middle, so its left and right edges are opaque.
    const QImage mask = FeatherMask::compute(filled(Qt::red, 800, 200), 10, QSize(100, 100));
    EXPECT_EQ(alphaAt(mask, 0, 50), 255);
    EXPECT_LT(alphaAt(mask, 50, 0), 128);
    EXPECT_TRUE(FeatherMask::compute(QImage(), 10, QSize(100, 100)).isNull());
    EXPECT_TRUE(FeatherMask::compute(filled(Qt::red), 10, QSize()).isNull());
}

TEST(FeatherMask, ShowsTheValueAtOnceAndHandsMasksBackOnTheGuiThread)
{
    FeatherMask feather;
    QSignalSpy ready(&feather, &FeatherMask::maskReady);
    const QImage picture = filled(Qt::red, 1200, 1800);
    const QThread *gui = QThread::currentThread();
    bool onGuiThread = true;
    QObject::connect(&feather, &FeatherMask::maskReady, &feather,
        [&] { onGuiThread = onGuiThread && QThread::currentThread() == gui; });

    for (int radius = 1; radius <= 30; ++radius) {
        feather.request(picture, radius, QSize(360, 540));
        EXPECT_EQ(feather.radius(), radius);
    }
    EXPECT_TRUE(feather.busy());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !feather.busy(); }, 20000));
    EXPECT_TRUE(onGuiThread);
    // Requests made while one ran were folded into the newest: the first and the last were made, not thirty.
    ASSERT_EQ(ready.size(), 2);
    EXPECT_EQ(ready.at(0).at(1).toReal(), 1.0);
    EXPECT_EQ(ready.at(1).at(1).toReal(), 30.0);
    EXPECT_EQ(feather.mask().size(), QSize(360, 540));
    EXPECT_EQ(FilterPictures::largestDifference(feather.mask(), FeatherMask::compute(picture, 30, QSize(360, 540))), 0);
}
