#include "apppaths.h"
#include "assetimageprovider.h"
#include "filmstrip.h"
#include "storyboard.h"
#include "testhome.h"
#include "testmedia.h"
#include "videoeditorcontroller.h"
#include "videoeditorcontrollerdelegate.h"
#include "videoscreens.h"

#include <QFile>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// What the presenting editor would be told.
struct Presenter : VideoEditorControllerDelegate
{
    void videoEditorControllerDidSaveEditedVideoToPath(VideoEditorController *, const QString &path) override
    {
        saved = path;
    }
    void videoEditorControllerDidFailWithError(VideoEditorController *, const QString &error) override
    {
        failed = error;
    }
    void videoEditorControllerDidCancel(VideoEditorController *) override { ++cancelled; }

    QString saved;
    QString failed;
    int cancelled = 0;
};

class TrimVideo : public ::testing::Test
{
protected:
    TrimVideo()
    {
        movie = media.movie(QStringLiteral("own.mp4"), QStringLiteral("testsrc=size=320x240:rate=25"), 10.0, true);
        VideoScreens::registerScreens(storyboard);
        trimmer.reset(
            static_cast<VideoEditorController *>(storyboard.instantiate(QStringLiteral("VideoEditorController"))));
        trimmer->delegate = &presenter;
    }

    TestHome home;
    TestMedia media { home.filePath(QStringLiteral("media")) };
    QString movie;
    Storyboard storyboard;
    std::unique_ptr<VideoEditorController> trimmer;
    Presenter presenter;
};

} // namespace

TEST_F(TrimVideo, TheScreenOpensOnTheWholeMovieUpToItsMaximum)
{
    EXPECT_EQ(trimmer->title(), QStringLiteral("Trim Video"));
    EXPECT_FALSE(trimmer->canSave());
    trimmer->setVideoPath(movie);
    EXPECT_NEAR(trimmer->duration(), 10.0, 0.05);
    EXPECT_EQ(trimmer->startTime(), 0.0);
    EXPECT_EQ(trimmer->endTime(), trimmer->duration());
    EXPECT_TRUE(trimmer->canSave());

    // The pager of new video designs allows 25 s; a shorter limit shortens the part at once.
    trimmer->setVideoMaximumDuration(4.0);
    EXPECT_EQ(trimmer->endTime(), 4.0);
    EXPECT_EQ(trimmer->lengthText(), QStringLiteral("4.0 s"));
}

// The handles keep the part between one second and the maximum, inside the movie; the play head stays
// between them.
TEST_F(TrimVideo, TheHandlesKeepThePartBetweenOneSecondAndTheMaximum)
{
    trimmer->setVideoPath(movie);
    trimmer->setVideoMaximumDuration(5.0);
    trimmer->moveEndHandle(9.0);
    EXPECT_EQ(trimmer->endTime(), 5.0);
    trimmer->moveStartHandle(3.0);
    trimmer->moveEndHandle(9.5);
    EXPECT_EQ(trimmer->startTime(), 3.0);
    EXPECT_EQ(trimmer->endTime(), 8.0);
    trimmer->moveStartHandle(7.8);
    EXPECT_EQ(trimmer->startTime(), 7.0);
    trimmer->moveStartHandle(-2.0);
    EXPECT_EQ(trimmer->startTime(), 3.0);
    trimmer->moveEndHandle(30.0);
    EXPECT_EQ(trimmer->endTime(), 8.0);
    trimmer->moveEndHandle(0.5);
    EXPECT_EQ(trimmer->endTime(), 4.0);
    EXPECT_EQ(trimmer->playheadTime(), 4.0);
    trimmer->seek(9.0);
    EXPECT_EQ(trimmer->playheadTime(), 4.0);
    trimmer->seek(3.5);
    EXPECT_EQ(trimmer->playheadTime(), 3.5);
}

// Save cuts the part into the temporary folder and hands the file to the screen below.
TEST_F(TrimVideo, SaveHandsTheCutToThePresenter)
{
    trimmer->setVideoPath(movie);
    trimmer->moveEndHandle(7.5);
    trimmer->moveStartHandle(2.0);
    trimmer->save();
    EXPECT_TRUE(trimmer->isSaving());
    EXPECT_FALSE(trimmer->canSave());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !presenter.saved.isEmpty() || !presenter.failed.isEmpty(); }, 60000));
    ASSERT_TRUE(presenter.failed.isEmpty()) << qPrintable(presenter.failed);
    EXPECT_FALSE(trimmer->isSaving());
    EXPECT_EQ(trimmer->progress(), 1.0);
    EXPECT_EQ(QFileInfo(presenter.saved).absolutePath(), QDir(AppPaths::tmp()).absolutePath());
    EXPECT_NEAR(streamsOf(presenter.saved, QStringLiteral("video"))
                    .front()
                    .value(QStringLiteral("duration"))
                    .toString()
                    .toDouble(),
        5.5, 0.041);
}

