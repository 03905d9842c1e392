#include "designstore.h"
#include "fullvideoscreenvc.h"
#include "navigationcontroller.h"
#include "quillettool.h"
#include "storyboard.h"
#include "testhome.h"

#include <QDir>
#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

namespace {

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A 1080 x 1920 template on a phone-sized canvas: a sticker and a shadowed text over a colour.
QString writeTemplate(const TestHome &home)
{
    QDir().mkpath(home.filePath(QStringLiteral("resource")));
    QImage red(120, 120, QImage::Format_ARGB32);
    red.fill(QColor(220, 40, 40, 200));
    red.save(home.filePath(QStringLiteral("resource/red.png")));
    const QString path = home.filePath(QStringLiteral("design.json"));
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(R"({"width": 1080, "height": 1920, "is_pip": false, "is_sample": false, "is_offline": false,
        "background_json": {"background_color": "F8C221"},
        "sticker_json": [{"sticker_image": "red.png", "xPos": 300, "yPos": 300, "width": 300, "height": 300,
                          "angle": 20}],
        "text_json": [{"text": "Summer sale", "fontName": "BebasNeueRegular", "size": 120, "color": "220D2A",
                       "xPos": 100, "yPos": 1200, "shadowColor": "000000", "shadowRadius": 3,
                       "shadowDistance": 3, "angle": -8}]})");
    return path;
}

} // namespace

// quillet-tool save runs SAVE without screens: the album file is the HD picture that render draws,
// byte for byte, and the printed id names the stored row.
TEST(SaveCommand, PutsTheRenderedPictureIntoTheAlbumAndStoresTheDesign)
{
    TestHome home;
    const QString design = writeTemplate(home);
    const QString album = home.filePath(QStringLiteral("album"));
    const ToolRun saved = runQuilletTool({ QStringLiteral("save"), design, QStringLiteral("--area"),
        QStringLiteral("360x640"), QStringLiteral("--hd"), QStringLiteral("--album"), album });
    ASSERT_EQ(saved.exitCode, 0) << saved.err.toStdString();
    const QStringList lines = saved.out.trimmed().split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 2) << saved.out.toStdString();
    EXPECT_EQ(QFileInfo(lines.first()).absolutePath(), album);

    const QString rendered = home.filePath(QStringLiteral("rendered.png"));
    const ToolRun render = runQuilletTool({ QStringLiteral("render"), design, QStringLiteral("--area"),
        QStringLiteral("360x640"), QStringLiteral("--hd"), QStringLiteral("-o"), rendered });
    ASSERT_EQ(render.exitCode, 0) << render.err.toStdString();
    const QByteArray picture = fileBytes(rendered);
    EXPECT_EQ(QImage::fromData(picture).size(), QSize(2160, 3840));
    EXPECT_EQ(fileBytes(lines.first()), picture);

    DesignStore store;
    const QList<SavePhoto> rows = store.allDesigns();
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows.first().objectID.toString(), lines.last());

    const ToolRun refused = runQuilletTool({ QStringLiteral("save"), design, QStringLiteral("--area"),
        QStringLiteral("360x640"), QStringLiteral("--album"), design + QStringLiteral("/Quillet") });
    EXPECT_NE(refused.exitCode, 0);
    EXPECT_TRUE(refused.err.contains(QStringLiteral("Not allowed"))) << refused.err.toStdString();
    EXPECT_EQ(runQuilletTool({ QStringLiteral("save"), design }).exitCode, 1);
}

// A design's movie is presented as the player, its GIF pushed into the zoomable view, nothing for no file.
TEST(FullVideoScreenVC, PresentsMoviesAndPushesGifs)
{
    Storyboard storyboard;
    storyboard.registerScreen<FullVideoScreenVC>(QStringLiteral("FullVideoScreenVC"), QUrl());
    storyboard.registerScreen<ViewController>(QStringLiteral("Root"), QUrl());
    NavigationController navigation;
    navigation.setRoot(storyboard.instantiate(QStringLiteral("Root")));

    const QUrl movie = QUrl::fromLocalFile(QStringLiteral("/tmp/1731672000123.mov"));
    FullVideoScreenVC *player = FullVideoScreenVC::show(&navigation, &storyboard, movie);
    ASSERT_TRUE(player);
    EXPECT_EQ(player->videoURL, movie);
    EXPECT_TRUE(player->gifURL.isEmpty());
    player->btnCloseClicked();
    EXPECT_EQ(navigation.depth(), 1);

    const QUrl gif = QUrl::fromLocalFile(QStringLiteral("/tmp/1731672000123.GIF"));
    FullVideoScreenVC *animation = FullVideoScreenVC::show(&navigation, &storyboard, gif, QStringLiteral("Landscape"));
    ASSERT_TRUE(animation);
    EXPECT_EQ(animation->gifURL, gif);
    EXPECT_EQ(animation->deviceOrientation, QStringLiteral("Landscape"));
    EXPECT_EQ(navigation.topViewController(), animation);

    EXPECT_EQ(FullVideoScreenVC::show(&navigation, &storyboard, QUrl()), nullptr);
    EXPECT_EQ(navigation.depth(), 2);
}
