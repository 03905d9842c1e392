#include "audiooutputs.h"
#include "designstore.h"
#include "editimageportraitmode.h"
#include "editorscreens.h"
#include "editvideoportraitmode.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "storeddesign.h"
#include "storyboard.h"
#include "testhome.h"
#include "testmedia.h"
#include "videobackground.h"
#include "videoeditorcontroller.h"
#include "videoscreens.h"
#include "videoview.h"

#include <QFileInfo>
#include <QMediaPlayer>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// A video editor on a 360 by 640 canvas in a fresh home, on real movies and music made for the test. The
// machine has no sound device, so the players get an output anyway, as a phone would give them.
class VideoEditorTest : public ::testing::Test
{
protected:
    VideoEditorTest()
    {
        AudioOutputs::setAttachWithoutDevice(true);
        prepare(editor);
    }
    ~VideoEditorTest() override { AudioOutputs::setAttachWithoutDevice(false); }

    void prepare(EditorSession &session)
    {
        session.setDesignStore(&store);
        session.setCanvasArea(QRectF(0, 0, 360, 640));
        session.screenSize = QSizeF(360, 640);
    }

    QString movie(const QString &name, double seconds = 2)
    {
        return media.movie(name, QStringLiteral("testsrc=size=160x284:rate=25"), seconds, true);
    }

    // A video template as the preview screen hands it over: its movie already a local file.
    std::shared_ptr<Json> videoTemplate(const QString &moviePath)
    {
        nlohmann::ordered_json json { { "width", 540.0 }, { "height", 960.0 }, { "is_Video", true } };
        if (!moviePath.isEmpty())
            json["background_json"]
                = { { "background_image", QUrl::fromLocalFile(moviePath).toString().toStdString() } };
        return Mapper::map<Json>(json);
    }

    static bool waitFor(const std::function<bool()> &condition, int ms = 15000)
    {
        return QTest::qWaitFor(condition, ms);
    }

    TestHome home;
    TestMedia media { home.filePath(QStringLiteral("media")) };
    DesignStore store;
    EditVideoPortraitMode editor;
};

QString documentsOf(const TestHome &home)
{
    return QFileInfo(home.filePath(QStringLiteral("Documents"))).absoluteFilePath();
}

} // namespace

// The storyboard makes the five editors on one view; they differ in their movie and in outlined slots only.
TEST(EditorScreens, TheFiveEditorsDifferInTheirMovieAndOutlinedSlots)
{
    Storyboard storyboard;
    EditorScreens::registerScreens(storyboard);
    const struct
    {
        const char *identifier;
        bool video;
        bool outlinedSlots;
    } editors[] = { { "EditImagePortraitMode", false, true }, { "MoreEditImageVC", false, false },
        { "HighLightEditor", false, true }, { "EditVideoPortraitMode", true, false },
        { "MoreEditVideoVC", true, false } };
    for (const auto &expected : editors) {
        const QString identifier = QString::fromLatin1(expected.identifier);
        std::unique_ptr<ViewController> screen(storyboard.instantiate(identifier));
        auto *editor = qobject_cast<EditorSession *>(screen.get());
        ASSERT_NE(editor, nullptr) << expected.identifier;
        EXPECT_EQ(editor->identifier(), identifier);
        EXPECT_EQ(editor->viewUrl(), QUrl(QStringLiteral("qrc:/Quillet/Editor/EditorView.qml")));
        EXPECT_EQ(editor->hasSoundButton(), expected.video) << expected.identifier;
        EXPECT_EQ(editor->videoView() != nullptr, expected.video) << expected.identifier;
        EXPECT_EQ(editor->hasOutlinedSlots(), expected.outlinedSlots) << expected.identifier;
    }
}

TEST_F(VideoEditorTest, TheSoundButtonIsOnlyInTheVideoEditorsAndEnabledOnlyWithAVideo)
{
    EditImagePortraitMode imageEditor;
    EXPECT_FALSE(imageEditor.hasSoundButton());
    EXPECT_EQ(imageEditor.videoView(), nullptr);

    ASSERT_TRUE(editor.loadTemplate(videoTemplate(QString())));
    EXPECT_TRUE(editor.hasSoundButton());
    EXPECT_FALSE(editor.soundEnabled());
    editor.soundPressed();
    EXPECT_FALSE(editor.soundMuted());

    // A movie in place of none: cached into Documents, written into the design, and the button wakes up.
    QSignalSpy sound(&editor, &EditorSession::soundChanged);
    QSignalSpy replaced(editor.video(), &VideoBackground::replaceFinished);
    editor.video()->replaceWithFile(movie(QStringLiteral("picked.mp4")));
    ASSERT_TRUE(waitFor([&] { return !replaced.isEmpty(); }));
    EXPECT_TRUE(replaced.first().first().toBool());
    EXPECT_TRUE(editor.soundEnabled());
    EXPECT_FALSE(sound.isEmpty());
    const QUrl played = editor.videoView()->url().value_or(QUrl());
    EXPECT_EQ(QFileInfo(played.toLocalFile()).absolutePath(), documentsOf(home));
    EXPECT_EQ(editor.masterJson->background_json->background_image, played.toString());
    editor.soundPressed();
    EXPECT_TRUE(editor.soundMuted());
    EXPECT_TRUE(editor.videoView()->isPlayerMuted());
}

