// Template preparation against the real content server: the road from a card to a document, its
// fonts, its pictures, its failures, and the cache it falls back on.
#include "alertmodel.h"
#include "apppaths.h"
#include "canvasbackground.h"
#include "canvaspictures.h"
#include "canvasrenderer.h"
#include "designstore.h"
#include "editimageportraitmode.h"
#include "editvideoportraitmode.h"
#include "extendedpack.h"
#include "fontlist.h"
#include "imagecache.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "nonfatalreporter.h"
#include "prefixurl.h"
#include "preparationscreens.h"
#include "qffontpicker.h"
#include "reachability.h"
#include "resizableview.h"
#include "serverclient.h"
#include "showbgvideosamplevc.h"
#include "showimagesample.h"
#include "showvideosample.h"
#include "storeddesign.h"
#include "storyboard.h"
#include "testhome.h"
#include "videocache.h"

#include <QDir>
#include <QFile>
#include <QNetworkAccessManager>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using State = TemplateSample::State;

nlohmann::json text(const std::string &fontName, const std::string &fontPath = {})
{
    nlohmann::json entry = { { "text", "Hello" }, { "fontName", fontName }, { "xPos", 10 }, { "yPos", 10 },
        { "width", 300 }, { "height", 80 }, { "size", 40 }, { "color", "#000000" } };
    if (!fontPath.empty())
        entry["fontPath"] = fontPath;
    return entry;
}

nlohmann::json sticker(const std::string &picture)
{
    return { { "sticker_image", picture }, { "xPos", 0 }, { "yPos", 0 }, { "width", 200 }, { "height", 200 } };
}

/** A template with only what a test names: no pictures, no texts unless given. */
nlohmann::json document(long long jsonId, nlohmann::json texts = nullptr, nlohmann::json stickers = nullptr)
{
    nlohmann::json json = { { "json_id", jsonId }, { "is_pip", false }, { "is_sample", false }, { "is_offline", false },
        { "width", 1080.0 }, { "height", 1920.0 }, { "sample_image", "tpl_1001.jpg" } };
    if (!texts.is_null())
        json["text_json"] = std::move(texts);
    if (!stickers.is_null())
        json["sticker_json"] = std::move(stickers);
    return json;
}

std::shared_ptr<Json> card(qint64 jsonId, double width = 1080, double height = 1920)
{
    auto json = std::make_shared<Json>();
    json->json_id = jsonId;
    json->width = width;
    json->height = height;
    json->is_offline = false;
    json->sample_image = QStringLiteral("tpl_1001.jpg");
    return json;
}

/** The application's services on one server: client, font library, storyboard, navigation stack. */
struct App
{
    explicit App(const QString &apiBase)
        : client(&network, QUrl(apiBase))
        , fontpicker(&network, FontpickerConnection { 37, {}, {}, QUrl(apiBase), {}, {}, {} })
    {
        fontpicker.start();
        PreparationScreens::registerScreens(storyboard, &client, &fontpicker);
        const QUrl editorView(QStringLiteral("qrc:/Quillet/Editor/EditorView.qml"));
        storyboard.registerScreen<EditImagePortraitMode>(QStringLiteral("EditImagePortraitMode"), editorView);
        storyboard.registerScreen<EditVideoPortraitMode>(QStringLiteral("EditVideoPortraitMode"), editorView);
        navigation.setRoot(new ViewController());
    }

    /** Pushes a preview screen for the card and waits until it leaves the loading state. */
    template<class Screen = ShowImageSample> Screen *open(const std::shared_ptr<Json> &tapped, bool wait = true)
    {
        const QString identifier = std::is_same_v<Screen, ShowVideoSample> ? QStringLiteral("ShowVideoSample")
                                                                           : QStringLiteral("ShowImageSample");
        auto *screen = static_cast<Screen *>(storyboard.instantiate(identifier));
        screen->contentJson = tapped;
        navigation.push(screen, false);
        if (wait)
            settle(screen);
        return screen;
    }

    static bool settle(TemplateSample *screen)
    {
        return QTest::qWaitFor([screen] { return screen->state() != State::Loading; }, 20000);
    }

    QNetworkAccessManager network;
    ServerClient client;
    QFFontpicker fontpicker;
    Storyboard storyboard;
    NavigationController navigation;
};

