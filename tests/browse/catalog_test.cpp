#include "browsefixture.h"
#include "catalogstripmodel.h"
#include "featuredtempvc.h"
#include "hightlightstemplatevc.h"
#include "showimagesample.h"
#include "showvideosample.h"
#include "templatevc.h"

#include <QAbstractItemModelTester>

namespace {

constexpr qint64 images = 47;
constexpr qint64 travel = 301;

QList<qint64> range(qint64 first, qint64 count)
{
    QList<qint64> ids;
    for (qint64 id = first; id < first + count; ++id)
        ids.append(id);
    return ids;
}

} // namespace

using Catalogs = BrowseFixture;

TEST_F(Catalogs, FirstCatalogsFirstPageComesWithTheCatalogsAndIsNeverAskedForAgain)
{
    auto *vc = push<TemplateVC>(QStringLiteral("TemplateVC"));
    ASSERT_TRUE(settle([vc] { return vc->busy(); }));
    EXPECT_EQ(vc->subCatId, images);
    ASSERT_EQ(vc->categoryArray.size(), 13);
    CardGridVC *grid = vc->grid();
    ASSERT_TRUE(grid);
    QAbstractItemModelTester tester(grid->items(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(qobject_cast<FeaturedTempVC *>(grid)->cat_id, travel);
    EXPECT_EQ(jsonIds(grid), range(5001, 20));
    EXPECT_EQ(grid->page, 2);
    EXPECT_TRUE(grid->is_next_page);
    EXPECT_EQ(pack.templateCalls(images, 0, 1), 1);

    // Another catalog loads its own first page; coming back takes the cards that came with the catalogs.
    vc->selectCatalog(1);
    ASSERT_TRUE(settle(vc->grid()));
    EXPECT_EQ(jsonIds(vc->grid()), (QList<qint64> { 5101, 5102 }));
    EXPECT_EQ(pack.templateCalls(images, 302, 1), 1);
    vc->selectCatalog(0);
    grid = vc->grid();
    EXPECT_EQ(grid->items()->count(), 20);
    EXPECT_FALSE(grid->busy());

    // The footer refresh goes on from page 2; a second start while a page is on its way does nothing.
    grid->footerRefresh();
    grid->footerRefresh();
    ASSERT_TRUE(settle(grid));
    EXPECT_EQ(pack.templateCalls(images, travel, 2), 1);
    EXPECT_EQ(grid->items()->count(), 40);
    grid->footerRefresh();
    ASSERT_TRUE(settle(grid));
    EXPECT_EQ(jsonIds(grid), range(5001, 45));
    EXPECT_FALSE(grid->is_next_page);
    grid->footerRefresh();
    ASSERT_TRUE(settle(grid));
    EXPECT_EQ(pack.templateCalls(images, travel, 4), 0);
    EXPECT_EQ(pack.templateCalls(images, travel, 1), 0);
}

TEST_F(Catalogs, NextPagesComeFromTheCacheBeforeTheServer)
{
    auto *first = push<TemplateVC>(QStringLiteral("TemplateVC"));
    ASSERT_TRUE(settle([first] { return first->busy(); }));
    first->grid()->footerRefresh();
    ASSERT_TRUE(settle(first->grid()));
    ASSERT_EQ(pack.templateCalls(images, travel, 2), 1);

    auto *again = push<TemplateVC>(QStringLiteral("TemplateVC"));
    ASSERT_TRUE(settle([again] { return again->busy(); }));
    CardGridVC *grid = again->grid();
    grid->footerRefresh();
    // A cached page arrives without a call.
    EXPECT_FALSE(grid->busy());
    EXPECT_EQ(grid->items()->count(), 40);
    EXPECT_EQ(grid->page, 3);
    EXPECT_EQ(pack.templateCalls(images, travel, 2), 1);
    EXPECT_EQ(pack.templateCalls(images, travel, 1), 0);
}

TEST_F(Catalogs, GradientsAreNumberedByTheClientAndWrapToTheFirstPair)
{
    auto *vc = push<TemplateVC>(QStringLiteral("TemplateVC"));
    ASSERT_TRUE(settle([vc] { return vc->busy(); }));
    QList<qint64> ids;
    for (const auto &catalog : vc->categoryArray)
        ids.append(catalog->gradient_id);
    // The server's gradient_id 9 on the first catalog is not taken.
    EXPECT_EQ(ids, (QList<qint64> { 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 0, 1 }));
    const auto &pairs = CatalogStripModel::templateGradientArray();
    ASSERT_EQ(pairs.size(), 11);
    EXPECT_EQ(pairs.first().first, QColor(QStringLiteral("#2a4dfe")));
    EXPECT_EQ(pairs.last().second, QColor(QStringLiteral("#f39500")));
    CatalogStripModel *strip = vc->strip();
    QAbstractItemModelTester tester(strip, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QModelIndex wrapped = strip->index(11);
    EXPECT_EQ(strip->data(wrapped, CatalogStripModel::LeftColorRole).value<QColor>(), pairs.first().first);
    EXPECT_EQ(strip->data(wrapped, CatalogStripModel::RightColorRole).value<QColor>(), pairs.first().second);
    EXPECT_EQ(strip->data(wrapped, CatalogStripModel::NameRole).toString(), QStringLiteral("Catalog 312"));
}

TEST_F(Catalogs, ACatalogWithoutIdOpensWithCatalogZero)
{
    auto *vc = push<TemplateVC>(QStringLiteral("TemplateVC"));
    ASSERT_TRUE(settle([vc] { return vc->busy(); }));
    ASSERT_FALSE(vc->categoryArray.at(12)->catalog_id);
    vc->selectCatalog(12);
    auto *grid = qobject_cast<FeaturedTempVC *>(vc->grid());
    ASSERT_TRUE(grid);
    EXPECT_EQ(grid->cat_id, 0);
    ASSERT_TRUE(settle(grid));
    // Catalog 0 is the server's way of saying "the first catalog".
    EXPECT_EQ(pack.templateCalls(images, 0, 1), 2);
    EXPECT_EQ(grid->items()->count(), 20);
}

TEST_F(Catalogs, TheCachedAnswerShowsAtOnceAndAFailureAfterItIsSilent)
{
    auto *online = push<TemplateVC>(QStringLiteral("TemplateVC"));
    ASSERT_TRUE(settle([online] { return online->busy(); }));
    pack.server().setRefuseConnections(true);

    auto *offline = push<TemplateVC>(QStringLiteral("TemplateVC"));
    // Before any answer: the strip and the first grid from the cache.
    EXPECT_TRUE(offline->busy());
    EXPECT_EQ(offline->categoryArray.size(), 13);
    ASSERT_TRUE(offline->grid());
    EXPECT_EQ(offline->grid()->items()->count(), 20);
    EXPECT_TRUE(offline->stateText().isEmpty());
    ASSERT_TRUE(settle([offline] { return offline->busy(); }));
    EXPECT_EQ(offline->loadingState(), CardGridVC::LoadingState::Loaded);
    EXPECT_EQ(offline->grid()->items()->count(), 20);
    EXPECT_FALSE(offline->retryVisible());

    // A catalog that was never shown has no cache: its grid fails, with its retry.
    Reachability::setForcedConnection(Reachability::Connection::Unavailable);
    offline->selectCatalog(3);
    CardGridVC *grid = offline->grid();
    EXPECT_EQ(grid->loadingState(), CardGridVC::LoadingState::Failed);
    EXPECT_EQ(grid->stateText(), QStringLiteral("Unable to find data.\nTap to Retry"));
    EXPECT_TRUE(grid->retryVisible());
    Reachability::setForcedConnection(std::nullopt);
    pack.server().setRefuseConnections(false);
    grid->retry();
    ASSERT_TRUE(settle(grid));
    EXPECT_EQ(jsonIds(grid), (QList<qint64> { 5105, 5106 }));
}

TEST_F(Catalogs, OfflineWithoutACacheShowsTheFailedStateUntilARetryWorks)
{
    pack.server().setRefuseConnections(true);
    auto *vc = push<TemplateVC>(QStringLiteral("TemplateVC"));
    EXPECT_EQ(vc->stateText(), QStringLiteral("Loading..."));
    ASSERT_TRUE(settle([vc] { return vc->busy(); }));
    EXPECT_EQ(vc->loadingState(), CardGridVC::LoadingState::Failed);
    EXPECT_EQ(vc->stateText(), QStringLiteral("Unable to find data.\nTap to Retry"));
    EXPECT_TRUE(vc->retryVisible());
    EXPECT_FALSE(vc->grid());

    pack.server().setRefuseConnections(false);
    vc->retry();
    ASSERT_TRUE(settle([vc] { return vc->busy(); }));
    EXPECT_FALSE(vc->retryVisible());
    ASSERT_TRUE(vc->grid());
    EXPECT_EQ(vc->grid()->items()->count(), 20);
}

TEST_F(Catalogs, AnEmptyCatalogSaysSo)
{
    auto *grid = push<FeaturedTempVC>(QStringLiteral("FeaturedTempVC"), [](FeaturedTempVC *vc) { vc->cat_id = 999; });
    EXPECT_EQ(grid->stateText(), QStringLiteral("Loading..."));
    ASSERT_TRUE(settle(grid));
    EXPECT_EQ(grid->loadingState(), CardGridVC::LoadingState::Loaded);
    EXPECT_EQ(grid->stateText(), QStringLiteral("No items found."));
    EXPECT_FALSE(grid->retryVisible());
}

TEST(CardGrid, TwoColumnsOfTheSmallerSideAndTheGoToTopRow)
{
    const QSizeF card = CardGridVC::cardSize(390, 844);
    EXPECT_DOUBLE_EQ(card.width(), 180);
    EXPECT_DOUBLE_EQ(card.height(), 180.0 * 845 / 475);
    EXPECT_EQ(CardGridVC::cardSize(844, 390), card);

    FeaturedTempVC grid;
    grid.willDisplayCell(17);
    EXPECT_FALSE(grid.goToTopVisible());
    grid.willDisplayCell(18);
    EXPECT_TRUE(grid.goToTopVisible());
    grid.willDisplayCell(3);
    EXPECT_FALSE(grid.goToTopVisible());
    grid.setIsPad(true);
    grid.willDisplayCell(35);
    EXPECT_FALSE(grid.goToTopVisible());
    grid.willDisplayCell(36);
    EXPECT_TRUE(grid.goToTopVisible());
}

TEST_F(Catalogs, ATapOpensThePreviewThatSuitsTheCards)
{
    auto *stories = push<TemplateVC>(QStringLiteral("TemplateVC"));
    ASSERT_TRUE(settle([stories] { return stories->busy(); }));
    const std::shared_ptr<Json> card = stories->grid()->items()->card(0);
    stories->grid()->didSelectItem(0);
    auto *image = qobject_cast<ShowImageSample *>(navigation.topViewController());
    ASSERT_TRUE(image);
    EXPECT_EQ(image->identifier(), QStringLiteral("ShowImageSample"));
    EXPECT_EQ(image->contentJson->json_id, 5001);
    EXPECT_NE(image->contentJson, card);
    EXPECT_FALSE(image->isHightLightEditor);
    EXPECT_EQ(image->deviceOrientation, QStringLiteral("Portrait"));
    EXPECT_FALSE(stories->grid()->selectedIndex);

    auto *videos = push<TemplateVC>(QStringLiteral("TemplateVC"), [](TemplateVC *vc) { vc->isVideo = true; });
    ASSERT_TRUE(settle([videos] { return videos->busy(); }));
    EXPECT_EQ(videos->subCatId, 48);
    videos->grid()->didSelectItem(0);
    auto *video = qobject_cast<ShowVideoSample *>(navigation.topViewController());
    ASSERT_TRUE(video);
    EXPECT_EQ(video->contentJson->json_id, 6001);
    EXPECT_EQ(video->deviceOrientation, QStringLiteral("Landscape"));

    auto *covers = push<HightlightsTemplateVC>(QStringLiteral("HightlightsTemplateVC"));
    ASSERT_TRUE(settle([covers] { return covers->busy(); }));
    EXPECT_EQ(pack.templateCalls(56, 0, 1), 1);
    EXPECT_EQ(pack.server().receivedRequests("getTemplateWithCatalogs").back().value("item_count", 0), 40);
    EXPECT_EQ(covers->grid()->items()->count(), 40);
    covers->grid()->didSelectItem(1);
    auto *cover = qobject_cast<ShowImageSample *>(navigation.topViewController());
    ASSERT_TRUE(cover);
    EXPECT_EQ(cover->contentJson->json_id, 7002);
    EXPECT_TRUE(cover->isHightLightEditor);
}
