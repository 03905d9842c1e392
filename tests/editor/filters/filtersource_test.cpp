// The adjustment sliders and filter rows as the editor drives them: each from the same source picture.
#include "colormatrix.h"
#include "filterpictures.h"
#include "filtersource.h"
#include "photofilters.h"
#include "pixelkernels.h"

#include <gtest/gtest.h>

using namespace FilterPictures;

namespace {

FilterSource sourceOf(const QImage &picture)
{
    FilterSource source;
    source.setupCoreImage(picture);
    return source;
}

} // namespace

TEST(FilterSource, RowZeroGivesTheSourceUntouched)
{
    const FilterSource source = sourceOf(testPicture());
    const QImage result = source.applyFilter(0);
    EXPECT_EQ(result.cacheKey(), source.aCIImage().cacheKey());
    EXPECT_EQ(source.applyFilter(15).cacheKey(), source.aCIImage().cacheKey());
}

TEST(FilterSource, SlidersAtZeroAreTheIdentityWithinOneLevel)
{
    const FilterSource source = sourceOf(testPicture());
    EXPECT_LE(largestDifference(source.brightness(0), source.aCIImage()), 1);
    EXPECT_LE(largestDifference(source.contrast(0), source.aCIImage()), 1);
    EXPECT_LE(largestDifference(source.saturation(0), source.aCIImage()), 1);
}

TEST(FilterSource, SlidersFollowTheirFormulas)
{
    const FilterSource grey = sourceOf(filled(QColor(128, 128, 128)));
    // Brightness v / 200 is added: 100 gives +0.5, -40 gives -0.2.
    EXPECT_EQ(at(grey.brightness(100), 0, 0).red(), 255);
    EXPECT_NEAR(at(grey.brightness(-40), 0, 0).red(), 128 - 51, 1);
    // Contrast v / 200 + 1 scales the distance from mid grey: -200 flattens everything to it.
    const FilterSource ramp = sourceOf(testPicture());
    EXPECT_TRUE(everyPixel(ramp.contrast(-200), 0, 48, [](const QColor &c) { return std::abs(c.red() - 128) <= 1; }));
    // 200 doubles it: the grey 160 at x = 80 lies 32.5 above the middle and goes to 192.5.
    EXPECT_NEAR(at(ramp.contrast(200), 80, 0).red(), 193, 1);
    // Saturation v / 100 + 1: -100 leaves grey, 100 doubles the distance from grey.
    EXPECT_TRUE(everyPixel(ramp.saturation(-100), 16, 64,
        [](const QColor &c) { return std::abs(c.red() - c.green()) <= 1 && std::abs(c.green() - c.blue()) <= 1; }));
    EXPECT_GT(meanSaturation(ramp.saturation(100), 32, 48), meanSaturation(ramp.aCIImage(), 32, 48) + 30);
}

TEST(FilterSource, EachSliderStartsAgainFromTheSource)
{
    const FilterSource source = sourceOf(testPicture());
    const QImage brightened = source.brightness(80);
    const QImage contrasted = source.contrast(60);
    // Contrast after brightness is contrast of the source alone: the brightness is gone.
    EXPECT_EQ(largestDifference(contrasted, sourceOf(testPicture()).contrast(60)), 0);
    EXPECT_GT(largestDifference(contrasted, sourceOf(brightened).contrast(60)), 20);
    // Filter rows replace one another in the same way.
    const QImage sepia = source.applyFilter(11);
    EXPECT_EQ(largestDifference(source.applyFilter(7), sourceOf(testPicture()).applyFilter(7)), 0);
    EXPECT_GT(largestDifference(source.applyFilter(7), sourceOf(sepia).applyFilter(7)), 0);
}

TEST(FilterSource, OpacityHundredKeepsThePictureAndZeroClearsIt)
{
    const FilterSource source = sourceOf(testPicture());
    EXPECT_EQ(largestDifference(source.opacity(100), source.aCIImage()), 0);
    const QImage cleared = source.opacity(0);
    EXPECT_TRUE(everyPixel(cleared, 0, 64, [](const QColor &c) { return c.alpha() == 0; }));
    const QImage half = source.opacity(50);
    EXPECT_NEAR(at(half, 10, 0).alpha(), 128, 1);
    EXPECT_NEAR(at(half, 10, 50).alpha(), 64, 1);
    // Above 100 the picture cannot be more than opaque.
    EXPECT_EQ(largestDifference(source.opacity(150), source.aCIImage()), 0);
}

TEST(FilterSource, NoPictureGivesNoPicture)
{
    const FilterSource none;
    EXPECT_TRUE(none.brightness(40).isNull());
    EXPECT_TRUE(none.applyFilter(3).isNull());
    EXPECT_TRUE(none.opacity(50).isNull());
}

TEST(PixelKernels, BandsCoverEveryLineOfAnOddSizedPicture)
{
    // Enough lines for many bands, none of them even.
    QImage picture(173, 1001, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb((x * 7 + y) % 256, (y * 3) % 256, (x + y * 5) % 256));
    }
    const QImage result = PixelKernels::colorMatrix(picture, ColorMatrix::brightness(0.1F));
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor in(picture.pixel(x, y)), out = at(result, x, y);
            ASSERT_NEAR(out.red(), std::min(255, in.red() + 26), 1) << x << "," << y;
            ASSERT_NEAR(out.blue(), std::min(255, in.blue() + 26), 1) << x << "," << y;
        }
    }
}
