#include "assetimageprovider.h"
#include "browsefixture.h"
#include "homevc.h"
#include "imagecacheprovider.h"
#include "templatevc.h"
#include "tracecapture.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Quillet_AppPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_BrowsePlugin)
Q_IMPORT_QML_PLUGIN(Quillet_UiPlugin)

/** The home screen's view in a phone-sized window, on the browsing pack's server. */
class HomeView : public BrowseFixture
{
protected:
    HomeView()
    {
        storyboard.registerFactory(
            QStringLiteral("HomeVC"), QUrl(QStringLiteral("qrc:/Quillet/App/HomeVCView.qml")), [this] {
                auto *screen = new HomeVC();
                screen->setStoryboard(&storyboard);
                return screen;
            });
        engine.addImportPath(QStringLiteral("qrc:/"));
        engine.addImageProvider(QStringLiteral("cache"), new ImageCacheProvider());
        engine.addImageProvider(QStringLiteral("assets"), new AssetImageProvider());
        window.resize(390, 844);
    }

    /** Makes the home and shows its view; false when the view does not load. */
    bool showHome()
    {
        navigation.setRoot(storyboard.instantiate(QStringLiteral("HomeVC")));
        home = qobject_cast<HomeVC *>(navigation.topViewController());
        QQmlComponent component(&engine, home->viewUrl());
        view.reset(qobject_cast<QQuickItem *>(component.createWithInitialProperties(
            { { QStringLiteral("vc"), QVariant::fromValue(static_cast<QObject *>(home)) } })));
        if (!view) {
            ADD_FAILURE() << component.errorString().toStdString();
            return false;
        }
        view->setParentItem(window.contentItem());
        view->setSize(QSizeF(390, 844));
        window.show();
        return QTest::qWaitForWindowExposed(&window);
    }

    /** The items of that name, found through the item tree as it is drawn (loaders and delegates included). */
    [[nodiscard]] QList<QQuickItem *> items(const char *name) const
    {
        QList<QQuickItem *> found;
        QList<QQuickItem *> pending { window.contentItem() };
        while (!pending.isEmpty()) {
            QQuickItem *next = pending.takeFirst();
            if (next->objectName() == QLatin1String(name))
                found.append(next);
            pending.append(next->childItems());
        }
        return found;
    }
    /** The first item of that name that shows, else the first of that name. */
    [[nodiscard]] QQuickItem *item(const char *name) const
    {
        const QList<QQuickItem *> found = items(name);
        for (QQuickItem *candidate : found) {
            if (candidate->isVisible())
                return candidate;
        }
        return found.value(0);
    }
    /** The card delegates of the grid, by index. */
    [[nodiscard]] QQuickItem *card(QQuickItem *grid, int index) const
    {
        QQuickItem *found = nullptr;
        QMetaObject::invokeMethod(grid, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, found), Q_ARG(int, index));
        return found;
    }
    void tap(QQuickItem *target)
    {
        const QPointF centre = target->mapToScene(QPointF(target->width() / 2, target->height() / 2));
        QTest::mouseClick(&window, Qt::LeftButton, {}, centre.toPoint());
    }

    QQmlEngine engine;
    QQuickWindow window;
    std::unique_ptr<QQuickItem> view;
    HomeVC *home = nullptr;
};

TEST_F(HomeView, TheFirstTabShowsItsCatalogsCardsWithPicturesAndATapOpensThePreview)
{
    TraceCapture log;
    ASSERT_TRUE(showHome());
    QQuickItem *grid = item("cardGrid");
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return (grid = item("cardGrid")) && grid->property("count").toInt() == 20; }, 15000));
    QQuickItem *first = nullptr;
    ASSERT_TRUE(QTest::qWaitFor([&] { return (first = card(grid, 0)); }, 5000));
    EXPECT_EQ(first->property("thumbnail").toString().left(14), QStringLiteral("image://cache/"));
    // The placeholder shows until the picture has come through the picture cache.
    ASSERT_TRUE(QTest::qWaitFor([&] { return first->property("pictureShown").toBool(); }, 15000));
    EXPECT_FALSE(first->childItems().first()->isVisible()); // the placeholder
    EXPECT_NEAR(first->width(), 190, 0.5);
    ASSERT_TRUE(card(grid, 1));
    EXPECT_GT(card(grid, 1)->x(), first->x()); // two columns

    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            return log.text().split(QLatin1Char('\n')).filter(QStringLiteral("first grid shown after ")).size() == 1;
        },
        10000));

    tap(first);
    EXPECT_EQ(navigation.topIdentifier(), QStringLiteral("ShowImageSample"));
}

TEST_F(HomeView, ScrollingToTheEndLoadsTheNextPageAndGoToTopReturns)
{
    ASSERT_TRUE(showHome());
    QQuickItem *grid = nullptr;
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return (grid = item("cardGrid")) && grid->property("count").toInt() == 20; }, 15000));
    QQuickItem *goToTop = item("goToTopButton");
    ASSERT_TRUE(goToTop);
    EXPECT_FALSE(goToTop->isVisible());

    QMetaObject::invokeMethod(grid, "positionViewAtEnd");
    ASSERT_TRUE(QTest::qWaitFor([&] { return grid->property("count").toInt() == 40; }, 15000));
    EXPECT_EQ(pack.templateCalls(47, 301, 2), 1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return goToTop->isVisible(); }, 5000));

    tap(goToTop);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !goToTop->isVisible(); }, 5000));
    EXPECT_LE(grid->property("contentY").toReal(), 0);
}

TEST_F(HomeView, TheFailedStateSaysSoAndATapRetries)
{
    pack.server().setRefuseConnections(true);
    ASSERT_TRUE(showHome());
    auto *images = qobject_cast<TemplateVC *>(home->tabScreens().first());
    ASSERT_TRUE(settle([images] { return images->busy(); }));
    QQuickItem *label = nullptr;
    ASSERT_TRUE(QTest::qWaitFor([&] { return (label = item("stateLabel")) && label->isVisible(); }, 5000));
    EXPECT_EQ(label->property("text").toString(), QStringLiteral("Unable to find data.\nTap to Retry"));

    pack.server().setRefuseConnections(false);
    tap(label);
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            QQuickItem *grid = item("cardGrid");
            return grid && grid->property("count").toInt() == 20;
        },
        15000));
}