/** A font file with names and nothing else: its name table reads, but no outline does. */
QByteArray namesOnlyFont(const QString &postScriptName)
{
    QByteArray name;
    for (const QChar c : postScriptName)
        name.append(char(c.unicode() >> 8)).append(char(c.unicode() & 0xFF));
    QByteArray font;
    auto u16 = [&font](int value) { font.append(char(value >> 8 & 0xFF)).append(char(value & 0xFF)); };
    auto u32 = [&](quint32 value) {
        u16(int(value >> 16));
        u16(int(value & 0xFFFF));
    };
    u32(0x00010000); // TrueType outlines, one table
    u16(1);
    u16(16);
    u16(0);
    u16(0);
    u32(0x6E616D65); // 'name', at 28
    u32(0);
    u32(28);
    u32(quint32(18 + name.size()));
    u16(0); // format 0, one record, strings at 18
    u16(1);
    u16(18);
    for (const int field : { 3, 1, 0x409, 6, int(name.size()), 0 }) // Windows English PostScript name
        u16(field);
    return font + name;
}

QByteArray packFont(const char *name)
{
    QFile file(QString::fromStdString((ContentServer::defaultContentDir() / "fonts" / name).string()));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList nonFatalDomains()
{
    QFile file(NonFatalReporter::path());
    QStringList domains;
    if (!file.open(QIODevice::ReadOnly))
        return domains;
    while (!file.atEnd())
        domains.append(
            QString::fromStdString(nlohmann::json::parse(file.readLine().toStdString()).value("domain", "")));
    return domains;
}

class Preparation : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ImageCache::shared().clearMemory();
        Reachability::setForcedConnection(std::nullopt);
    }
    void TearDown() override { Reachability::setForcedConnection(std::nullopt); }

    TestHome home;
    ExtendedPack pack;
};

TEST_F(Preparation, TemplateWithNothingToFetchIsReadyAtOnceAndKeepsTheCardsPreview)
{
    pack.addTemplate(document(9001));
    ASSERT_TRUE(pack.start());
    App app(pack.apiBase());
    auto *screen = app.open(card(9001));
    EXPECT_EQ(screen->state(), State::Ready);
    EXPECT_TRUE(screen->editEnabled());
    EXPECT_FALSE(screen->veilVisible());
    EXPECT_TRUE(screen->resourceNames().isEmpty());
    EXPECT_EQ(screen->contentJson->json_id, 9001);
    EXPECT_EQ(screen->contentJson->sample_image, QStringLiteral("tpl_1001.jpg"));

    screen->editClicked();
    EXPECT_EQ(app.navigation.topIdentifier(), QStringLiteral("EditImagePortraitMode"));
    auto *editor = static_cast<EditorSession *>(app.navigation.topViewController());
    EXPECT_EQ(editor->contentJson, screen->contentJson);
}

TEST_F(Preparation, HighlightDocumentNamesItsPreviewByFullAddress)
{
    pack.addTemplate(document(9001));
    ASSERT_TRUE(pack.start());
    App app(pack.apiBase());
    auto *screen = static_cast<ShowImageSample *>(app.storyboard.instantiate(QStringLiteral("ShowImageSample")));
    screen->isHightLightEditor = true;
    screen->contentJson = card(9001);
    app.navigation.push(screen, false);
    ASSERT_TRUE(App::settle(screen));
    EXPECT_EQ(screen->contentJson->sample_image, pack.contentBase() + QStringLiteral("resource/tpl_1001.jpg"));
}

TEST_F(Preparation, CardWithoutPositiveSizeFailsAndSquareStaysPortrait)
{
    ASSERT_TRUE(pack.start());
    App app(pack.apiBase());
    EXPECT_EQ(app.open(card(1001, 0, 1920))->state(), State::Failed);
    EXPECT_EQ(TemplateSample::orientationFor(*card(1, 1080, 1080)), QStringLiteral("Portrait"));
    EXPECT_EQ(TemplateSample::orientationFor(*card(1, 1920, 1080)), QStringLiteral("Landscape"));
}

TEST_F(Preparation, OneMissingFontIsDownloadedOnceAndEveryTextUsingItIsRewritten)
{
    // The folder and the capital extension of the path do not matter: "fonts/Quicksand-Bold.ttf" is asked for.
    pack.addTemplate(document(9002,
        { text("QuilletMissingFace", "any/folder/Quicksand-Bold.TTF"), text("LobsterTwo-BoldItalic"),
            text("QuilletMissingFace", "any/folder/Quicksand-Bold.TTF") }));
    ASSERT_TRUE(pack.start());
    App app(pack.apiBase());
    auto *screen = app.open(card(9002));
    ASSERT_EQ(screen->state(), State::Ready);
    EXPECT_EQ(screen->fontDownloads(), 1);
    const auto &texts = *screen->contentJson->text_json;
    EXPECT_EQ(texts.at(0)->fontName, QStringLiteral("Quicksand-Bold"));
    EXPECT_EQ(texts.at(1)->fontName, QStringLiteral("LobsterTwo-BoldItalic"));
    EXPECT_EQ(texts.at(2)->fontName, QStringLiteral("Quicksand-Bold"));
    EXPECT_TRUE(FontList::containsFontName(*FontList::read(), QStringLiteral("Quicksand-Bold")));
}

