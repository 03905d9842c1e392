// The picker views over their real controllers: the pager's tabs and pages, a catalog's grid, the strip.
#include "bgcontentcategorypagervc.h"
#include "bgcontentvc.h"
#include "catalogcontentpage.h"
#include "pickerfixture.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QtQml/qqmlextensionplugin.h>

#include <gtest/gtest.h>

#include <functional>

Q_IMPORT_QML_PLUGIN(Quillet_Editor_PickersPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_UiPlugin)

namespace {

class PickerView : public ::testing::Test, public PickerFixture<>
{
protected:
    std::unique_ptr<QObject> view(ViewController *vc)
    {
        engine.addImportPath(QStringLiteral("qrc:/"));
        QQmlComponent component(&engine, vc->viewUrl());
        std::unique_ptr<QObject> made(component.createWithInitialProperties(
            { { QStringLiteral("vc"), QVariant::fromValue(static_cast<QObject *>(vc)) },
                { QStringLiteral("width"), 390 }, { QStringLiteral("height"), 800 } }));
        EXPECT_TRUE(made) << component.errorString().toStdString();
        return made;
    }

    QQmlEngine engine;
};

/** The first item of that name under `item`, through the visual tree: repeated and loaded items are only there. */
QQuickItem *findItem(QQuickItem *item, const QString &name, const std::function<bool(QQuickItem *)> &accept = {})
{
    if (!item)
        return nullptr;
    if (item->objectName() == name && (!accept || accept(item)))
        return item;
    for (QQuickItem *below : item->childItems()) {
        if (QQuickItem *found = findItem(below, name, accept))
            return found;
    }
    return nullptr;
}

QQuickItem *child(const std::unique_ptr<QObject> &root, const char *name)
{
    return findItem(qobject_cast<QQuickItem *>(root.get()), QString::fromLatin1(name));
}

} // namespace

TEST_F(PickerView, PagerShowsATabPerPageAndTheCatalogGridFillsWhenItsTabIsChosen)
{
    auto *pager = push<BGContentCategoryPagerVC>(QStringLiteral("BGContentCategoryPagerVC"));
    const std::unique_ptr<QObject> screen = view(pager);
    ASSERT_TRUE(screen);
    ASSERT_TRUE(waitFor([pager] { return pager->loadingState() == CatalogScreen::LoadingState::Loaded; }));
    QObject *tabs = child(screen, "tabs");
    ASSERT_TRUE(tabs);
    EXPECT_EQ(tabs->property("count").toInt(), 4);
    // The own page with its two rows and its colours.
    ASSERT_TRUE(waitFor([&] { return child(screen, "colorStrip") != nullptr; }));
    EXPECT_EQ(child(screen, "colorStrip")->property("count").toInt(), 5);
    EXPECT_TRUE(child(screen, "ownRow0") && child(screen, "ownRow1"));

    tabs->setProperty("currentIndex", 2);
    EXPECT_EQ(pager->currentIndex(), 2);
    auto *page = qobject_cast<CatalogContentPage *>(pager->pages().at(2));
    ASSERT_TRUE(waitFor([page] { return page->loadingState() == CatalogScreen::LoadingState::Loaded; }));
    // The grid of that page, among the pages' grids.
    QQuickItem *grid = findItem(qobject_cast<QQuickItem *>(screen.get()), QStringLiteral("grid"),
        [page](QQuickItem *item) { return item->parentItem()->property("vc").value<QObject *>() == page; });
    ASSERT_TRUE(grid);
    EXPECT_EQ(grid->property("count").toInt(), 12);
    EXPECT_FALSE(child(screen, "failedBar")->property("visible").toBool());
}

TEST_F(PickerView, CatalogPageShowsItsEmptyAndFailedStates)
{
    auto *empty = push<BGContentVC>(QStringLiteral("BGContentVC"), [](BGContentVC &p) { p.catalog_id = 999; });
    const std::unique_ptr<QObject> emptyView = view(empty);
    ASSERT_TRUE(waitFor([empty] { return empty->loadingState() == CatalogScreen::LoadingState::Loaded; }));
    EXPECT_TRUE(child(emptyView, "emptyView")->property("visible").toBool());
    EXPECT_FALSE(child(emptyView, "failedView")->property("visible").toBool());

    server.server().setRefuseConnections(true);
    auto *failed = push<BGContentVC>(QStringLiteral("BGContentVC"), [](BGContentVC &p) { p.catalog_id = 301; });
    const std::unique_ptr<QObject> failedView = view(failed);
    ASSERT_TRUE(waitFor([failed] { return failed->loadingState() == CatalogScreen::LoadingState::Failed; }));
    EXPECT_TRUE(child(failedView, "failedView")->property("visible").toBool());
    EXPECT_FALSE(child(failedView, "emptyView")->property("visible").toBool());
}
