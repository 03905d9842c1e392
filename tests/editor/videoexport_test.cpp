#include "gifreader.h"
#include "testhome.h"
#include "testmedia.h"

#include "alertmodel.h"
#include "apppaths.h"
#include "designsscreens.h"
#include "designstore.h"
#include "editorscreens.h"
#include "editvideoportraitmode.h"
#include "exportview.h"
#include "localnotificationcenter.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "savevideovc.h"
#include "storyboard.h"
#include "videoview.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// A video editor made by the storyboard on a navigation stack without screens, as the application has
// it, storing into the home's store and copying into an album folder below the home.
struct ExportFixture
{
    ExportFixture()
    {
        EditorScreens::registerScreens(storyboard, PhotoAlbum::atFolder(albumFolder()));
        DesignsScreens::registerScreens(storyboard);
        editor = qobject_cast<EditVideoPortraitMode *>(storyboard.instantiate(QStringLiteral("EditVideoPortraitMode")));
        editor->setDesignStore(&store);
        editor->setCanvasArea(QRectF(0, 0, 360, 640));
        editor->exportFlow().setNoticeDelay(std::chrono::milliseconds(0));
        QObject::connect(&editor->exportFlow(), &VideoExportFlow::handedOver, [this](SaveVideoVC *screen) {
            screen->setNotificationCenter(&notices);
            screen->setApplicationActive([this] { return active; });
            QObject::connect(screen, &SaveVideoVC::progressPanelChanged, [this, screen] {
                if (PanelModel *panel = screen->progressPanel()) {
                    panelTitles.append(panel->text());
                    if (!panel->detailText().isEmpty())
                        details.append(panel->detailText());
                    QObject::connect(
                        panel, &PanelModel::detailTextChanged, [this, panel] { details.append(panel->detailText()); });
                }
            });
        });
    }

    [[nodiscard]] QString albumFolder() const { return home.filePath(QStringLiteral("album")); }

    /** Opens a video template whose background is `video` (none when empty), with one text over it. */
    void open(const QString &video, QSizeF size = QSizeF(160, 90))
    {
        const QString source = video.isEmpty() ? QString() : QUrl::fromLocalFile(video).toString();
        editor->contentJson = Mapper::map<Json>(QStringLiteral(R"({"width": %1, "height": %2, "is_Video": true,
            "background_json": {"background_image": "%3"},
            "text_json": [{"text": "Hello", "xPos": 5, "yPos": 5, "size": %4, "color": "00FF00"}]})")
                                                    .arg(size.width())
                                                    .arg(size.height())
                                                    .arg(source)
                                                    .arg(std::max(20.0, size.height() / 16)));
        navigation.setRoot(editor);
        if (!video.isEmpty())
            editor->videoView()->setVideo(source);
    }

    /** The choice answered, then the whole export waited for; the result screen. */
    SaveVideoVC *exportAndWait(ExportMediaType type)
    {
        panelTitles.clear();
        details.clear();
        SaveVideoVC *screen = nullptr;
        bool finished = false;
        const auto connection
            = QObject::connect(&editor->exportFlow(), &VideoExportFlow::handedOver, [&](SaveVideoVC *made) {
                  screen = made;
                  QObject::connect(made, &SaveVideoVC::exportFinished, [&finished] { finished = true; });
              });
        editor->exportFlow().exportAs(type);
        EXPECT_TRUE(QTest::qWaitFor([&] { return finished; }, 120000));
        QObject::disconnect(connection);
        return screen;
    }

    [[nodiscard]] QList<SavedDesign> designs() { return store.savedDesigns(); }

    TestHome home;
    TestMedia media { home.filePath(QStringLiteral("media")) };
    DesignStore store;
    Storyboard storyboard;
    NavigationController navigation;
    LocalNotificationCenter notices;
    bool active = true;
    EditVideoPortraitMode *editor = nullptr; // owned by the navigation stack
    QStringList panelTitles;
    QStringList details;
};

const QString blue = QStringLiteral("color=c=0x0000ff:s=160x90:r=30");

} // namespace

TEST(VideoExportRenderSize, DocumentSizeWinsElseTheCanvasGets1080OnItsLongerSide)
{
    Json document;
    EXPECT_EQ(VideoExportFlow::renderSize(document, QRectF(10, 20, 600, 300)), QSizeF(1080, 540));
    EXPECT_EQ(VideoExportFlow::renderSize(document, QRectF(0, 0, 300, 600)), QSizeF(540, 1080));
    EXPECT_EQ(VideoExportFlow::renderSize(document, QRectF(0, 0, 500, 500)), QSizeF(1080, 1080));
    document.width = 720.5;
    EXPECT_EQ(VideoExportFlow::renderSize(document, QRectF(0, 0, 600, 300)), QSizeF(1080, 540));
    document.height = 1280;
    EXPECT_EQ(VideoExportFlow::renderSize(document, QRectF(0, 0, 600, 300)), QSizeF(720.5, 1280));
}

