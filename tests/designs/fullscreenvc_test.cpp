#include "fullscreenvc.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QtQml/qqmlextensionplugin.h>

#include <gtest/gtest.h>

Q_IMPORT_QML_PLUGIN(Quillet_DesignsPlugin)

// The full-screen picture fits the screen, zooms within its limits about a point, and turns for landscape.
TEST(FullScreenVCView, FitsZoomsAndTurnsThePicture)
{
    FullScreenVC vc;
    vc.imageToDisplay = QImage(400, 800, QImage::Format_ARGB32_Premultiplied);
    vc.imageToDisplay.fill(Qt::blue);
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/Quillet/Designs/FullScreenVCView.qml")));
    std::unique_ptr<QObject> screen(component.createWithInitialProperties(
        { { QStringLiteral("vc"), QVariant::fromValue(static_cast<QObject *>(&vc)) }, { QStringLiteral("width"), 390 },
            { QStringLiteral("height"), 844 } }));
    ASSERT_TRUE(screen) << component.errorString().toStdString();
    QObject *zoom = screen->findChild<QObject *>(QStringLiteral("imageScrollView"));
    QObject *box = screen->findChild<QObject *>(QStringLiteral("zoomBox"));
    ASSERT_TRUE(zoom && box);
    EXPECT_DOUBLE_EQ(box->property("width").toDouble(), 390);
    EXPECT_DOUBLE_EQ(box->property("height").toDouble(), 780);

    QMetaObject::invokeMethod(zoom, "zoomTo", Q_ARG(QVariant, 2.5), Q_ARG(QVariant, QPointF(195, 422)));
    EXPECT_DOUBLE_EQ(zoom->property("zoom").toDouble(), 2.5);
    EXPECT_DOUBLE_EQ(zoom->property("contentWidth").toDouble(), 975);
    EXPECT_GT(zoom->property("contentX").toDouble(), 0);
    QMetaObject::invokeMethod(zoom, "zoomTo", Q_ARG(QVariant, 40), Q_ARG(QVariant, QPointF(0, 0)));
    EXPECT_DOUBLE_EQ(zoom->property("zoom").toDouble(), 4);
    QMetaObject::invokeMethod(zoom, "zoomTo", Q_ARG(QVariant, 0.1), Q_ARG(QVariant, QPointF(0, 0)));
    EXPECT_DOUBLE_EQ(zoom->property("zoom").toDouble(), 1);

    zoom->setProperty("turned", true);
    EXPECT_DOUBLE_EQ(box->property("rotation").toDouble(), 90);
    // Turned, the tall picture lies across the screen: its 800 pixels fill the width.
    EXPECT_DOUBLE_EQ(box->property("height").toDouble(), 390);
}