TEST_F(Preparation, ListedFontIsNeverDownloadedEvenWhenItsFileIsGone)
{
    // Listed under a file that does not exist: the list alone decides.
    FontList::prepare(QFFontpicker::defaultListPath());
    FontList::addFont(
        QStringLiteral("gone.ttf"), QStringLiteral("QuilletGoneFace"), QStringLiteral("/nowhere/gone.ttf"));
    pack.addTemplate(document(9003, { text("QuilletGoneFace", "fonts/gone.ttf") }));
    ASSERT_TRUE(pack.start());
    App app(pack.apiBase());
    auto *screen = app.open(card(9003));
    EXPECT_EQ(screen->state(), State::Ready);
    EXPECT_EQ(screen->fontDownloads(), 0);
    EXPECT_EQ(screen->contentJson->text_json->at(0)->fontName, QStringLiteral("QuilletGoneFace"));
}

TEST_F(Preparation, UnknownFontWithoutPathOrWithAMissingFileFailsWithAReport)
{
    pack.addTemplate(document(9004, { text("QuilletNoPathFace") }));
    pack.addTemplate(document(9005, { text("QuilletLostFace", "fonts/NoSuchFont.otf") }));
    ASSERT_TRUE(pack.start());
    App app(pack.apiBase());
    EXPECT_EQ(app.open(card(9004))->state(), State::Failed);
    EXPECT_EQ(nonFatalDomains(), QStringList { QStringLiteral("Font Path Not Found") });
    auto *lost = app.open(card(9005));
    EXPECT_EQ(lost->state(), State::Failed);
    EXPECT_TRUE(lost->retryVisible());
    EXPECT_EQ(nonFatalDomains().size(), 2);
}

TEST_F(Preparation, SamePictureNamedTwiceIsFetchedAndCountedTwice)
{
    nlohmann::json json = document(9006, nullptr, { sticker("abstract_1.jpg"), sticker("abstract_1.jpg") });
    json["frame_json"] = { { "frame_image", "abstract_2.jpg" } };
    pack.addTemplate(json);
    ASSERT_TRUE(pack.start());
    App app(pack.apiBase());
    const int before = ImageCache::shared().networkLoads();
    auto *screen = app.open(card(9006));
    ASSERT_EQ(screen->state(), State::Ready);
    EXPECT_EQ(screen->resourceNames(),
        (QStringList {
            QStringLiteral("abstract_2.jpg"), QStringLiteral("abstract_1.jpg"), QStringLiteral("abstract_1.jpg") }));
    EXPECT_EQ(screen->preloadSuccesses(), 3);
    EXPECT_EQ(ImageCache::shared().networkLoads() - before, 3);
    // The editor finds each picture by its address.
    EXPECT_FALSE(
        ImageCache::shared().imageFromCache(pack.contentBase() + QStringLiteral("resource/abstract_1.jpg")).isNull());
}

TEST_F(Preparation, FirstFailedPictureFailsAtOnceAndRetryStartsFromTheTop)
{
    pack.addTemplate(document(9007, nullptr,
        { sticker("missing_one.png"), sticker("abstract_3.jpg"), sticker("missing_two.png"),
            sticker("abstract_4.jpg") }));
    ASSERT_TRUE(pack.start());
    App app(pack.apiBase());
    auto *screen = app.open(card(9007), false);
    int failuresAtFailure = -1;
    QObject::connect(screen, &TemplateSample::stateChanged, screen, [&] {
        if (screen->state() == State::Failed && failuresAtFailure < 0)
            failuresAtFailure = screen->preloadFailures();
    });
    ASSERT_TRUE(App::settle(screen));
    EXPECT_EQ(screen->state(), State::Failed);
    EXPECT_EQ(failuresAtFailure, 1);
    EXPECT_TRUE(screen->retryVisible());
    EXPECT_FALSE(screen->editEnabled());

    // Retry asks for the template again: a server that fails now leaves no cache to fall on.
    TestHome freshHome;
    pack.server().setHttp500(true);
    screen->reTryClicked();
    EXPECT_EQ(screen->state(), State::Loading);
    ASSERT_TRUE(App::settle(screen));
    EXPECT_EQ(screen->state(), State::Failed);
    EXPECT_TRUE(screen->resourceNames().isEmpty());
}

