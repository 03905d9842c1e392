// The pickers that lead to a video design's movie, against the content server's background videos.
#include "addnewbgvideovc.h"
#include "audiooutputs.h"
#include "bgvideocontentcategorypagervc.h"
#include "bgvideocontentvc.h"
#include "editorscreens.h"
#include "editvideoportraitmode.h"
#include "mapper.h"
#include "pickerfixture.h"
#include "preparationscreens.h"
#include "showbgvideosamplevc.h"
#include "testmedia.h"
#include "videobackground.h"
#include "videoeditorcontroller.h"
#include "videopickerscreens.h"
#include "videoscreens.h"
#include "videoview.h"

#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

using State = CatalogScreen::LoadingState;

// A video editor with a movie of its own at the root, and every screen the pickers open.
class VideoPickers : public ::testing::Test, public PickerFixture<>
{
protected:
    // The video editor, made as the application makes it, replaces the fixture's editor at the root and
    // opens its design once it is given its work area.
    VideoPickers()
    {
        AudioOutputs::setAttachWithoutDevice(true);
        VideoPickerScreens::registerScreens(storyboard, &client);
        PreparationScreens::registerScreens(storyboard, &client, nullptr);
        VideoScreens::registerScreens(storyboard);
        EditorScreens::registerScreens(storyboard);
        videoEditor
            = qobject_cast<EditVideoPortraitMode *>(storyboard.instantiate(QStringLiteral("EditVideoPortraitMode")));
        firstMovie = media.movie(QStringLiteral("first.mp4"), QStringLiteral("testsrc=size=160x284:rate=25"), 2);
        videoEditor->contentJson
            = Mapper::map<Json>(nlohmann::ordered_json { { "width", 540.0 }, { "height", 960.0 }, { "is_Video", true },
                { "background_json",
                    { { "background_image", QUrl::fromLocalFile(firstMovie).toString().toStdString() } } } });
        navigation.setRoot(videoEditor);
        videoEditor->setWorkAreaSize(390, 670);
    }
    ~VideoPickers() override { AudioOutputs::setAttachWithoutDevice(false); }

    BGVideoContentCategoryPagerVC *pager(int vcTag, bool isCreateOwn = false)
    {
        auto *screen = push<BGVideoContentCategoryPagerVC>(
            QStringLiteral("BGVideoContentCategoryPagerVC"), [&](BGVideoContentCategoryPagerVC &p) {
                p.vcTag = vcTag;
                p.isCreateOwn = isCreateOwn;
                if (isCreateOwn)
                    p.createOwnJson
                        = Mapper::map<Json>(nlohmann::ordered_json { { "width", 720.0 }, { "height", 1280.0 },
                            { "is_portrait", true }, { "background_json", nlohmann::ordered_json::object() } });
            });
        EXPECT_TRUE(waitFor([screen] { return screen->loadingState() != State::Loading; }));
        return screen;
    }

    // The trimmer over the pager, for a movie picked on "Pick your own".
    VideoEditorController *pickOwnMovie(BGVideoContentCategoryPagerVC *screen, double seconds)
    {
        auto *own = qobject_cast<AddNewBGVideoVC *>(screen->pages().value(0));
        EXPECT_NE(own, nullptr);
        const QString picked
            = media.movie(QStringLiteral("own.mp4"), QStringLiteral("testsrc2=size=160x284:rate=25"), seconds);
        own->pickedFile(QUrl::fromLocalFile(picked));
        return qobject_cast<VideoEditorController *>(navigation.topViewController());
    }

    TestMedia media { home.filePath(QStringLiteral("media")) };
    QString firstMovie;
    EditVideoPortraitMode *videoEditor = nullptr;
};

QString documentsOf(const TestHome &home)
{
    return QFileInfo(home.filePath(QStringLiteral("Documents"))).absoluteFilePath();
}

} // namespace