TEST_F(VideoEditorTest, WithMusicThePlayerStaysMutedAndTheButtonOnlySetsTheMusicsVolume)
{
    ASSERT_TRUE(editor.loadTemplate(videoTemplate(movie(QStringLiteral("movie.mp4")))));
    VideoView *view = editor.videoView();
    ASSERT_TRUE(editor.soundEnabled());
    EXPECT_FALSE(view->isPlayerMuted());

    const QUrl music = QUrl::fromLocalFile(media.music(QStringLiteral("music.m4a"), 1.5));
    editor.video()->audioLibraryDidPick(music);
    EXPECT_TRUE(view->isPlayerMuted());
    ASSERT_TRUE(editor.masterJson->audio_json);
    EXPECT_EQ(editor.masterJson->audio_json->audio_url, music.toString(QUrl::FullyEncoded));
    EXPECT_TRUE(editor.hasChanges()); // stored at once

    editor.soundPressed();
    EXPECT_TRUE(editor.soundMuted());
    EXPECT_TRUE(view->isPlayerMuted());
    EXPECT_EQ(view->audioVolume(), 0.0F);
    editor.soundPressed();
    EXPECT_FALSE(editor.soundMuted());
    EXPECT_TRUE(view->isPlayerMuted());
    EXPECT_EQ(view->audioVolume(), 1.0F);

    // The video's own sound back: the music stops and leaves the document.
    editor.video()->audioLibraryDidPick(std::nullopt);
    EXPECT_FALSE(view->isPlayerMuted());
    EXPECT_EQ(view->audioPlayer(), nullptr);
    EXPECT_EQ(editor.masterJson->audio_json, nullptr);
}

TEST_F(VideoEditorTest, ADesignWithMusicStoredAndReopenedPlaysTheSameMovieAndMusic)
{
    const QString moviePath = movie(QStringLiteral("movie.mp4"));
    ASSERT_TRUE(editor.loadTemplate(videoTemplate(moviePath)));
    const QUrl music = QUrl::fromLocalFile(media.music(QStringLiteral("my music.m4a"), 1.5));
    editor.video()->audioLibraryDidPick(music);

    const QList<SavePhoto> rows = store.allDesigns();
    ASSERT_EQ(rows.size(), 1);
    EXPECT_TRUE(rows.first().is_video);
    EditVideoPortraitMode reopened;
    prepare(reopened);
    ASSERT_TRUE(reopened.loadReEdit(readStoredDesign(rows.first().jsonString)));
    VideoView *view = reopened.videoView();
    EXPECT_EQ(view->url(), QUrl::fromLocalFile(moviePath));
    EXPECT_EQ(view->audioURL, music);
    ASSERT_NE(view->audioPlayer(), nullptr);
    EXPECT_EQ(view->audioPlayer()->source(), music);
    EXPECT_TRUE(view->isPlayerMuted());
    EXPECT_TRUE(waitFor([&] { return view->audioPlayer()->position() > 200; }));
}

TEST_F(VideoEditorTest, APickedMovieGoesThroughTheTrimmerAndACancelLeavesTheEditorAsItWas)
{
    Storyboard storyboard;
    VideoScreens::registerScreens(storyboard);
    NavigationController navigation;
    auto *screen = new EditVideoPortraitMode();
    screen->setStoryboard(&storyboard);
    prepare(*screen);
    const QString first = movie(QStringLiteral("first.mp4"));
    screen->contentJson = videoTemplate(first);
    navigation.setRoot(screen);
    ASSERT_EQ(screen->videoView()->url(), QUrl::fromLocalFile(first));

    const QString picked = movie(QStringLiteral("picked.mp4"), 4);
    screen->videoPicked(QUrl::fromLocalFile(picked));
    auto *trimmer = qobject_cast<VideoEditorController *>(navigation.topViewController());
    ASSERT_NE(trimmer, nullptr);
    EXPECT_EQ(trimmer->title(), QStringLiteral("Trim Video"));
    EXPECT_EQ(trimmer->videoPath(), picked);
    trimmer->cancel();
    EXPECT_EQ(navigation.topViewController(), screen);
    EXPECT_EQ(screen->videoView()->url(), QUrl::fromLocalFile(first));

    screen->videoPicked(QUrl::fromLocalFile(picked));
    trimmer = qobject_cast<VideoEditorController *>(navigation.topViewController());
    ASSERT_NE(trimmer, nullptr);
    trimmer->moveStartHandle(1.0);
    trimmer->moveEndHandle(3.0);
    QSignalSpy replaced(screen->video(), &VideoBackground::replaceFinished);
    trimmer->save();
    ASSERT_TRUE(waitFor([&] { return !replaced.isEmpty(); }));
    EXPECT_TRUE(replaced.first().first().toBool());
    EXPECT_EQ(navigation.topViewController(), screen);
    const QString played = screen->videoView()->url().value_or(QUrl()).toLocalFile();
    EXPECT_EQ(QFileInfo(played).absolutePath(), documentsOf(home));
    EXPECT_NEAR(probe(played)
                    .value(QStringLiteral("format"))
                    .toObject()
                    .value(QStringLiteral("duration"))
                    .toString()
                    .toDouble(),
        2.0, 0.1);
    EXPECT_EQ(screen->masterJson->background_json->background_image, QUrl::fromLocalFile(played).toString());
}