TEST_F(Preparation, RetryAfterAFailedFetchLoadsTheTemplate)
{
    pack.addTemplate(document(9001));
    ASSERT_TRUE(pack.start());
    pack.server().setHttp500(true);
    App app(pack.apiBase());
    auto *screen = app.open(card(9001));
    ASSERT_EQ(screen->state(), State::Failed);
    pack.server().setHttp500(false);
    screen->reTryClicked();
    ASSERT_TRUE(App::settle(screen));
    EXPECT_EQ(screen->state(), State::Ready);
}

TEST_F(Preparation, OfflineUsesTheCachedTemplateAndWithoutOneShowsTheAlert)
{
    pack.addTemplate(document(9001));
    ASSERT_TRUE(pack.start());
    App app(pack.apiBase());
    ASSERT_EQ(app.open(card(9001))->state(), State::Ready);

    Reachability::setForcedConnection(Reachability::Connection::Unavailable);
    pack.server().setRefuseConnections(true);
    EXPECT_EQ(app.open(card(9001))->state(), State::Ready);

    auto *uncached = app.open(card(1002));
    EXPECT_EQ(uncached->state(), State::Failed);
    ASSERT_NE(app.navigation.alert(), nullptr);
    EXPECT_TRUE(app.navigation.alert()->message().endsWith(QStringLiteral(" is unable to connect with internet")));
    EXPECT_EQ(app.navigation.alert()->actionTitles(), QStringList { QStringLiteral("Ok") });
    EXPECT_TRUE(app.navigation.alert()->trigger(QStringLiteral("Ok")));

    // Retry without a connection only repeats the alert.
    uncached->reTryClicked();
    EXPECT_EQ(uncached->state(), State::Failed);
    EXPECT_NE(app.navigation.alert(), nullptr);
}

TEST_F(Preparation, VideoGoesThroughTheVideoCacheAndIsUsedOfflineOnceCached)
{
    nlohmann::json json = document(9008);
    json["background_json"] = { { "background_image", "story_0.mp4" } };
    json["frame_json"] = { { "frame_image", "abstract_5.jpg" } };
    pack.addTemplate(json);
    ASSERT_TRUE(pack.start());
    App app(pack.apiBase());
    auto *screen = app.open<ShowVideoSample>(card(9008));
    ASSERT_EQ(screen->state(), State::Ready);
    EXPECT_EQ(screen->resourceNames(), QStringList { QStringLiteral("abstract_5.jpg") });
    const QUrl video(screen->contentJson->background_json->background_image.value_or(QString()));
    ASSERT_TRUE(video.isLocalFile());
    EXPECT_TRUE(QFile::exists(video.toLocalFile()));

    Reachability::setForcedConnection(Reachability::Connection::Unavailable);
    pack.server().setRefuseConnections(true);
    auto *offline = app.open<ShowVideoSample>(card(9008));
    ASSERT_EQ(offline->state(), State::Ready);
    EXPECT_EQ(offline->contentJson->background_json->background_image, video.toString());

    offline->editClicked();
    EXPECT_EQ(app.navigation.topIdentifier(), QStringLiteral("EditVideoPortraitMode"));
}

// The texts on the canvas of an editor that has been given its work area.
int textLayers(EditorSession &editor)
{
    editor.setWorkAreaSize(390, 670);
    int texts = 0;
    for (View *view : editor.viewMain->subviews())
        texts += qobject_cast<ResizableView *>(view) != nullptr;
    return texts;
}

