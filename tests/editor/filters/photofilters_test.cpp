// The filter menu's looks on a test picture: each changes it the way its filter's documentation says.
#include "filterpictures.h"
#include "filtersource.h"
#include "photofilters.h"

#include <QSet>

#include <gtest/gtest.h>

using namespace FilterPictures;

namespace {

constexpr int greys = 0; // first row of the grey ramp
constexpr int hues = 16;
constexpr int muted = 32;
constexpr int translucent = 48;

QImage look(const QString &name, const QImage &picture = testPicture())
{
    for (const FilterItem &item : PhotoFilters::filterItemsArray()) {
        if (item.name == name)
            return PhotoFilters::applyFilter(picture, item.filter);
    }
    ADD_FAILURE() << "no row " << name.toStdString();
    return {};
}

bool isGrey(const QColor &c)
{
    return c.red() == c.green() && c.green() == c.blue();
}

QColor grey(int level)
{
    return QColor(level, level, level);
}

} // namespace

TEST(PhotoFilters, TheMenuHasItsFifteenRowsInOrder)
{
    const QStringList names { "Normal", "Monochrome", "Posterize", "FalseColor", "Chrome", "Fade", "Instant", "Mono",
        "Noir", "Process", "Transfer", "Sepia", "Thermal", "Vignette", "XRay" };
    const QStringList filters { "", "CIColorMonochrome", "CIColorPosterize", "CIFalseColor", "CIPhotoEffectChrome",
        "CIPhotoEffectFade", "CIPhotoEffectInstant", "CIPhotoEffectMono", "CIPhotoEffectNoir", "CIPhotoEffectProcess",
        "CIPhotoEffectTransfer", "CISepiaTone", "CIThermal", "CIVignette", "CIXRay" };
    const auto &items = PhotoFilters::filterItemsArray();
    ASSERT_EQ(items.size(), 15);
    for (int row = 0; row < 15; ++row) {
        EXPECT_EQ(items.at(row).name, names.at(row));
        EXPECT_EQ(items.at(row).filter, filters.at(row));
        EXPECT_EQ(PhotoFilters::isFilter(items.at(row).filter), row != 0);
    }
}

TEST(PhotoFilters, EveryLookKeepsSizeAndAlphaAndLeavesTheSourceAlone)
{
    const QImage source = testPicture();
    const QImage before = source.copy();
    for (const FilterItem &item : PhotoFilters::filterItemsArray()) {
        SCOPED_TRACE(item.name.toStdString());
        const QImage result = PhotoFilters::applyFilter(source, item.filter);
        ASSERT_EQ(result.size(), source.size());
        EXPECT_TRUE(everyPixel(result, greys, translucent, [](const QColor &c) { return c.alpha() == 255; }));
        EXPECT_TRUE(everyPixel(result, translucent, 64, [](const QColor &c) { return c.alpha() == 128; }));
    }
    EXPECT_EQ(largestDifference(source, before), 0);
}

TEST(PhotoFilters, NormalAndUnknownNamesGiveThePictureItself)
{
    const QImage source = testPicture();
    EXPECT_EQ(PhotoFilters::applyFilter(source, QString()).cacheKey(), source.cacheKey());
    EXPECT_EQ(PhotoFilters::applyFilter(source, QStringLiteral("CINoSuchFilter")).cacheKey(), source.cacheKey());
}

TEST(PhotoFilters, MonochromeGivesShadesOfItsOneColour)
{
    const QImage result = look(QStringLiteral("Monochrome"));
    // Between black and white every pixel has the hue of the default colour (0.6, 0.45, 0.3): 30 degrees.
    // Pixels near black or white have too few levels left to show a hue.
    EXPECT_TRUE(everyPixel(result, greys, 64, [](const QColor &c) {
        const int chroma = std::max({ c.red(), c.green(), c.blue() }) - std::min({ c.red(), c.green(), c.blue() });
        return chroma < 20 || std::abs(c.hsvHue() - 30) <= 3;
    }));
    EXPECT_EQ(at(result, 0, greys).rgb(), QColor(Qt::black).rgb());
    EXPECT_EQ(at(result, 127, greys).rgb(), QColor(Qt::white).rgb());
    // Two pixels of one luminance become the same shade, whatever their hue.
    const QImage pair = look(QStringLiteral("Monochrome"), filled(QColor(200, 40, 40), 2, 1));
    const QImage other
        = look(QStringLiteral("Monochrome"), filled(grey(int(0.2126 * 200 + 0.7152 * 40 + 0.0722 * 40)), 2, 1));
    EXPECT_LE(largestDifference(pair, other), 2);
}

TEST(PhotoFilters, PosterizeLeavesSixLevelsPerChannel)
{
    const QImage result = look(QStringLiteral("Posterize"));
    QSet<int> reds, greens, blues;
    for (int y = greys; y < translucent; ++y) {
        for (int x = 0; x < result.width(); ++x) {
            const QColor c = at(result, x, y);
            reds.insert(c.red());
            greens.insert(c.green());
            blues.insert(c.blue());
        }
    }
    EXPECT_EQ(reds.size(), 6);
    EXPECT_LE(greens.size(), 6);
    EXPECT_LE(blues.size(), 6);
    EXPECT_TRUE(reds.contains(0) && reds.contains(255) && reds.contains(51));
}

