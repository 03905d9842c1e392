// The "My Story" tab as the window draws it: three saved designs, a duplicate made and a design deleted
// through the cells' more buttons and the action sheet.
#include "alertmodel.h"
#include "apppaths.h"
#include "assetimageprovider.h"
#include "designstore.h"
#include "homevc.h"
#include "imagecacheprovider.h"
#include "mapper.h"
#include "mydesignsscreens.h"
#include "navigationcontroller.h"
#include "previewwriter.h"
#include "savedphotosvc.h"
#include "storyboard.h"
#include "testhome.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

#include <gtest/gtest.h>

Q_IMPORT_QML_PLUGIN(Quillet_AppPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_BrowsePlugin)
Q_IMPORT_QML_PLUGIN(Quillet_Designs_ScreensPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_UiPlugin)

namespace {

/** The application's window on a fresh home, with the home and the designs screens. */
class MyStoryView : public ::testing::Test
{
protected:
    MyStoryView()
    {
        AppPaths::ensureCreated();
        storyboard.registerFactory(
            QStringLiteral("HomeVC"), QUrl(QStringLiteral("qrc:/Quillet/App/HomeVCView.qml")), [this] {
                auto *screen = new HomeVC();
                screen->setStoryboard(&storyboard);
                return screen;
            });
        MyDesignsScreens::registerScreens(storyboard);
        engine.addImportPath(QStringLiteral("qrc:/"));
        engine.addImageProvider(QStringLiteral("cache"), new ImageCacheProvider());
        engine.addImageProvider(QStringLiteral("assets"), new AssetImageProvider());
    }

    void saveDesign(Qt::GlobalColor colour, bool video)
    {
        QImage preview(108, 192, QImage::Format_RGB32);
        preview.fill(colour);
        nlohmann::ordered_json design = { { "sample_image", PreviewWriter::write(preview).toStdString() },
            { "width", 1080.0 }, { "height", 1920.0 }, { "is_editsaved", true }, { "is_Video", video } };
        if (video)
            design["sample_video"]
                = QUrl::fromLocalFile(AppPaths::documents() + QStringLiteral("/1.mov")).toString().toStdString();
        ASSERT_TRUE(store.saveDesign(QString::fromStdString(design.dump()), std::nullopt, video));
    }

    bool showWindow()
    {
        engine.setInitialProperties({ { QStringLiteral("navigation"), QVariant::fromValue(&navigation) } });
        engine.load(QUrl(QStringLiteral("qrc:/Quillet/App/Main.qml")));
        if (engine.rootObjects().isEmpty())
            return false;
        window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
        navigation.setRoot(storyboard.instantiate(QStringLiteral("HomeVC")));
        home = qobject_cast<HomeVC *>(navigation.topViewController());
        home->setSelectedTab(3);
        if (!window || !QTest::qWaitForWindowExposed(window))
            return false;
        // The stack takes no input while the home slides in.
        QObject *stack = window->findChild<QObject *>(QStringLiteral("stack"));
        return stack && QTest::qWaitFor([stack] { return !stack->property("busy").toBool(); }, 5000);
    }

    /** The first shown item of that name in the window's item tree. */
    [[nodiscard]] QQuickItem *item(const char *name, QQuickItem *below = nullptr) const
    {
        QList<QQuickItem *> pending { below ? below : window->contentItem() };
        while (!pending.isEmpty()) {
            QQuickItem *next = pending.takeFirst();
            if (next->objectName() == QLatin1String(name) && next->isVisible())
                return next;
            pending.append(next->childItems());
        }
        return nullptr;
    }
    [[nodiscard]] QQuickItem *cell(QQuickItem *grid, int index) const
    {
        QQuickItem *found = nullptr;
        QMetaObject::invokeMethod(grid, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, found), Q_ARG(int, index));
        return found;
    }
    void tap(QQuickItem *target)
    {
        const QPointF centre = target->mapToScene(QPointF(target->width() / 2, target->height() / 2));
        QTest::mouseClick(window, Qt::LeftButton, {}, centre.toPoint());
    }
    /** Opens the sheet of cell `index` by its more button and presses the sheet's button `name`. */
    bool runAction(int index, const char *name)
    {
        QQuickItem *grid = item("collectionView");
        QQuickItem *more = grid && cell(grid, index) ? item("moreButton", cell(grid, index)) : nullptr;
        if (!more)
            return false;
        tap(more);
        QQuickItem *button = nullptr;
        if (!QTest::qWaitFor([&] { return (button = item(name)); }, 5000))
            return false;
        tap(button);
        return true;
    }

    TestHome testHome;
    DesignStore store;
    Storyboard storyboard;
    NavigationController navigation;
    QQmlApplicationEngine engine;
    QQuickWindow *window = nullptr;
    HomeVC *home = nullptr;
};

} // namespace

TEST_F(MyStoryView, DuplicateAndDeleteFromTheSheet)
{
    saveDesign(Qt::red, false);
    saveDesign(Qt::green, true);
    saveDesign(Qt::blue, false);
    ASSERT_TRUE(showWindow());
    QQuickItem *grid = nullptr;
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return (grid = item("collectionView")) && grid->property("count").toInt() == 4; }, 5000));
    EXPECT_FALSE(item("noCardView"));
    ASSERT_TRUE(cell(grid, 0));
    EXPECT_TRUE(cell(grid, 0)->property("isCreateOwn").toBool());
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return cell(grid, 1) && cell(grid, 1)->property("pictureShown").toBool(); }, 5000));

    // The video design (the second saved, cell 2) gets its mark and the video sheet, without Print.
    ASSERT_TRUE(cell(grid, 2));
    EXPECT_TRUE(item("videoMark", cell(grid, 2)));
    ASSERT_TRUE(runAction(2, "duplicateButton"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return grid->property("count").toInt() == 5; }, 5000));
    EXPECT_EQ(navigation.topViewController(), home);
    EXPECT_TRUE(store.allDesigns().first().is_video);

    ASSERT_TRUE(runAction(3, "deleteButton"));
    AlertModel *alert = navigation.alert();
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->message(), QStringLiteral("Are you sure you want to delete this card?"));
    ASSERT_TRUE(alert->trigger(QStringLiteral("DELETE")));
    ASSERT_TRUE(QTest::qWaitFor([&] { return grid->property("count").toInt() == 4; }, 5000));
    EXPECT_EQ(store.allDesigns().size(), 3);
}
