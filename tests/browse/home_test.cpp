#include "animatedlaunchscreen.h"
#include "browsefixture.h"
#include "hightlightstemplatevc.h"
#include "homevc.h"
#include "imagecache.h"
#include "mapper.h"
#include "mydesignsscreens.h"
#include "savedphotosvc.h"
#include "searchcatalogvc.h"
#include "templatedataresponse.h"
#include "templatevc.h"

class Home : public BrowseFixture
{
protected:
    Home()
    {
        storyboard.registerFactory(QStringLiteral("HomeVC"), QUrl(), [this] {
            auto *home = new HomeVC();
            home->setStoryboard(&storyboard);
            return home;
        });
        MyDesignsScreens::registerScreens(storyboard);
        navigation.setRoot(storyboard.instantiate(QStringLiteral("HomeVC")));
        home = qobject_cast<HomeVC *>(navigation.topViewController());
    }

    template<class T> T *tab(int index) const { return qobject_cast<T *>(home->tabScreens().at(index)); }

    HomeVC *home = nullptr;
};

TEST_F(Home, TabsGetTheirScreensWhenFirstShown)
{
    ASSERT_EQ(home->tabTitles(),
        (QStringList { QStringLiteral("Images"), QStringLiteral("Videos"), QStringLiteral("Highlights"),
            QStringLiteral("My Story") }));
    auto *images = tab<TemplateVC>(0);
    ASSERT_TRUE(images);
    EXPECT_EQ(images->tabIndex, 1);
    EXPECT_FALSE(images->isVideo);
    EXPECT_EQ(images->subCatId, 47);
    EXPECT_FALSE(home->tabScreens().at(1));
    EXPECT_FALSE(home->tabScreens().at(2));
    EXPECT_TRUE(home->searchAvailable());

    home->setSelectedTab(1);
    auto *videos = tab<TemplateVC>(1);
    ASSERT_TRUE(videos);
    EXPECT_EQ(videos->tabIndex, 2);
    EXPECT_TRUE(videos->isVideo);
    EXPECT_EQ(videos->subCatId, 48);
    home->setSelectedTab(2);
    ASSERT_TRUE(tab<HightlightsTemplateVC>(2));
    EXPECT_EQ(tab<HightlightsTemplateVC>(2)->subCatId, 56);
    ASSERT_TRUE(settle([this] { return tab<HightlightsTemplateVC>(2)->busy(); }));
    // The grids of the tabs reach the home's navigation: a tap pushes the preview over the home.
    tab<HightlightsTemplateVC>(2)->grid()->didSelectItem(0);
    EXPECT_EQ(navigation.topIdentifier(), QStringLiteral("ShowImageSample"));
    navigation.pop(false);

    // "My Story" is the saved designs, with nothing to search; a swipe goes back to the tab before it.
    home->setSelectedTab(3);
    auto *designs = tab<SavedPhotosVC>(3);
    ASSERT_TRUE(designs);
    EXPECT_EQ(designs->tabIndex, 4);
    EXPECT_FALSE(home->searchAvailable());
    home->searchClicked();
    EXPECT_EQ(navigation.topViewController(), home);
    designs->swipedRight();
    EXPECT_EQ(home->selectedTab(), 2);
}

TEST_F(Home, SearchFollowsTheTabShownAndCreateOwnOpensTheBlankStart)
{
    home->setSelectedTab(2);
    home->searchClicked();
    auto *covers = qobject_cast<SearchCatalogVC *>(navigation.topViewController());
    ASSERT_TRUE(covers);
    EXPECT_TRUE(covers->isHightlight);
    EXPECT_TRUE(covers->isHightLightEditor);
    covers->goBack();

    home->setSelectedTab(1);
    home->searchClicked();
    auto *videos = qobject_cast<SearchCatalogVC *>(navigation.topViewController());
    ASSERT_TRUE(videos);
    EXPECT_TRUE(videos->isVideo);
    EXPECT_FALSE(videos->isHightlight);
    videos->goBack();

    home->createOwnClicked();
    EXPECT_EQ(navigation.topIdentifier(), QStringLiteral("CreateOwnVC"));
}

TEST_F(Home, TheLaunchDecodesThePicturesOfTheFirstScreenOfCards)
{
    ImageCache::shared().clearMemory();
    auto *launch = new AnimatedLaunchScreen();
    launch->setServerClient(&client);
    navigation.push(launch, false);
    ASSERT_TRUE(QTest::qWaitFor([this] { return client.cachedTemplateWithCatalogs(47).has_value(); }, 15000));
    const auto answer = Mapper::map<TemplateDataResponse>(*client.cachedTemplateWithCatalogs(47));
    const CardListModel::Cards cards = answer->sample_cards.value_or(CardListModel::Cards());
    ASSERT_GE(cards.size(), 6);
    const auto inMemory = [&cards](int row) {
        return ImageCache::shared().isInMemory(QUrl(CardListModel::pictureAddress(*cards.at(row))));
    };
    // Nothing but the launch screen asked for them.
    EXPECT_TRUE(QTest::qWaitFor([&] { return inMemory(0) && inMemory(5); }, 15000));
}
