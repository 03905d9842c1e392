// The application's own pictures: every name the sources ask for is drawn, every entry of the table
// draws something visible, icons take the colour they are asked for, and pattern tiles repeat seamlessly.
#include "appassets.h"
#include "assetimageprovider.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

QString sourceRoot()
{
    return qEnvironmentVariable("QUILLET_SOURCE_DIR");
}

bool anyVisiblePixel(const QImage &image)
{
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < argb.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(argb.constScanLine(y));
        for (int x = 0; x < argb.width(); ++x) {
            if (qAlpha(row[x]) > 0)
                return true;
        }
    }
    return false;
}

// The colours of the pixels an icon draws fully opaque (its strokes, not their soft edges).
QSet<QRgb> strokeColours(const QImage &image)
{
    QSet<QRgb> colours;
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < argb.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(argb.constScanLine(y));
        for (int x = 0; x < argb.width(); ++x) {
            if (qAlpha(row[x]) == 255)
                colours.insert(row[x] | 0xFF000000);
        }
    }
    return colours;
}

/**
 * The names that the sources ask `image://assets/` for: literal addresses, the string literals on a
 * line that builds an address or sets an `AssetIcon`'s `asset`, names given to `AppAssets::image`, and
 * the "image" and "selected_image" entries of the shipped data files. Names built at run time from documents are not
 * here.
 */