TEST(PhotoFilters, FalseColorMapsLuminanceOntoItsTwoColours)
{
    const QImage result = look(QStringLiteral("FalseColor"));
    const QColor dark = at(result, 0, greys), light = at(result, 127, greys);
    EXPECT_NEAR(dark.red(), 77, 1);
    EXPECT_EQ(dark.green(), 0);
    EXPECT_EQ(dark.blue(), 0);
    EXPECT_NEAR(light.red(), 255, 1);
    EXPECT_NEAR(light.green(), 230, 1);
    EXPECT_NEAR(light.blue(), 204, 1);
    // Luminance alone decides: brighter greys go further along the ramp.
    EXPECT_LT(at(result, 40, greys).green(), at(result, 90, greys).green());
}

TEST(PhotoFilters, ChromeExaggeratesColourAndContrast)
{
    const QImage source = testPicture();
    const QImage result = look(QStringLiteral("Chrome"), source);
    EXPECT_GT(meanSaturation(result, muted, translucent), meanSaturation(source, muted, translucent) + 10);
    EXPECT_LT(at(result, 30, greys).red(), at(source, 30, greys).red());
    EXPECT_GT(at(result, 100, greys).red(), at(source, 100, greys).red());
}

TEST(PhotoFilters, FadeDiminishesColourAndLiftsBlack)
{
    const QImage source = testPicture();
    const QImage result = look(QStringLiteral("Fade"), source);
    EXPECT_LT(meanSaturation(result, hues, muted), meanSaturation(source, hues, muted) - 40);
    EXPECT_GT(at(result, 0, greys).red(), 15);
    EXPECT_LT(at(result, 127, greys).red(), 255);
}

TEST(PhotoFilters, InstantDesaturatesAndWarms)
{
    const QImage source = testPicture();
    const QImage result = look(QStringLiteral("Instant"), source);
    EXPECT_LT(meanSaturation(result, hues, muted), meanSaturation(source, hues, muted) - 20);
    const QColor mid = at(result, 64, greys);
    EXPECT_GT(mid.red(), mid.blue() + 10);
}

TEST(PhotoFilters, MonoAndNoirAreBlackAndWhiteWithLowAndHighContrast)
{
    const QImage source = testPicture();
    const QImage mono = look(QStringLiteral("Mono"), source);
    const QImage noir = look(QStringLiteral("Noir"), source);
    for (const QImage *result : { &mono, &noir })
        EXPECT_TRUE(everyPixel(*result, greys, 64, isGrey));
    // Low contrast: black and white move towards the middle. High contrast: dark greys darker, light lighter.
    EXPECT_GT(at(mono, 0, greys).red(), 10);
    EXPECT_LT(at(mono, 127, greys).red(), 240);
    EXPECT_LT(at(noir, 40, greys).red(), at(source, 40, greys).red() - 10);
    EXPECT_GT(at(noir, 88, greys).red(), at(source, 88, greys).red() + 10);
}

TEST(PhotoFilters, ProcessIsCoolAndTransferIsWarmAndBrighter)
{
    const QImage source = testPicture();
    const QImage process = look(QStringLiteral("Process"), source);
    const QImage transfer = look(QStringLiteral("Transfer"), source);
    EXPECT_GT(at(process, 64, greys).blue(), at(process, 64, greys).red() + 10);
    EXPECT_GT(at(transfer, 64, greys).red(), at(transfer, 64, greys).blue() + 10);
    EXPECT_GT(meanLuminance(transfer, greys, translucent), meanLuminance(source, greys, translucent) + 5);
}

TEST(PhotoFilters, SepiaIsWarmBrown)
{
    const QImage result = look(QStringLiteral("Sepia"), filled(grey(128)));
    const QColor c = at(result, 10, 10);
    EXPECT_GT(c.red(), c.green());
    EXPECT_GT(c.green(), c.blue());
    EXPECT_GT(c.red() - c.blue(), 40);
    // Every colour turns into the same brown family.
    EXPECT_TRUE(everyPixel(look(QStringLiteral("Sepia")), hues, translucent,
        [](const QColor &p) { return p.red() >= p.green() && p.green() >= p.blue(); }));
}

TEST(PhotoFilters, ThermalShowsColdAsBlueAndHeatAsYellow)
{
    const QImage result = look(QStringLiteral("Thermal"));
    const QColor cold = at(result, 20, greys), hot = at(result, 115, greys);
    EXPECT_GT(cold.blue(), cold.red());
    EXPECT_GT(hot.red(), hot.blue());
    EXPECT_GT(hot.green(), hot.blue());
}

TEST(PhotoFilters, VignetteDarkensTheCornersMoreThanTheCentre)
{
    const QImage result = look(QStringLiteral("Vignette"), filled(Qt::white, 300, 500));
    const int centre = at(result, 150, 250).red();
    const int side = at(result, 0, 250).red();
    const int corner = at(result, 0, 0).red();
    EXPECT_GE(centre, 250);
    EXPECT_LT(side, centre);
    EXPECT_LT(corner, side);
    EXPECT_LT(corner, 128);
    // The light falls steadily along the diagonal.
    int previous = 256;
    for (int step = 0; step <= 10; ++step) {
        const int level = at(result, 150 - step * 15, 250 - step * 25).red();
        EXPECT_LE(level, previous);
        previous = level;
    }
}

TEST(PhotoFilters, XRayTurnsTheTonesRound)
{
    const QImage result = look(QStringLiteral("XRay"));
    EXPECT_GT(at(result, 0, greys).red(), 200);
    EXPECT_LT(at(result, 127, greys).red(), 30);
    const QColor mid = at(result, 64, greys);
    EXPECT_GE(mid.blue(), mid.red());
}