TEST_F(Preparation, AStockVideoMakesANewVideoDesignThatReopensWithItsLayers)
{
    ASSERT_TRUE(pack.start());
    App app(pack.apiBase());
    auto *screen
        = static_cast<ShowBGVideoSampleVC *>(app.storyboard.instantiate(QStringLiteral("ShowBGVideoSampleVC")));
    screen->isCreateOwn = true;
    screen->resultJson = Mapper::map<Json>(nlohmann::ordered_json { { "width", 540.0 }, { "height", 960.0 },
        { "video_file", (pack.contentBase() + QStringLiteral("video/story_0.mp4")).toStdString() } });
    app.navigation.push(screen, false);
    ASSERT_TRUE(App::settle(screen));
    ASSERT_EQ(screen->state(), State::Ready);
    screen->editClicked();
    auto *editor = qobject_cast<EditVideoPortraitMode *>(app.navigation.topViewController());
    ASSERT_NE(editor, nullptr);
    EXPECT_TRUE(editor->isCreateOwn);
    EXPECT_EQ(textLayers(*editor), 0);
    ASSERT_TRUE(editor->masterJson->sample_image);
    EXPECT_FALSE(editor->masterJson->sample_image->isEmpty()); // a preview drawn at the load

    editor->addNewText(QStringLiteral("Over the video"), QStringLiteral("Montserrat-Bold"), std::nullopt);
    DesignStore store;
    const QList<SavedDesign> designs = store.savedDesigns();
    ASSERT_EQ(designs.size(), 1);
    EXPECT_TRUE(designs.first().row.is_video);
    ASSERT_TRUE(designs.first().document->text_json);
    EXPECT_EQ(designs.first().document->text_json->size(), 1);
}

TEST_F(Preparation, AStoredVideoDesignOpensAgainInTheVideoEditor)
{
    ASSERT_TRUE(pack.start());
    App app(pack.apiBase());
    nlohmann::json json = document(1001, { text("LobsterTwo-BoldItalic") });
    json["is_Video"] = true;
    DesignStore store;
    const auto row = store.saveDesign(QString::fromStdString(json.dump()), std::nullopt, true);
    auto *screen = static_cast<ShowVideoSample *>(app.storyboard.instantiate(QStringLiteral("ShowVideoSample")));
    screen->reEditJson = readStoredDesign(store.allDesigns().first().jsonString);
    screen->objectId = row;
    app.navigation.push(screen, false);
    ASSERT_EQ(screen->state(), State::Ready);
    screen->editClicked();
    auto *editor = qobject_cast<EditVideoPortraitMode *>(app.navigation.topViewController());
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->reEditJson, screen->reEditJson);
    EXPECT_EQ(editor->objectId, row);
    EXPECT_EQ(textLayers(*editor), 1);
}

TEST_F(Preparation, SavedDesignWithALostFontOpensWithTheDefaultFontAndAReport)
{
    ASSERT_TRUE(pack.start());
    App app(pack.apiBase());
    auto *screen = static_cast<ShowImageSample *>(app.storyboard.instantiate(QStringLiteral("ShowImageSample")));
    screen->reEditJson = Mapper::map<Json>(nlohmann::ordered_json(
        document(1001, { text("QuilletLostForever"), text("LobsterTwo-BoldItalic"), text("DancingScript") })));
    app.navigation.push(screen, false);
    EXPECT_EQ(screen->state(), State::Ready);
    const auto &texts = *screen->reEditJson->text_json;
    EXPECT_FALSE(texts.at(0)->fontName.has_value());
    EXPECT_EQ(texts.at(1)->fontName, QStringLiteral("LobsterTwo-BoldItalic"));
    EXPECT_EQ(texts.at(2)->fontName, QStringLiteral("DancingScript"));
    EXPECT_EQ(nonFatalDomains(), QStringList { QStringLiteral("My Design Font Not Found") });
}

TEST_F(Preparation, FontThatQtCannotLoadFailsStaysUnlistedAndIsFetchedAgainOnRetry)
{
    pack.addAsset("fonts/NamesOnly.ttf", namesOnlyFont(QStringLiteral("QuilletNamesOnly")));
    pack.addTemplate(document(9011, { text("QuilletNamesOnly", "fonts/NamesOnly.ttf") }));
    ASSERT_TRUE(pack.start());
    App app(pack.apiBase());
    auto *screen = app.open(card(9011));
    EXPECT_EQ(screen->state(), State::Failed);
    EXPECT_EQ(screen->fontDownloads(), 1);
    EXPECT_FALSE(FontList::containsFontName(*FontList::read(), QStringLiteral("QuilletNamesOnly")));
    EXPECT_FALSE(QFile::exists(QDir(AppPaths::documents()).filePath(QStringLiteral("NamesOnly.ttf"))));
    EXPECT_EQ(nonFatalDomains(), QStringList { QStringLiteral("Font Path Not Found") });

    screen->reTryClicked();
    ASSERT_TRUE(App::settle(screen));
    EXPECT_EQ(screen->state(), State::Failed);
    EXPECT_EQ(screen->fontDownloads(), 1) << "the font is asked for again";
}