// A cut that fails is shown and told; the screen stays. Cancel is told too, also while saving, and the
// cut then stops without leaving its file.
TEST_F(TrimVideo, FailureAndCancelAreTold)
{
    trimmer->setVideoPath(movie);
    QFile::remove(movie);
    trimmer->save();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !presenter.failed.isEmpty(); }, 30000));
    EXPECT_FALSE(trimmer->errorString().isEmpty());
    EXPECT_TRUE(presenter.saved.isEmpty());

    trimmer->cancel();
    EXPECT_EQ(presenter.cancelled, 1);

    const QString other = media.movie(QStringLiteral("long.mp4"), QStringLiteral("testsrc=size=640x480:rate=25"), 20.0);
    VideoEditorController second;
    second.delegate = &presenter;
    second.setVideoPath(other);
    second.save();
    second.cancel();
    EXPECT_EQ(presenter.cancelled, 2);
    EXPECT_FALSE(second.isSaving());
    QTest::qWait(500);
    EXPECT_TRUE(presenter.saved.isEmpty());
    const QStringList left = QDir(AppPaths::tmp()).entryList(QDir::Files);
    EXPECT_TRUE(QTest::qWaitFor([&] { return QDir(AppPaths::tmp()).entryList(QDir::Files).isEmpty(); }, 10000))
        << qPrintable(left.join(u' '));
}

TEST_F(TrimVideo, OnlyMoviesCanBeTrimmed)
{
    EXPECT_TRUE(VideoEditorController::canEditVideoAtPath(movie));
    EXPECT_FALSE(VideoEditorController::canEditVideoAtPath(media.music(QStringLiteral("song.m4a"), 1.0)));
    EXPECT_FALSE(VideoEditorController::canEditVideoAtPath(home.filePath(QStringLiteral("none.mp4"))));
    trimmer->setVideoPath(home.filePath(QStringLiteral("none.mp4")));
    EXPECT_FALSE(trimmer->canSave());
    EXPECT_FALSE(trimmer->errorString().isEmpty());
}

// The filmstrip's pictures are decoded away from the GUI thread, spread over the movie: the first
// slot shows an early picture, the last a late one.
TEST_F(TrimVideo, TheFilmstripShowsPicturesSpreadOverTheMovie)
{
    trimmer->setVideoPath(movie);
    Filmstrip *strip = trimmer->filmstrip();
    ASSERT_EQ(strip->count(), 10);
    ASSERT_TRUE(QTest::qWaitFor([&] { return strip->isFinished(); }, 30000));
    for (int i = 0; i < strip->count(); ++i) {
        ASSERT_FALSE(strip->image(i).isNull()) << i;
        EXPECT_EQ(strip->image(i).height(), 120);
        EXPECT_EQ(strip->image(i).width(), 160);
    }
    EXPECT_NE(strip->image(0), strip->image(9));
}

// The screen's view: its buttons follow the controller, and Save and Cancel reach it.
TEST_F(TrimVideo, TheViewFollowsTheController)
{
    trimmer->setVideoPath(movie);
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    engine.addImageProvider(QStringLiteral("assets"), new AssetImageProvider());
    QQmlComponent component(&engine, trimmer->viewUrl());
    std::unique_ptr<QObject> view(component.createWithInitialProperties(
        { { QStringLiteral("vc"), QVariant::fromValue(static_cast<QObject *>(trimmer.get())) },
            { QStringLiteral("width"), 390 }, { QStringLiteral("height"), 844 } }));
    ASSERT_TRUE(view) << component.errorString().toStdString();
    auto child = [&view](const char *name) { return view->findChild<QObject *>(QString::fromLatin1(name)); };
    ASSERT_TRUE(child("saveButton") && child("cancelButton") && child("filmstrip") && child("startHandle"));
    EXPECT_TRUE(child("saveButton")->property("enabled").toBool());
    EXPECT_EQ(trimmer->videoOutput(), child("videoOutput"));
    EXPECT_EQ(child("lengthLabel")->property("text").toString(), QStringLiteral("10.0 s"));

    QMetaObject::invokeMethod(child("cancelButton"), "clicked");
    EXPECT_EQ(presenter.cancelled, 1);
    QMetaObject::invokeMethod(child("saveButton"), "clicked");
    EXPECT_TRUE(child("savingOverlay")->property("visible").toBool());
    EXPECT_FALSE(child("saveButton")->property("enabled").toBool());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !presenter.saved.isEmpty(); }, 60000));
    EXPECT_FALSE(child("savingOverlay")->property("visible").toBool());
}