TEST(VideoExportChoice, SavePressedAsksMovieOrGifAndTheAnswerHandsOverBehindAWaitNotice)
{
    ExportFixture f;
    f.open(QString());
    f.editor->exportFlow().setNoticeDelay(std::chrono::milliseconds(50));
    f.editor->savePressed();
    auto *choice = qobject_cast<ExportView *>(f.navigation.topViewController());
    ASSERT_NE(choice, nullptr);
    EXPECT_EQ(choice->titleText, QStringLiteral("One last step.\nCreate your exclusive Video OR GIF"));
    EXPECT_EQ(choice->itemText1, QStringLiteral("VIDEO"));
    EXPECT_EQ(choice->img1, QStringLiteral("export_video"));
    EXPECT_EQ(choice->itemText2, QStringLiteral("GIF"));
    EXPECT_EQ(choice->img2, QStringLiteral("export_gif"));

    QSignalSpy handedOver(&f.editor->exportFlow(), &VideoExportFlow::handedOver);
    choice->btnItem2Clicked();
    EXPECT_EQ(f.navigation.topViewController(), f.editor);
    ASSERT_TRUE(f.navigation.panel());
    EXPECT_EQ(f.navigation.panel()->text(), QStringLiteral("Please Wait..."));
    EXPECT_TRUE(f.navigation.panel()->isAccent());
    ASSERT_TRUE(handedOver.wait(10000));
    EXPECT_EQ(f.navigation.panel(), nullptr);
    EXPECT_EQ(f.editor->exportFlow().mediaType(), ExportMediaType::GIF);
    auto *screen = qobject_cast<SaveVideoVC *>(f.navigation.topViewController());
    ASSERT_NE(screen, nullptr);
    EXPECT_EQ(screen->title(), QStringLiteral("Success"));
    EXPECT_EQ(screen->mediaType, ExportMediaType::GIF);
    QSignalSpy finished(screen, &SaveVideoVC::exportFinished);
    EXPECT_TRUE(finished.wait(30000));
}

TEST(VideoExportSnapshot, DrawnAtTheRenderSizeWithoutChromeAndClearWhereTheVideoShows)
{
    ExportFixture f;
    f.open(QString(), QSizeF(1080, 1920));
    ASSERT_EQ(f.editor->layerViews().size(), 1);
    const QImage overlay = f.editor->exportFlow().snapshot(QSizeF(1080, 1920));
    ASSERT_EQ(overlay.size(), QSize(1080, 1920));
    EXPECT_TRUE(overlay.hasAlphaChannel());
    EXPECT_EQ(qAlpha(overlay.pixel(900, 1700)), 0);
    // The green text is drawn somewhere near its place, sharp at the render size.
    int green = 0;
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 600; ++x)
            green += qGreen(overlay.pixel(x, y)) > 200 && qRed(overlay.pixel(x, y)) < 60 ? 1 : 0;
    }
    EXPECT_GT(green, 100);
}

TEST(VideoExportWithoutVideo, GoesStraightToTheResultWithTheSnapshot)
{
    ExportFixture f;
    f.open(QString());
    SaveVideoVC *screen = f.exportAndWait(ExportMediaType::Video);
    ASSERT_NE(screen, nullptr);
    EXPECT_TRUE(f.panelTitles.isEmpty());
    EXPECT_EQ(screen->picture(), screen->overlayImage);
    EXPECT_FALSE(screen->playButtonVisible());
    EXPECT_FALSE(screen->videoURL());
    EXPECT_FALSE(screen->gifURL());
    EXPECT_TRUE(QDir(f.albumFolder()).entryList(QDir::Files).isEmpty());
    const QList<SavedDesign> designs = f.designs();
    ASSERT_EQ(designs.size(), 1);
    EXPECT_TRUE(designs.first().row.is_video);
    EXPECT_FALSE(designs.first().document->sample_video);
    const QString preview = QDir(AppPaths::documents()).filePath(designs.first().document->sample_image.value_or(""));
    EXPECT_EQ(QImage(preview).size(), screen->overlayImage.size());
}

