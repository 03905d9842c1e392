#include "appdelegate.h"
#include "browsefixture.h"
#include "hightlightsearchcardvc.h"
#include "searchcardvc.h"
#include "searchcatalogvc.h"
#include "searchvc.h"
#include "showimagesample.h"

namespace {

const QString relatedNotice
    = QStringLiteral("Sorry, we couldn't find any templates for \"trav\". Here are some related templates.");

} // namespace

using Search = BrowseFixture;

TEST(TagSearch, TheSearchBarFiltersTheTagsAndAnEmptyListShowsThePlaceholder)
{
    SearchCatalogVC stories;
    stories.viewDidLoad();
    EXPECT_EQ(stories.title(), QStringLiteral("SEARCH"));
    EXPECT_EQ(stories.tableTitle(), QStringLiteral("Popular Tags"));
    EXPECT_EQ(stories.rows(), SearchCatalogVC::storyTags());
    EXPECT_EQ(stories.rows().size(), 11);
    stories.setSearchBarText(QStringLiteral("fa"));
    EXPECT_EQ(stories.rows(), QStringList { QStringLiteral("Fashion") });
    stories.setSearchBarText(QStringLiteral("OFF"));
    EXPECT_EQ(stories.rows(), QStringList { QStringLiteral("Offers & Sales") });
    stories.setSearchBarText(QStringLiteral("zzz"));
    EXPECT_TRUE(stories.placeholderShown());
    EXPECT_EQ(stories.rows(), QStringList { QStringLiteral("No Text") });
    stories.chooseRow(0); // the placeholder leads nowhere

    SearchCatalogVC covers;
    covers.isHightlight = true;
    covers.viewDidLoad();
    EXPECT_EQ(covers.rows().size(), 20);
    EXPECT_EQ(covers.rows().first(), QStringLiteral("Food"));
    EXPECT_EQ(covers.rows().last(), QStringLiteral("Education"));
}

TEST_F(Search, AChosenTagOpensItsResultsUnderResults)
{
    ServerClient::setSearchMessage(QStringLiteral("left over"));
    auto *search = push<SearchCatalogVC>(QStringLiteral("SearchCatalogVC"));
    search->setSearchBarText(QStringLiteral("tra"));
    ASSERT_EQ(search->rows(), QStringList { QStringLiteral("Travel") });
    search->chooseRow(0);
    auto *results = qobject_cast<SearchCardVC *>(navigation.topViewController());
    ASSERT_TRUE(results);
    EXPECT_EQ(results->searchTxt, QStringLiteral("Travel"));
    EXPECT_EQ(results->searchMessage(), QStringLiteral("Results"));
    ASSERT_TRUE(settle(results));
    EXPECT_EQ(results->items()->count(), 20);
    const auto request = pack.server().receivedRequests("searchCardsBySubCategoryId").back();
    EXPECT_EQ(request.value("sub_category_id", 0), 47);
    EXPECT_EQ(request.value("search_category", ""), "Travel");
    EXPECT_EQ(request.value("page", 0), 1);
    EXPECT_EQ(request.value("item_count", 0), 20);
    results->footerRefresh();
    ASSERT_TRUE(settle(results));
    EXPECT_EQ(results->items()->count(), 40);
    EXPECT_EQ(pack.server().receivedRequests("searchCardsBySubCategoryId").back().value("page", 0), 2);
}

TEST_F(Search, A427AnswerShowsTheServersNoticeOverItsRelatedCards)
{
    auto *search = push<SearchCatalogVC>(QStringLiteral("SearchCatalogVC"));
    search->setSearchBarText(QStringLiteral("trav"));
    search->confirmSearch();
    auto *results = qobject_cast<SearchCardVC *>(navigation.topViewController());
    ASSERT_TRUE(results);
    ASSERT_TRUE(settle(results));
    EXPECT_EQ(results->searchMessage(), relatedNotice);
    EXPECT_EQ(results->items()->count(), 20);
    EXPECT_EQ(results->items()->card(0)->json_id, 5001);

    // The next search starts again from "Results".
    results->goBack();
    search->setSearchBarText(QStringLiteral("travel"));
    search->confirmSearch();
    auto *exact = qobject_cast<SearchCardVC *>(navigation.topViewController());
    ASSERT_TRUE(exact);
    ASSERT_TRUE(settle(exact));
    EXPECT_EQ(exact->searchMessage(), QStringLiteral("Results"));
}

