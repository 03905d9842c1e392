// The crop screen's and the picture sheet's views over their real controllers, driven by the mouse.
#include "assetimageprovider.h"
#include "cropfixture.h"
#include "picturesourcesheet.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqmlextensionplugin.h>

#include <gtest/gtest.h>

#include <memory>

Q_IMPORT_QML_PLUGIN(Quillet_Editor_CropPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_UiPlugin)

namespace {

/** A phone-sized window that shows one screen's view over its controller. */
class ScreenWindow
{
public:
    ScreenWindow(ViewController *vc, const char *view)
    {
        engine.addImportPath(QStringLiteral("qrc:/"));
        engine.addImageProvider(QStringLiteral("assets"), new AssetImageProvider());
        QQmlComponent component(&engine);
        component.setData(QByteArray(R"(
            import QtQuick
            import Quillet.Editor.Crop
            Window {
                id: window
                width: 390; height: 760; visible: true
                required property var vc
                // The screen below: a sheet keeps it from being touched.
                MouseArea { objectName: "below"; anchors.fill: parent; property int presses: 0; onPressed: ++presses }
                )")
                + view + R"( { anchors.fill: parent; vc: window.vc }
            })",
            QUrl());
        window.reset(qobject_cast<QQuickWindow *>(
            component.createWithInitialProperties({ { QStringLiteral("vc"), QVariant::fromValue<QObject *>(vc) } })));
        if (!window)
            ADD_FAILURE() << component.errorString().toStdString();
        else
            EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }

    /** The item of that name, popups included. */
    [[nodiscard]] QQuickItem *item(const QString &name) const { return find(window->contentItem(), name); }

    /** The scene point at the middle of an item. */
    [[nodiscard]] QPoint centre(const QQuickItem *item) const
    {
        return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    }

    void click(const QQuickItem *item) const { QTest::mouseClick(window.get(), Qt::LeftButton, {}, centre(item)); }

    void drag(QPoint from, QPoint to) const
    {
        QTest::mousePress(window.get(), Qt::LeftButton, {}, from);
        for (int step = 1; step <= 10; ++step)
            QTest::mouseMove(window.get(), from + (to - from) * step / 10);
        QTest::mouseRelease(window.get(), Qt::LeftButton, {}, to);
    }

    QQmlEngine engine;
    std::unique_ptr<QQuickWindow> window;

private:
    static QQuickItem *find(QQuickItem *item, const QString &name)
    {
        if (item->objectName() == name)
            return item;
        for (QQuickItem *child : item->childItems()) {
            if (QQuickItem *found = find(child, name))
                return found;
        }
        return nullptr;
    }
};

} // namespace

TEST(CropView, AHandleDraggedThenSquareThenDoneCutsASquare)
{
    NavigationController navigation;
    navigation.setRoot(new ViewController());
    auto *crop = new CropViewController();
    CropRecorder recorder;
    crop->delegate = &recorder;
    crop->setImage(codedPicture(QSize(1200, 800)));
    navigation.present(crop, false);
    ScreenWindow screen(crop, "CropViewControllerView");
    ASSERT_TRUE(screen.window);
    QQuickItem *area = screen.item(QStringLiteral("cropArea"));
    ASSERT_TRUE(area);
    QQuickItem *box = screen.item(QStringLiteral("cropBox"));
    ASSERT_TRUE(box);
    // The box lies where the controller puts it, and stays there until something changes.
    const auto settled = [&] {
        const QRectF rect = crop->cropBoxRect();
        return !rect.isEmpty() && qAbs(box->x() - rect.x()) < 0.5 && qAbs(box->y() - rect.y()) < 0.5
            && qAbs(box->width() - rect.width()) < 0.5 && qAbs(box->height() - rect.height()) < 0.5;
    };
    ASSERT_TRUE(settled());
    const qreal scale = crop->cropBoxRect().width() / 1200;

    // The bottom right corner dragged up and left by 90 and 60 points.
    QQuickItem *corner = screen.item(QStringLiteral("handle4"));
    ASSERT_TRUE(corner);
    const QPoint from = screen.centre(corner);
    screen.drag(from, from - QPoint(90, 60));
    EXPECT_FALSE(crop->isInteracting());
    const QRectF dragged = crop->cropBox().cropRect();
    EXPECT_EQ(dragged.topLeft(), QPointF(0, 0));
    EXPECT_NEAR(dragged.width(), 1200 - 90 / scale, 1.0 / scale);
    EXPECT_NEAR(dragged.height(), 800 - 60 / scale, 1.0 / scale);
    // The box settles back into the middle of the area.
    EXPECT_FALSE(settled());
    ASSERT_TRUE(waitFor(settled));

    screen.click(screen.item(QStringLiteral("ratioButton")));
    QQuickItem *square = nullptr;
    ASSERT_TRUE(waitFor([&] {
        square = screen.item(QStringLiteral("ratio_Square"));
        return square && square->isVisible() && square->height() > 0;
    }));
    ASSERT_TRUE(waitFor([&] { return square->opacity() == 1.0; }));
    screen.click(square);
    EXPECT_EQ(crop->aspectRatioTitles().at(crop->aspectRatioIndex()), QStringLiteral("Square"));
    const QRectF squared = crop->cropBox().cropRect();
    EXPECT_NEAR(squared.width(), squared.height(), 1e-9);

    ASSERT_TRUE(waitFor([&] { return screen.item(QStringLiteral("doneButton"))->isEnabled(); }));
    screen.click(screen.item(QStringLiteral("doneButton")));
    ASSERT_TRUE(waitFor([&] { return recorder.image.has_value(); }));
    EXPECT_EQ(recorder.image->width(), recorder.image->height());
    EXPECT_EQ(recorder.rect, crop->cropBox().pixelRect());
    EXPECT_EQ(*recorder.image, crop->image().copy(recorder.rect));
}