QMap<QString, QString> requestedNames()
{
    static const QRegularExpression address(QStringLiteral(R"re(image://assets/([A-Za-z][\w-]*))re"));
    static const QRegularExpression builtAddress(QStringLiteral(R"re("image://assets/"\s*\+|\basset:)re"));
    static const QRegularExpression literal(QStringLiteral(R"re("([A-Za-z][\w-]*)")re"));
    static const QRegularExpression cppName(QStringLiteral(R"re(AppAssets::image\(\s*QStringLiteral\("([^"]+)"\))re"));
    static const QRegularExpression dataName(QStringLiteral(R"re("(?:image|selected_image)"\s*:\s*"([^"]+)")re"));

    QMap<QString, QString> names; // name -> where it was found
    QDirIterator files(sourceRoot() + QStringLiteral("/src"),
        { QStringLiteral("*.qml"), QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.json") },
        QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
        for (int i = 0; i < lines.size(); ++i) {
            const QString &line = lines.at(i);
            const QString where = QStringLiteral("%1:%2").arg(path.mid(sourceRoot().size() + 1)).arg(i + 1);
            auto collect = [&](const QRegularExpression &pattern) {
                for (const auto &match : pattern.globalMatch(line))
                    names.insert(match.captured(1), where);
            };
            collect(address);
            collect(cppName);
            if (path.endsWith(QLatin1String(".json")))
                collect(dataName);
            if (line.contains(builtAddress))
                collect(literal);
        }
    }
    return names;
}

} // namespace

TEST(AppAssets, EveryNameTheSourcesAskForIsDrawn)
{
    const QMap<QString, QString> names = requestedNames();
    // The scan itself works: it finds names of each kind of request.
    for (const char *known : { "img_transperent_bg_bright", "ic_close", "retry", "fontpicker_howtouse_custom",
             "ic_back", "ic_search", "ratio_story" })
        EXPECT_TRUE(names.contains(QLatin1String(known))) << known;
    for (auto it = names.cbegin(); it != names.cend(); ++it) {
        const QImage picture = AppAssets::image(it.key());
        EXPECT_FALSE(picture.isNull()) << qPrintable(it.key()) << " asked for at " << qPrintable(it.value());
    }
}

TEST(AppAssets, EveryEntryOfTheTableDrawsAVisiblePicture)
{
    const QStringList names = AppAssets::names();
    EXPECT_EQ(QSet<QString>(names.cbegin(), names.cend()).size(), names.size()) << "a name is in the table twice";
    for (const char *name : { "img_placeholder", "img_edit", "plus", "menu_text_select", "export_gif", "ic_volume_mute",
             "fontpicker_howtouse_download", "pattern_1", "pattern_114", "patternbg_4" })
        EXPECT_TRUE(names.contains(QLatin1String(name))) << name;
    for (const QString &name : names) {
        const QImage natural = AppAssets::image(name);
        ASSERT_FALSE(natural.isNull()) << qPrintable(name);
        EXPECT_TRUE(anyVisiblePixel(natural)) << qPrintable(name) << " is blank";
        // Asked for a size, it is drawn to fit it, not scaled from the natural size.
        const QImage small = AppAssets::image(name, QSize(48, 48));
        EXPECT_TRUE(small.width() == 48 || small.height() == 48) << qPrintable(name);
        EXPECT_TRUE(anyVisiblePixel(small)) << qPrintable(name) << " is blank at 48";
    }
    EXPECT_TRUE(AppAssets::image(QStringLiteral("pattern_115")).isNull());
    EXPECT_TRUE(AppAssets::image(QStringLiteral("pattern_0")).isNull());
    EXPECT_TRUE(AppAssets::image(QStringLiteral("pattern_07")).isNull());
    EXPECT_TRUE(AppAssets::image(QStringLiteral("no_such_picture")).isNull());
}

TEST(AppAssets, SizesKeepTheProportionsOfThePicture)
{
    EXPECT_EQ(AppAssets::image(QStringLiteral("fontpicker_howtouse_custom"), QSize(540, 0)).size(), QSize(540, 675));
    EXPECT_EQ(AppAssets::image(QStringLiteral("fontpicker_howtouse_custom"), QSize(0, 270)).size(), QSize(216, 270));
    EXPECT_EQ(AppAssets::image(QStringLiteral("fontpicker_howtouse_custom"), QSize(400, 400)).size(), QSize(320, 400));
    EXPECT_EQ(AppAssets::image(QStringLiteral("menu_text")).size(), QSize(72, 72));
}

TEST(AppAssets, IconsAreMonochromeAndTakeTheColourAskedFor)
{
    const QRgb accent = 0xFFE05863;
    EXPECT_EQ(strokeColours(AppAssets::image(QStringLiteral("menu_text_select"))), QSet<QRgb> { accent });
    EXPECT_EQ(strokeColours(AppAssets::image(QStringLiteral("menu_text"))), QSet<QRgb> { 0xFF1F1A1C });
    EXPECT_EQ(strokeColours(AppAssets::image(QStringLiteral("sc_plus"))), QSet<QRgb> { 0xFFB0A8B7 });
    EXPECT_EQ(strokeColours(AppAssets::image(QStringLiteral("plus"), {}, QColor(accent))), QSet<QRgb> { accent });

    // Through the provider, as QML asks: the colour rides in the address.
    AssetImageProvider provider;
    QSize size;
    const QImage tinted = provider.requestImage(QStringLiteral("ic_layer?color=E05863"), &size, QSize(30, 30));
    EXPECT_EQ(size, QSize(30, 30));
    EXPECT_EQ(strokeColours(tinted), QSet<QRgb> { accent });
    const QImage white = provider.requestImage(QStringLiteral("undo?color=%23ffffff"), &size, QSize(24, 24));
    EXPECT_EQ(strokeColours(white), QSet<QRgb> { 0xFFFFFFFF });
    // A name that is not shipped leaves a transparent gap rather than failing the item.
    const QImage missing = provider.requestImage(QStringLiteral("no_such_picture"), &size, QSize(24, 24));
    EXPECT_EQ(size, QSize(1, 1));
    EXPECT_FALSE(anyVisiblePixel(missing));
}

TEST(AppAssets, PatternTilesDifferAndRepeatWithoutASeam)
{
    // Mean colour step between two columns (or rows) of a tile.
    auto step = [](const QImage &tile, bool columns, int a, int b) {
        double sum = 0;
        const int length = columns ? tile.height() : tile.width();
        for (int i = 0; i < length; ++i) {
            const QRgb p = columns ? tile.pixel(a, i) : tile.pixel(i, a);
            const QRgb q = columns ? tile.pixel(b, i) : tile.pixel(i, b);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q));
        }
        return sum / length;
    };
    // Across the wrap, the last column (row) meets the first as smoothly as the sharpest step inside. The
    // scattered confetti tiles (every twelfth from 11, and the third background) are left out: with no
    // lattice, a piece that happens to end at the edge outdoes every step inside without being a seam.
    auto expectSeamless = [&](const QString &name, const QImage &tile) {
        for (const bool columns : { true, false }) {
            const int length = columns ? tile.width() : tile.height();
            double inside = 0;
            for (int i = 0; i + 1 < length; ++i)
                inside = std::max(inside, step(tile, columns, i, i + 1));
            EXPECT_LE(step(tile, columns, length - 1, 0), inside + 1) << qPrintable(name);
        }
    };
    QSet<QByteArray> seen;
    QStringList names;
    for (int n = 1; n <= 114; ++n)
        names.append(QStringLiteral("pattern_%1").arg(n));
    for (int n = 1; n <= 4; ++n)
        names.append(QStringLiteral("patternbg_%1").arg(n));
    for (const QString &name : names) {
        const QImage tile = AppAssets::image(name, QSize(240, 240)).convertToFormat(QImage::Format_RGB32);
        seen.insert(QByteArray(reinterpret_cast<const char *>(tile.constBits()), tile.sizeInBytes()));
        const int number = name.section(u'_', 1).toInt();
        const bool scattered = name.startsWith(QLatin1String("patternbg")) ? number == 3 : number % 12 == 11;
        if (!scattered)
            expectSeamless(name, tile);
    }
    EXPECT_EQ(seen.size(), names.size()) << "two pattern numbers give the same tile";
}