TEST_F(Search, HighlightSearchesAskForCoversAndOpenTheHighlightEditorsPreview)
{
    auto *search = push<SearchCatalogVC>(QStringLiteral("SearchCatalogVC"), [](SearchCatalogVC *vc) {
        vc->isHightlight = true;
        vc->isHightLightEditor = true;
    });
    search->chooseRow(search->rows().indexOf(QStringLiteral("Fitness")));
    auto *results = qobject_cast<HightlightSearchCardVc *>(navigation.topViewController());
    ASSERT_TRUE(results);
    ASSERT_TRUE(settle(results));
    const auto request = pack.server().receivedRequests("searchCardsBySubCategoryId").back();
    EXPECT_EQ(request.value("sub_category_id", 0), 56);
    EXPECT_EQ(request.value("item_count", 0), 40);
    EXPECT_EQ(results->items()->count(), 40);
    results->didSelectItem(0);
    auto *preview = qobject_cast<ShowImageSample *>(navigation.topViewController());
    ASSERT_TRUE(preview);
    EXPECT_TRUE(preview->isHightLightEditor);
}

TEST_F(Search, AnEmptyTextIsNotSearched)
{
    auto *search = push<SearchCatalogVC>(QStringLiteral("SearchCatalogVC"));
    search->setSearchBarText(QStringLiteral("   "));
    search->confirmSearch();
    EXPECT_EQ(navigation.topViewController(), search);
}

TEST_F(Search, ADeepLinkSearchesOnceForItsText)
{
    AppDelegate delegate(&navigation, &storyboard);
    ASSERT_TRUE(delegate.openUrl(QUrl(QStringLiteral("quillet://open?search=travel"))));
    auto *results = qobject_cast<SearchCardVC *>(navigation.topViewController());
    ASSERT_TRUE(results);
    EXPECT_EQ(results->searchTxt, QStringLiteral("travel"));
    ASSERT_EQ(navigation.depth(), 3);
    auto *search = qobject_cast<SearchCatalogVC *>(navigation.viewControllers().at(1));
    ASSERT_TRUE(search);
    EXPECT_EQ(search->searchBarText(), QStringLiteral("travel"));
    ASSERT_TRUE(settle(results));
    EXPECT_EQ(results->items()->count(), 20);

    // Back from the results, the tags show: the link does not search again.
    results->goBack();
    EXPECT_EQ(navigation.topViewController(), search);
    EXPECT_EQ(navigation.depth(), 2);
}

TEST_F(Search, ADeepLinkAtLaunchWaitsForTheHomeScreen)
{
    storyboard.registerScreen<ViewController>(QStringLiteral("AnimatedLaunchScreen"), QUrl());
    storyboard.registerScreen<ViewController>(QStringLiteral("HomeVC"), QUrl());
    navigation.setRoot(storyboard.instantiate(QStringLiteral("AnimatedLaunchScreen")));
    AppDelegate delegate(&navigation, &storyboard);
    ASSERT_TRUE(delegate.openUrl(QUrl(QStringLiteral("quillet://open?search=travel"))));
    EXPECT_EQ(navigation.depth(), 1);

    navigation.setRoot(storyboard.instantiate(QStringLiteral("HomeVC")));
    ASSERT_TRUE(QTest::qWaitFor([this] { return navigation.depth() == 3; }, 5000));
    EXPECT_EQ(navigation.viewControllers().first()->identifier(), QStringLiteral("HomeVC"));
    EXPECT_EQ(navigation.viewControllers().at(1)->identifier(), QStringLiteral("SearchCatalogVC"));
    EXPECT_EQ(navigation.topIdentifier(), QStringLiteral("SearchCardVC"));
}

TEST_F(Search, TheEditorsTagPickerHandsTheTagBackToItsOpener)
{
    ViewController *opener = navigation.topViewController();
    auto *picker = push<SearchVC>(QStringLiteral("SearchVC"), [](SearchVC *vc) {
        vc->tagArray = { QStringLiteral("Love"), QStringLiteral("Birthday"), QStringLiteral("Sale") };
        vc->categoryName = QStringLiteral("Graphics");
        vc->vcTag = 1;
    });
    EXPECT_EQ(picker->title(), QStringLiteral("Graphics"));
    picker->setSearchBarText(QStringLiteral("b"));
    EXPECT_EQ(picker->filterTagArray, QStringList { QStringLiteral("Birthday") });
    picker->chooseRow(0);
    EXPECT_EQ(navigation.topViewController(), opener);
    EXPECT_EQ(opener->property("tag").toString(), QStringLiteral("Birthday"));
}
