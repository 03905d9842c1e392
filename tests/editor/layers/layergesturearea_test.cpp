// The QML gesture item over a layer: touch and mouse reach the layer's actions with their phases.
#include "layerrecorder.h"
#include "resizableimageview.h"

#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

#include <gtest/gtest.h>

Q_IMPORT_QML_PLUGIN(Quillet_Editor_LayersPlugin)

namespace {

struct Scene
{
    LayerRecorder editor;
    View canvas { QRectF(0, 0, 400, 400) };
    ResizableImageView *layer = new ResizableImageView(QRectF(100, 100, 100, 100));
    QQmlEngine engine;
    std::unique_ptr<QQuickWindow> window;
    QQuickItem *area = nullptr;

    Scene()
    {
        canvas.addSubview(layer);
        layer->delegate = &editor;
        layer->stickerJson = std::make_shared<StickerJson>();
        engine.addImportPath(QStringLiteral("qrc:/"));
        QQmlComponent component(&engine);
        component.setData(R"(
            import QtQuick
            import Quillet.Editor.Layers
            Window {
                id: window
                width: 400; height: 400; visible: true
                property alias area: area
                required property LayerView layerView
                Item {
                    anchors.fill: parent
                    LayerGestureArea { id: area; layerView: window.layerView; canvasScale: 1 }
                }
            })",
            QUrl());
        if (!component.isReady()) {
            ADD_FAILURE() << component.errorString().toStdString();
            return;
        }
        QObject *object
            = component.createWithInitialProperties({ { "layerView", QVariant::fromValue<QObject *>(layer) } });
        window.reset(qobject_cast<QQuickWindow *>(object));
        if (!window)
            ADD_FAILURE() << component.errorString().toStdString();
        else
            area = window->property("area").value<QQuickItem *>();
        editor.calls.clear();
    }

    void drag(const QPoint &from, const QPoint &to)
    {
        QTest::mousePress(window.get(), Qt::LeftButton, {}, from);
        for (int i = 1; i <= 10; ++i)
            QTest::mouseMove(window.get(), from + (to - from) * i / 10);
        QTest::mouseRelease(window.get(), Qt::LeftButton, {}, to);
    }
};

} // namespace

TEST(LayerGestureArea, FollowsTheLayersGeometry)
{
    Scene scene;
    ASSERT_TRUE(scene.area);
    EXPECT_EQ(scene.area->position(), QPointF(100, 100));
    EXPECT_EQ(scene.area->size(), QSizeF(128, 128));
    scene.layer->rotate(0.5);
    EXPECT_NEAR(scene.area->rotation(), 0.5 * 180 / M_PI, 1e-9);
}

TEST(LayerGestureArea, ADragOnThePictureMovesTheLayerAndShowsTheGrid)
{
    Scene scene;
    ASSERT_TRUE(scene.area);
    const QPointF before = scene.layer->center();
    scene.drag(QPoint(160, 160), QPoint(220, 190));
    EXPECT_NEAR(scene.layer->center().x() - before.x(), 60, 1);
    EXPECT_NEAR(scene.layer->center().y() - before.y(), 30, 1);
    EXPECT_TRUE(scene.editor.calls.contains("stickerDidDrag"));
    EXPECT_EQ(scene.editor.calls.last(), "stickerDidEndDrag");
    EXPECT_NEAR(*scene.layer->stickerJson->xPos, 114 + 60, 1);
}

TEST(LayerGestureArea, TheResizeHandleGrowsThePicture)
{
    Scene scene;
    ASSERT_TRUE(scene.area);
    scene.drag(QPoint(214, 214), QPoint(254, 214));
    EXPECT_GT(scene.layer->bounds().width(), 140);
    EXPECT_EQ(scene.editor.calls.last(), "stickerDidUpdate");
}

TEST(LayerGestureArea, TheCloseHandleClosesOnlyWhileSelected)
{
    Scene scene;
    ASSERT_TRUE(scene.area);
    scene.layer->setControlsHidden(true);
    QTest::mouseClick(scene.window.get(), Qt::LeftButton, {}, QPoint(105, 105));
    EXPECT_EQ(scene.layer->superview(), &scene.canvas);
    scene.layer->setControlsHidden(false);
    QTest::mouseClick(scene.window.get(), Qt::LeftButton, {}, QPoint(105, 105));
    EXPECT_EQ(scene.editor.calls, (QStringList { "stickerWillClose", "stickerDidClose" }));
}
