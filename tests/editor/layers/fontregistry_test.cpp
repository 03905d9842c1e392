#include "fontnametable.h"
#include "fontregistry.h"

#include <QFile>
#include <QFontInfo>
#include <QTemporaryFile>

#include <gtest/gtest.h>

namespace {

QByteArray shipped(const QString &file)
{
    QFile f(QStringLiteral(":/Quillet/Editor/Layers/fonts/") + file);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace

TEST(FontNameTable, ReadsPostScriptFullFamilyAndStyleNames)
{
    const QList<FontNameTable> faces = FontNameTable::read(shipped(QStringLiteral("BebasNeue-Regular.otf")));
    ASSERT_EQ(faces.size(), 1);
    EXPECT_EQ(faces[0].postScriptName, "BebasNeueRegular");
    EXPECT_EQ(faces[0].family, "Bebas Neue");
    EXPECT_EQ(faces[0].subfamily, "Regular");
    EXPECT_EQ(faces[0].weight, 400);
    EXPECT_FALSE(faces[0].italic);
}

TEST(FontNameTable, DamagedDataGivesNothingAndNeverReadsPastTheEnd)
{
    const QByteArray font = shipped(QStringLiteral("LobsterTwo-BoldItalic.otf"));
    ASSERT_FALSE(font.isEmpty());
    EXPECT_TRUE(FontNameTable::read(QByteArray()).isEmpty());
    EXPECT_TRUE(FontNameTable::read(QByteArray("ttcf\0\0\0\0\xff\xff\xff\xff", 12)).isEmpty());
    for (const qsizetype cut : { 4, 12, 100, 300 })
        EXPECT_TRUE(FontNameTable::read(font.left(cut)).isEmpty()) << cut;
    QByteArray scrambled = font;
    for (qsizetype i = 12; i < 200; i += 7)
        scrambled[i] = char(0xff);
    (void)FontNameTable::read(scrambled); // must not crash
}

TEST(FontRegistry, FindsShippedFacesByPostScriptName)
{
    const auto lobster = FontRegistry::shared().font(QStringLiteral("LobsterTwo-BoldItalic"), 30);
    ASSERT_TRUE(lobster.has_value());
    EXPECT_EQ(lobster->pointSizeF(), 30);
    const QFontInfo info(*lobster);
    EXPECT_EQ(info.family(), "Lobster Two");
    EXPECT_TRUE(info.bold());
    EXPECT_TRUE(info.italic());
    const QStringList shipped { "BebasNeueRegular", "DancingScript", "LobsterTwo-BoldItalic" };
    QStringList registered;
    for (const FontNameTable &face : FontRegistry::shared().applicationFaces())
        registered << face.postScriptName;
    for (const QString &name : shipped)
        EXPECT_TRUE(registered.contains(name)) << name.toStdString();
}

TEST(FontRegistry, FindsSystemFacesByFullName)
{
    const auto font = FontRegistry::shared().font(QStringLiteral("DejaVu Sans"), 10);
    ASSERT_TRUE(font.has_value());
    EXPECT_EQ(QFontInfo(*font).family(), "DejaVu Sans");
}

TEST(FontRegistry, SelectsExactlyTheNamedFaceOfAFamily)
{
    FontRegistry &fonts = FontRegistry::shared();
    const auto bold = fonts.font(QStringLiteral("DejaVuSans-Bold"), 20);
    const auto regular = fonts.font(QStringLiteral("DejaVuSans"), 20);
    ASSERT_TRUE(bold && regular);
    EXPECT_EQ(QFontInfo(*bold).styleName(), "Bold");
    EXPECT_EQ(QFontInfo(*regular).styleName(), "Book");
}

TEST(FontRegistry, UnknownNamesAndNonFontFilesGiveNothing)
{
    FontRegistry &fonts = FontRegistry::shared();
    EXPECT_FALSE(fonts.font(QStringLiteral("Helveticas"), 20).has_value());
    EXPECT_FALSE(fonts.contains(QString()));
    QTemporaryFile notAFont;
    ASSERT_TRUE(notAFont.open());
    notAFont.write("not a font at all");
    notAFont.close();
    EXPECT_TRUE(fonts.registerFontFile(notAFont.fileName()).isEmpty());
    EXPECT_TRUE(fonts.registerFontFile(QStringLiteral("/nonexistent/font.ttf")).isEmpty());
}

TEST(FontRegistry, PlatformFaceNamesLeadToStandIns)
{
    EXPECT_TRUE(FontRegistry::shared().font(QStringLiteral("Helvetica"), 12).has_value());
    EXPECT_TRUE(FontRegistry::shared().font(QStringLiteral("SFUIText-Semibold"), 12).has_value());
}