TEST(VideoExportMovie, StoresTheDesignCopiesIntoTheAlbumAndASecondExportOverwritesTheRow)
{
    ExportFixture f;
    const QString video = f.media.movie(QStringLiteral("v.mp4"), blue, 2.0, true);
    f.open(video);
    f.editor->masterJson->changed_text_json = f.editor->masterJson->text_json;

    SaveVideoVC *first = f.exportAndWait(ExportMediaType::Video);
    ASSERT_NE(first, nullptr);
    ASSERT_TRUE(first->videoURL());
    EXPECT_EQ(f.panelTitles, QStringList({ QStringLiteral("Exporting...") }));
    static const QRegularExpression percent(QStringLiteral("^\\d{1,3}% Complete$"));
    for (const QString &detail : std::as_const(f.details))
        EXPECT_TRUE(percent.match(detail).hasMatch()) << detail.toStdString();
    EXPECT_EQ(f.details.value(0), QStringLiteral("0% Complete"));
    EXPECT_EQ(first->progressPanel(), nullptr);
    EXPECT_TRUE(first->playButtonVisible());
    EXPECT_EQ(streamsOf(first->videoURL()->toLocalFile(), QStringLiteral("audio")).size(), 1U);
    // The thumbnail is the movie's picture at 1 s: blue under the green text.
    EXPECT_EQ(first->picture().size(), QSize(160, 90));
    EXPECT_TRUE(near(first->picture().pixelColor(150, 80), QColor(0, 0, 255)));
    // The album holds the same movie, and it was there when the screen said so.
    ASSERT_FALSE(first->albumFile().isEmpty());
    EXPECT_EQ(QFileInfo(first->albumFile()).size(), QFileInfo(first->videoURL()->toLocalFile()).size());
    EXPECT_TRUE(f.notices.pendingRequests().isEmpty()); // in front: no notice

    QList<SavedDesign> designs = f.designs();
    ASSERT_EQ(designs.size(), 1);
    const std::shared_ptr<Json> stored = designs.first().document;
    EXPECT_TRUE(designs.first().row.is_video);
    EXPECT_FALSE(stored->changed_text_json);
    EXPECT_FALSE(stored->changed_background_json);
    EXPECT_EQ(stored->sample_video, first->videoURL()->toString());
    ASSERT_TRUE(stored->background_json);
    EXPECT_EQ(stored->background_json->background_image, QUrl::fromLocalFile(video).toString());
    EXPECT_TRUE(QFileInfo::exists(QDir(AppPaths::documents()).filePath(stored->sample_image.value_or(""))));
    EXPECT_EQ(f.editor->objectId, designs.first().row.objectID);

    // Back in the editor and again, from the background this time: the same row, a notice.
    f.navigation.pop(false);
    f.active = false;
    QTest::qWait(5); // a new file name: the names are milliseconds
    SaveVideoVC *second = f.exportAndWait(ExportMediaType::Video);
    ASSERT_NE(second, nullptr);
    ASSERT_TRUE(second->videoURL());
    designs = f.designs();
    ASSERT_EQ(designs.size(), 1);
    EXPECT_EQ(designs.first().document->sample_video, second->videoURL()->toString());
    const QList<LocalNotificationCenter::Request> pending = f.notices.pendingRequests();
    ASSERT_EQ(pending.size(), 1);
    EXPECT_EQ(pending.first().identifier, QStringLiteral("exportReminder"));
    EXPECT_EQ(pending.first().body, QStringLiteral("Exported your Video successfully."));
    EXPECT_NEAR(QDateTime::currentDateTime().secsTo(pending.first().fireDate), 2, 1);
}

TEST(VideoExportMovie, SoundThatFailsGivesAMutedRetryTitledRetrying)
{
    ExportFixture f;
    const QString video = f.media.movie(QStringLiteral("v.mp4"), blue, 1.0, true);
    const QString music = f.media.music(QStringLiteral("damaged.m4a"), 2.0);
    TestMedia::scrambleMediaData(music);
    f.open(video);
    f.editor->videoView()->audioURL = QUrl::fromLocalFile(music);

    SaveVideoVC *screen = f.exportAndWait(ExportMediaType::Video);
    ASSERT_NE(screen, nullptr);
    EXPECT_EQ(f.panelTitles, QStringList({ QStringLiteral("Exporting..."), QStringLiteral("Retrying...") }));
    ASSERT_TRUE(screen->videoURL());
    EXPECT_TRUE(streamsOf(screen->videoURL()->toLocalFile(), QStringLiteral("audio")).empty());
    // Only the finished movie is left in Documents; the failed run left nothing behind.
    const QStringList movies = QDir(AppPaths::documents()).entryList({ QStringLiteral("*.mov") }, QDir::Files);
    EXPECT_EQ(movies, QStringList({ screen->videoURL()->fileName() }));
}