TEST_F(Preparation, FontFileNamesWithQueryCharactersAreEncodedAndFetched)
{
    pack.addAsset("fonts/Quill #1 [50%].ttf", packFont("Cabin-Regular.otf"));
    pack.addTemplate(document(9012, { text("QuilletOddFace", "any/Quill #1 [50%].TTF") }));
    ASSERT_TRUE(pack.start());
    App app(pack.apiBase());
    auto *screen = app.open(card(9012));
    ASSERT_EQ(screen->state(), State::Ready);
    EXPECT_EQ(screen->contentJson->text_json->at(0)->fontName, QStringLiteral("Cabin-Regular"));
    EXPECT_TRUE(QFile::exists(QDir(AppPaths::documents()).filePath(QStringLiteral("Quill #1 [50%].ttf"))));
}

TEST_F(Preparation, EditorLoadsPicturesTheCacheHasLostByAddressWithTheIndicator)
{
    nlohmann::json json = document(9013, { text("LobsterTwo-BoldItalic") });
    json["text_json"][0]["texture_image"] = "{base}resource/pattern_0.png";
    json["frame_json"] = { { "frame_image", "abstract_2.jpg" } };
    json["background_json"] = { { "texture_image", "{base}resource/pattern_1.png" } };
    json["image_sticker_json"] = { { { "image_sticker_image", "abstract_3.jpg" }, { "xPos", 100 }, { "yPos", 100 },
        { "width", 400 }, { "height", 400 }, { "index", 1 } } };
    pack.addTemplate(json);
    ASSERT_TRUE(pack.start());
    App app(pack.apiBase());
    auto *screen = app.open(card(9013));
    ASSERT_EQ(screen->state(), State::Ready);

    // Nothing of the preload is left, in memory or on disk.
    ImageCache::shared().clearMemory();
    ASSERT_TRUE(QDir(AppPaths::database(QStringLiteral("ImageCache"))).removeRecursively());
    screen->editClicked();
    auto *editor = qobject_cast<EditorSession *>(app.navigation.topViewController());
    ASSERT_NE(editor, nullptr);
    editor->setWorkAreaSize(390, 700);
    EXPECT_TRUE(pictureOnItsWay(editor->viewMain));
    EXPECT_TRUE(editor->fgImageView->image().isNull());
    // The indicator is for the screen only: an export leaves it out.
    const QImage exported = CanvasRenderer::renderImage(*editor->viewMain, QSize(36, 64));
    EXPECT_FALSE(exported.isNull());

    ASSERT_TRUE(QTest::qWaitFor([editor] { return !pictureOnItsWay(editor->viewMain); }, 15000));
    EXPECT_FALSE(editor->fgImageView->image().isNull());
    EXPECT_FALSE(editor->background().bgPatternImage.isNull());
    const QList<QImage> pictures = picturesOf(editor->viewMain);
    EXPECT_GE(
        std::count_if(pictures.cbegin(), pictures.cend(), [](const QImage &picture) { return !picture.isNull(); }), 3)
        << "frame, slot and the text's pattern";
}

TEST_F(Preparation, CachedTemplateInAFreshStartFindsEveryPictureUnderTheKeyOfThePreload)
{
    nlohmann::json json = document(9014, nullptr, { sticker("abstract_1.jpg") });
    json["frame_json"] = { { "frame_image", "abstract_2.jpg" } };
    pack.addTemplate(json);
    ASSERT_TRUE(pack.start());
    App app(pack.apiBase());
    ASSERT_EQ(app.open(card(9014))->state(), State::Ready);

    // A new start: the prefix comes from the server in use, memory is empty, the server has gone.
    PrefixUrl::set(PrefixUrl::forServer(QUrl(QString::fromStdString(pack.server().baseUrl()))));
    ImageCache::shared().clearMemory();
    pack.server().setRefuseConnections(true);
    const int loads = ImageCache::shared().networkLoads();
    auto *screen = app.open(card(9014));
    ASSERT_EQ(screen->state(), State::Ready);
    screen->editClicked();
    auto *editor = qobject_cast<EditorSession *>(app.navigation.topViewController());
    ASSERT_NE(editor, nullptr);
    editor->setWorkAreaSize(390, 700);
    EXPECT_FALSE(pictureOnItsWay(editor->viewMain));
    EXPECT_FALSE(editor->fgImageView->image().isNull());
    EXPECT_EQ(ImageCache::shared().networkLoads(), loads);
}

} // namespace
