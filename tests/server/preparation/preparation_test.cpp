// Template preparation against the real content server: the road from a card to a document, its
// fonts, its pictures, its failures, and the cache it falls back on.
#include "alertmodel.h"
#include "designstore.h"
#include "editimageportraitmode.h"
#include "editvideoportraitmode.h"
#include "extendedpack.h"
#include "fontlist.h"
#include "imagecache.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "nonfatalreporter.h"
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
    DesignStore store(DesignStore::defaultPath(), stderr);
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
    DesignStore store(DesignStore::defaultPath(), stderr);
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

} // namespace