TEST(VideoExportGif, SixteenFramesOfTwentyHundredthsLoopingForEverAtMost1024)
{
    ExportFixture f;
    const QString video
        = f.media.movie(QStringLiteral("wide.mp4"), QStringLiteral("testsrc2=s=1920x1080:r=30"), 1.0, false);
    f.open(video, QSizeF(1920, 1080));
    f.active = false;

    SaveVideoVC *screen = f.exportAndWait(ExportMediaType::GIF);
    ASSERT_NE(screen, nullptr);
    EXPECT_EQ(f.panelTitles, QStringList({ QStringLiteral("Exporting..."), QStringLiteral("Just a moment...") }));
    ASSERT_TRUE(screen->gifURL());
    EXPECT_FALSE(screen->videoURL());
    const std::optional<GifContents> gif = readGif(screen->gifURL()->toLocalFile());
    ASSERT_TRUE(gif);
    EXPECT_EQ(gif->size, QSize(1024, 576));
    EXPECT_EQ(gif->frames.size(), 16U);
    EXPECT_EQ(gif->delays, std::vector<int>(16, 20));
    EXPECT_EQ(gif->loopCount, 0);
    // The merged movie stays in Documents next to the GIF; the album holds the GIF as it is.
    EXPECT_EQ(QDir(AppPaths::documents()).entryList({ QStringLiteral("*.mov") }, QDir::Files).size(), 1);
    ASSERT_FALSE(screen->albumFile().isEmpty());
    EXPECT_TRUE(screen->albumFile().endsWith(QLatin1String(".gif")));
    EXPECT_EQ(QFileInfo(screen->albumFile()).size(), QFileInfo(screen->gifURL()->toLocalFile()).size());
    const QList<SavedDesign> designs = f.designs();
    ASSERT_EQ(designs.size(), 1);
    EXPECT_EQ(designs.first().document->sample_video, screen->gifURL()->toString());
    const QList<LocalNotificationCenter::Request> pending = f.notices.pendingRequests();
    ASSERT_EQ(pending.size(), 1);
    EXPECT_EQ(pending.first().body, QStringLiteral("Exported your Gif successfully."));
}

TEST(VideoExportResult, DeleteAsksFirstThenRemovesTheAlbumsNewestAndLeavesTheDesign)
{
    ExportFixture f;
    const QString video = f.media.movie(QStringLiteral("v.mp4"), blue, 1.0, false);
    f.open(video);
    SaveVideoVC *screen = f.exportAndWait(ExportMediaType::Video);
    ASSERT_NE(screen, nullptr);
    const QString albumFile = screen->albumFile();
    ASSERT_TRUE(QFileInfo::exists(albumFile));

    // The review prompts that the export asked for come first.
    while (f.navigation.alert())
        f.navigation.alert()->trigger(f.navigation.alert()->cancelTitle());
    screen->deleteClicked();
    ASSERT_TRUE(f.navigation.alert());
    EXPECT_EQ(f.navigation.alert()->title(), QStringLiteral("Confirm"));
    EXPECT_EQ(f.navigation.alert()->message(), QStringLiteral("Are you sure you want to delete this card"));
    EXPECT_EQ(f.navigation.alert()->actionTitles(), QStringList({ QStringLiteral("NO"), QStringLiteral("DELETE") }));
    f.navigation.alert()->trigger(QStringLiteral("NO"));
    EXPECT_TRUE(QFileInfo::exists(albumFile));

    screen->deleteClicked();
    f.navigation.alert()->trigger(QStringLiteral("DELETE"));
    EXPECT_FALSE(QFileInfo::exists(albumFile));
    EXPECT_TRUE(QFileInfo::exists(screen->videoURL()->toLocalFile()));
    EXPECT_EQ(f.designs().size(), 1);
    EXPECT_EQ(f.navigation.topViewController(), f.editor);
}

TEST(VideoExportResult, TheExportGoesOnWhenTheUserLeavesTheScreen)
{
    ExportFixture f;
    const QString video = f.media.movie(QStringLiteral("v.mp4"), blue, 2.0, true);
    f.open(video);
    // The export under way once its progress shows; it deletes itself after its last step.
    bool started = false;
    bool gone = false;
    QObject::connect(&f.editor->exportFlow(), &VideoExportFlow::handedOver, [&](SaveVideoVC *screen) {
        QObject::connect(screen, &SaveVideoVC::progressPanelChanged, [&, screen] {
            if (started || !screen->videoExport())
                return;
            started = true;
            QObject::connect(screen->videoExport(), &QObject::destroyed, [&gone] { gone = true; });
        });
    });
    f.editor->exportFlow().exportAs(ExportMediaType::Video);
    ASSERT_TRUE(QTest::qWaitFor([&] { return started; }, 10000));
    f.navigation.pop(false);
    ASSERT_TRUE(QTest::qWaitFor([&] { return gone; }, 120000));
    EXPECT_EQ(QDir(f.albumFolder()).entryList({ QStringLiteral("*.mov") }, QDir::Files).size(), 1);
    const QList<SavedDesign> designs = f.designs();
    ASSERT_EQ(designs.size(), 1);
    EXPECT_TRUE(designs.first().document->sample_video);
    EXPECT_EQ(f.editor->objectId, designs.first().row.objectID);
}