TEST(CropView, TheToolBarTurnsAndResets)
{
    auto crop = std::make_unique<CropViewController>();
    crop->setImage(codedPicture(QSize(1200, 800)));
    ScreenWindow screen(crop.get(), "CropViewControllerView");
    ASSERT_TRUE(screen.window);
    QQuickItem *reset = screen.item(QStringLiteral("resetButton"));
    EXPECT_FALSE(reset->isEnabled());
    screen.click(screen.item(QStringLiteral("rotateButton")));
    EXPECT_EQ(crop->cropBox().angle(), 90);
    EXPECT_EQ(crop->preview().size(), QSize(800, 1200));
    ASSERT_TRUE(reset->isEnabled());
    screen.click(reset);
    EXPECT_EQ(crop->cropBox().angle(), 0);
    EXPECT_FALSE(reset->isEnabled());
    screen.click(screen.item(QStringLiteral("rotateLeftButton")));
    EXPECT_EQ(crop->cropBox().angle(), 270);
    EXPECT_EQ(crop->preview().size(), QSize(800, 1200));
    EXPECT_EQ(crop->preview().pixel(0, 0), crop->image().pixel(1199, 0));
}

TEST(PictureSourceSheetView, ShowsTheTitleAndADisabledCameraRowWithoutACamera)
{
    NavigationController navigation;
    navigation.setRoot(new FakeEditor());
    auto *sheet = new PictureSourceSheet();
    sheet->hasImage = true;
    navigation.push(sheet, false);
    if (sheet->hasCamera())
        GTEST_SKIP() << "this machine has a camera";
    ScreenWindow screen(sheet, "PictureSourceSheetView");
    ASSERT_TRUE(screen.window);
    EXPECT_EQ(
        screen.item(QStringLiteral("sheetTitle"))->property("text").toString(), QStringLiteral("Replace Image From"));
    QQuickItem *gallery = screen.item(QStringLiteral("sourceRow0"));
    QQuickItem *camera = screen.item(QStringLiteral("sourceRow1"));
    ASSERT_TRUE(gallery && camera);
    EXPECT_TRUE(gallery->isEnabled());
    EXPECT_FALSE(camera->isEnabled());
    QQuickItem *detail = screen.item(QStringLiteral("sourceRowDetail1"));
    EXPECT_TRUE(detail->isVisible());
    EXPECT_EQ(detail->property("text").toString(), QStringLiteral("No camera on this device"));
    EXPECT_FALSE(screen.item(QStringLiteral("sourceRowDetail0"))->isVisible());

    // A click on the disabled row opens nothing; a click above the sheet reaches nothing below it.
    screen.click(camera);
    EXPECT_EQ(navigation.topViewController(), sheet);
    QTest::mouseClick(screen.window.get(), Qt::LeftButton, {}, QPoint(195, 100));
    EXPECT_EQ(navigation.topViewController(), sheet);
    EXPECT_EQ(screen.item(QStringLiteral("below"))->property("presses").toInt(), 0);

    // The gallery row opens the file dialog (whose own view needs Qt's folder list module).
    QObject *dialog = screen.window->findChild<QObject *>(QStringLiteral("galleryDialog"));
    ASSERT_TRUE(dialog);
    screen.click(gallery);
    EXPECT_TRUE(waitFor([&] { return dialog->property("visible").toBool(); }));
    QMetaObject::invokeMethod(dialog, "reject");
    EXPECT_EQ(navigation.topViewController(), sheet);
}