TEST_F(VideoPickers, ACatalogVideoIsPreviewedAndBecomesTheEditorsMovie)
{
    BGVideoContentCategoryPagerVC *screen = pager(1);
    ASSERT_EQ(screen->loadingState(), State::Loaded);
    EXPECT_EQ(screen->tabTitles(), (QStringList { "Pick your own", "Colour Flow", "Abstract Motion" }));
    EXPECT_TRUE(qobject_cast<AddNewBGVideoVC *>(screen->pages().value(0)));
    screen->setCurrentIndex(1);
    auto *page = qobject_cast<BGVideoContentVC *>(screen->pages().value(1));
    ASSERT_TRUE(page && waitFor([page] { return page->loadingState() != State::Loading; }));
    ASSERT_EQ(page->itemsArray.size(), 4);

    page->didSelectItem(2);
    auto *sample = qobject_cast<ShowBGVideoSampleVC *>(navigation.topViewController());
    ASSERT_NE(sample, nullptr);
    EXPECT_EQ(sample->vcTag, 1);
    EXPECT_FALSE(sample->isCreateOwn);
    ASSERT_TRUE(waitFor([sample] { return sample->state() != TemplateSample::State::Loading; }));
    ASSERT_EQ(sample->state(), TemplateSample::State::Ready);
    const QUrl cached = sample->videoFile();
    sample->editClicked();
    ASSERT_EQ(navigation.topViewController(), videoEditor);
    // The design keeps the cached copy of the catalog's video, not the server's address.
    const QUrl played = videoEditor->videoView()->url().value_or(QUrl());
    EXPECT_EQ(played, cached);
    EXPECT_EQ(QFileInfo(played.toLocalFile()).absolutePath(), documentsOf(home));
    EXPECT_EQ(videoEditor->masterJson->background_json->background_image, played.toString());
    EXPECT_TRUE(videoEditor->soundEnabled());
}

TEST_F(VideoPickers, AnOwnMovieIsTrimmedToAtMost25SecondsAndGoesBackToTheEditor)
{
    BGVideoContentCategoryPagerVC *screen = pager(1);
    VideoEditorController *trimmer = pickOwnMovie(screen, 30);
    ASSERT_NE(trimmer, nullptr);
    EXPECT_EQ(trimmer->videoMaximumDuration(), 25.0);
    EXPECT_DOUBLE_EQ(trimmer->endTime() - trimmer->startTime(), 25.0);
    trimmer->moveEndHandle(3.0);
    trimmer->save();
    ASSERT_TRUE(waitFor([&] { return navigation.topViewController() == videoEditor; }));
    EXPECT_EQ(navigation.depth(), 1);
    const QString played = videoEditor->videoView()->url().value_or(QUrl()).toLocalFile();
    EXPECT_EQ(QFileInfo(played).absolutePath(), documentsOf(home));
    EXPECT_NEAR(probe(played)
                    .value(QStringLiteral("format"))
                    .toObject()
                    .value(QStringLiteral("duration"))
                    .toString()
                    .toDouble(),
        3.0, 0.1);
}

TEST_F(VideoPickers, AnOwnMovieForANewDesignOpensANewVideoEditorAndACancelOpensNothing)
{
    BGVideoContentCategoryPagerVC *screen = pager(0, true);
    VideoEditorController *trimmer = pickOwnMovie(screen, 3);
    ASSERT_NE(trimmer, nullptr);
    trimmer->cancel();
    EXPECT_EQ(navigation.topViewController(), screen);

    trimmer = pickOwnMovie(screen, 3);
    ASSERT_NE(trimmer, nullptr);
    trimmer->save();
    ASSERT_TRUE(waitFor([&] { return qobject_cast<EditVideoPortraitMode *>(navigation.topViewController()); }));
    auto *created = qobject_cast<EditVideoPortraitMode *>(navigation.topViewController());
    ASSERT_NE(created, videoEditor);
    EXPECT_TRUE(created->isCreateOwn);
    EXPECT_EQ(created->contentJson, screen->createOwnJson);
    created->setWorkAreaSize(390, 670);
    ASSERT_TRUE(created->masterJson);
    EXPECT_TRUE(created->masterJson->is_Video);
    const QUrl played = created->videoView()->url().value_or(QUrl());
    EXPECT_EQ(QFileInfo(played.toLocalFile()).absolutePath(), documentsOf(home));
    EXPECT_EQ(created->masterJson->background_json->background_image, played.toString());
}
