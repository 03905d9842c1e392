// A content server that hands out hostile names (see HostileNames): whatever a template, a picture list or
// a cache is given, nothing is read from or written to a place outside the application's folders.
#include "apppaths.h"
#include "canvaspictures.h"
#include "contentserverfixture.h"
#include "editimageportraitmode.h"
#include "hostilenames.h"
#include "hostilesandbox.h"
#include "imagecache.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "prefixurl.h"
#include "preparationscreens.h"
#include "qffontpicker.h"
#include "serverclient.h"
#include "showimagesample.h"
#include "storyboard.h"
#include "videocache.h"

#include <QBuffer>
#include <QDir>
#include <QNetworkAccessManager>
#include <QTest>

#include <gtest/gtest.h>

namespace {

/** An odd little picture planted outside the home: a layer that shows it read a hostile path. */
const QSize plantedSize(7, 5);

QByteArray plantedPicture(const char *format)
{
    QImage image(plantedSize, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

class HostileContent : public ::testing::Test
{
protected:
    HostileContent()
    {
        sandbox.plant(QStringLiteral(".png"), plantedPicture("PNG"));
        sandbox.plant(QStringLiteral(".jpg"), plantedPicture("JPEG"));
        server.server().setHostileNames(true, sandbox.outside().toStdString());
        PrefixUrl::set(server.contentBase());
        ImageCache::shared().clearMemory();
    }

    /** A template document as the hostile server answers it. */
    std::shared_ptr<Json> hostileTemplate(qint64 jsonId)
    {
        std::optional<QJsonObject> data;
        bool done = false;
        client.getJsonData(jsonId, nullptr, [&](const std::optional<QJsonObject> &answer, const auto &, bool) {
            data = answer;
            done = true;
        });
        EXPECT_TRUE(QTest::qWaitFor([&] { return done; }, 15000));
        return data ? Mapper::map<Json>(*data) : nullptr;
    }

    HostileSandbox sandbox;
    TestContentServer server;
    QNetworkAccessManager network;
    ServerClient client { &network, QUrl(server.apiBase()) };
};

TEST_F(HostileContent, TemplateNamesNeverShowAPictureFromOutsideTheApplicationsFolders)
{
    for (const qint64 jsonId : { 1001, 1002, 1003 }) {
        const auto document = hostileTemplate(jsonId);
        ASSERT_TRUE(document) << jsonId;
        EditImagePortraitMode editor;
        editor.setCanvasArea(QRectF(0, 0, 360, 640));
        editor.screenSize = QSizeF(360, 640);
        ASSERT_TRUE(editor.loadTemplate(document));
        ASSERT_TRUE(QTest::qWaitFor([&] { return !pictureOnItsWay(editor.viewMain); }, 15000));
        for (const QImage &picture : picturesOf(editor.viewMain))
            EXPECT_NE(picture.size(), plantedSize) << jsonId << ": a layer shows a picture from outside";
    }
    EXPECT_EQ(sandbox.strayFiles(), QStringList());
}

TEST_F(HostileContent, PreparingAHostileTemplateWritesNothingOutsideTheHome)
{
    QFFontpicker fontpicker(&network, FontpickerConnection { 37, {}, {}, QUrl(server.apiBase()), {}, {}, {} });
    fontpicker.start();
    Storyboard storyboard;
    PreparationScreens::registerScreens(storyboard, &client, &fontpicker);
    NavigationController navigation;
    navigation.setRoot(new ViewController());
    for (const qint64 jsonId : { 1001, 1002 }) {
        auto *screen = static_cast<TemplateSample *>(storyboard.instantiate(QStringLiteral("ShowImageSample")));
        auto card = std::make_shared<Json>();
        card->json_id = jsonId;
        card->width = 1080;
        card->height = 1920;
        card->is_offline = false;
        card->sample_image = QString::fromStdString(HostileNames::name(3, ".jpg", sandbox.outside().toStdString()));
        screen->contentJson = card;
        navigation.push(screen, false);
        ASSERT_TRUE(QTest::qWaitFor([screen] { return screen->state() != TemplateSample::State::Loading; }, 30000));
    }
    EXPECT_EQ(sandbox.strayFiles(), QStringList());
    for (const QString &file : QDir(AppPaths::documents()).entryList(QDir::Files))
        EXPECT_FALSE(file.startsWith(QStringLiteral("escape2")) || file.startsWith(QStringLiteral("escape3")))
            << "a file named by an absolute or file: name reached Documents: " << file.toStdString();
}

TEST_F(HostileContent, CachesFetchOnlyWebAddresses)
{
    const QUrl outside = QUrl::fromLocalFile(QDir(sandbox.outside()).filePath(QStringLiteral("escape2.png")));
    const int loads = ImageCache::shared().networkLoads();
    QImage picture(1, 1, QImage::Format_RGB32);
    bool done = false;
    ImageCache::shared().loadImage(outside, nullptr, [&](const QImage &image, const QString &) {
        picture = image;
        done = true;
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return done; }, 5000));
    EXPECT_TRUE(picture.isNull());
    EXPECT_EQ(ImageCache::shared().networkLoads(), loads);
    EXPECT_FALSE(QFile::exists(ImageCache::diskPath(outside)));

    std::optional<QString> video = QString();
    done = false;
    VideoCache::shared().fetch(outside, nullptr, [&](const std::optional<QString> &file, const QString &) {
        video = file;
        done = true;
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return done; }, 5000));
    EXPECT_FALSE(video.has_value());
    EXPECT_TRUE(QDir(AppPaths::documents()).entryList(QDir::Files).isEmpty());
}

} // namespace
