#include "appassets.h"
#include "assetimageprovider.h"
#include "editorfixture.h"
#include "editvideoportraitmode.h"
#include "resizableimageview.h"
#include "resizableview.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

#include <gtest/gtest.h>

Q_IMPORT_QML_PLUGIN(Quillet_EditorPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_Editor_LayersPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_UiPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_VideoPlugin)

// The editor screen over a real session: the bar buttons follow the session, and the layer panel
// shows the rows that the layer button fills.
TEST(EditorViewBar, UndoRedoAndLayerButtonsFollowTheSession)
{
    EditorFixture f;
    f.picture(QStringLiteral("a.png"));
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "sticker_json": [
        {"sticker_image": "a.png", "width": 40, "height": 40}, {"sticker_image": "a.png", "width": 40, "height": 40}]})"));
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/Quillet/Editor/EditorView.qml")));
    std::unique_ptr<QObject> screen(component.createWithInitialProperties(
        { { QStringLiteral("vc"), QVariant::fromValue(static_cast<QObject *>(&f.editor)) },
            { QStringLiteral("width"), 390 }, { QStringLiteral("height"), 844 } }));
    ASSERT_TRUE(screen) << component.errorString().toStdString();
    auto child = [&screen](const char *name) { return screen->findChild<QObject *>(QString::fromLatin1(name)); };
    ASSERT_TRUE(child("undoButton") && child("redoButton") && child("layerButton") && child("layerContentView"));
    EXPECT_FALSE(child("undoButton")->property("enabled").toBool());
    EXPECT_TRUE(child("layerButton")->property("enabled").toBool());
    EXPECT_FALSE(child("layerContentView")->property("visible").toBool());

    auto *sticker = f.layers<ResizableImageView>().first();
    sticker->tapGesture();
    sticker->buttonTapGesture();
    EXPECT_TRUE(child("undoButton")->property("enabled").toBool());
    QMetaObject::invokeMethod(child("undoButton"), "clicked");
    EXPECT_FALSE(child("undoButton")->property("enabled").toBool());
    EXPECT_TRUE(child("redoButton")->property("enabled").toBool());

    QMetaObject::invokeMethod(child("layerButton"), "clicked");
    EXPECT_TRUE(child("layerContentView")->property("visible").toBool());
    EXPECT_EQ(child("layerTableView")->property("count").toInt(), 2);
    QMetaObject::invokeMethod(child("btnClose"), "clicked");
    EXPECT_FALSE(f.editor.layersShown());
}

// The sound button and the movie under the canvas belong to the video editors; the button stays disabled
// while no movie is loaded.
TEST(EditorViewBar, TheSoundButtonAndTheMovieAreTheVideoEditors)
{
    EditorFixture f;
    EditVideoPortraitMode video;
    video.setCanvasArea(QRectF(0, 0, 360, 640));
    ASSERT_TRUE(video.loadTemplate(Mapper::map<Json>(QStringLiteral(R"({"width": 360, "height": 640})"))));
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/Quillet/Editor/EditorView.qml")));
    for (EditorSession *session : { static_cast<EditorSession *>(&f.editor), static_cast<EditorSession *>(&video) }) {
        std::unique_ptr<QObject> screen(component.createWithInitialProperties(
            { { QStringLiteral("vc"), QVariant::fromValue(static_cast<QObject *>(session)) },
                { QStringLiteral("width"), 390 }, { QStringLiteral("height"), 844 } }));
        ASSERT_TRUE(screen) << component.errorString().toStdString();
        QObject *button = screen->findChild<QObject *>(QStringLiteral("soundButton"));
        QObject *movie = screen->findChild<QObject *>(QStringLiteral("videoLayer"));
        ASSERT_TRUE(button && movie);
        const bool isVideo = session == &video;
        EXPECT_EQ(button->property("visible").toBool(), isVideo);
        EXPECT_EQ(movie->property("active").toBool(), isVideo);
        EXPECT_FALSE(button->property("enabled").toBool());
        EXPECT_EQ(button->property("asset").toString(), QStringLiteral("ic_volume"));
    }
}

// Every picture of the screen that names one of the application's own pictures gets a drawn one: the bar's
// icons, the layer panel's close button and the canvas handles of a selected sticker.
TEST(EditorViewBar, EveryIconOfTheScreenIsDrawn)
{
    EditorFixture f;
    f.picture(QStringLiteral("a.png"));
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "sticker_json": [
        {"sticker_image": "a.png", "width": 40, "height": 40}]})"));
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    engine.addImageProvider(QStringLiteral("assets"), new AssetImageProvider());
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/Quillet/Editor/EditorView.qml")));
    std::unique_ptr<QObject> screen(component.createWithInitialProperties(
        { { QStringLiteral("vc"), QVariant::fromValue(static_cast<QObject *>(&f.editor)) },
            { QStringLiteral("width"), 390 }, { QStringLiteral("height"), 844 } }));
    ASSERT_TRUE(screen) << component.errorString().toStdString();

    QStringList shown;
    for (QObject *item : screen->findChildren<QObject *>()) {
        const QUrl source = item->property("source").toUrl();
        if (source.scheme() != QLatin1String("image") || source.host() != QLatin1String("assets"))
            continue;
        const QString name = source.path().mid(1);
        shown.append(name);
        EXPECT_EQ(item->property("status").toInt(), 1) << qPrintable(name) << " is not ready"; // Image.Ready
        EXPECT_FALSE(AppAssets::image(name).isNull()) << qPrintable(name);
    }
    for (const char *name : { "ic_back", "menu_duplicate", "ic_layer", "undo", "redo", "ic_cancel_white" })
        EXPECT_TRUE(shown.contains(QLatin1String(name))) << name;

    auto *sticker = f.layers<ResizableImageView>().first();
    sticker->tapGesture();
    for (ImageView *handle : { sticker->cancelButton, sticker->rotateButton, sticker->resizeButton }) {
        ASSERT_TRUE(handle);
        EXPECT_FALSE(handle->image().isNull());
        EXPECT_FALSE(handle->isHidden());
    }
}

namespace {

// The editor screen in a window, for touches.
struct EditorWindow
{
    explicit EditorWindow(EditorFixture &f)
    {
        engine.addImportPath(QStringLiteral("qrc:/"));
        window.resize(390, 844);
        QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/Quillet/Editor/EditorView.qml")));
        screen.reset(qobject_cast<QQuickItem *>(component.createWithInitialProperties(
            { { QStringLiteral("vc"), QVariant::fromValue(static_cast<QObject *>(&f.editor)) },
                { QStringLiteral("width"), 390 }, { QStringLiteral("height"), 844 } })));
        if (!screen) {
            ADD_FAILURE() << component.errorString().toStdString();
            return;
        }
        screen->setParentItem(window.contentItem());
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            ADD_FAILURE() << "the window was not shown";
    }

    // The scene point of a point of the canvas.
    QPoint onCanvas(EditorFixture &f, QPointF point) const
    {
        const auto *canvas = screen->findChild<QQuickItem *>(QStringLiteral("canvas"));
        return canvas->mapToScene(point + f.editor.canvasFrame().topLeft()).toPoint();
    }

    // Two fingers on `centre`, spread from 10 to 10 x `factor` points each side, beyond the drag threshold.
    void pinch(QPoint centre, qreal factor)
    {
        QTest::qWait(20);
        QTest::touchEvent(&window, device).press(0, centre - QPoint(10, 0)).press(1, centre + QPoint(10, 0));
        const int steps = 20;
        for (int i = 1; i <= steps; ++i) {
            const int d = qRound(10 + 10 * (factor - 1) * i / steps);
            QTest::touchEvent(&window, device).move(0, centre - QPoint(d, 0)).move(1, centre + QPoint(d, 0));
            QTest::qWait(5);
        }
        const int d = qRound(10 * factor);
        QTest::touchEvent(&window, device).release(0, centre - QPoint(d, 0)).release(1, centre + QPoint(d, 0));
        QTest::qWait(20);
    }

    QQmlEngine engine;
    QQuickWindow window;
    std::unique_ptr<QQuickItem> screen;
    QPointingDevice *device = QTest::createTouchDevice();
};

} // namespace

// A pinch on the canvas is one change of the layer: one undo step, one store, and one undo takes it back.
TEST(EditorViewGestures, APinchIsOneStepForStickersAndTexts)
{
    EditorFixture f;
    f.picture(QStringLiteral("a.png"), Qt::red, QSize(100, 100));
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "sample_image": "s.png",
        "sticker_json": [{"sticker_image": "a.png", "xPos": 40, "yPos": 40, "width": 100, "height": 100}],
        "text_json": [{"text": "Pinch me", "fontName": "DejaVu Sans", "xPos": 60, "yPos": 400, "size": 60}]})"));
    EditorWindow w(f);
    ASSERT_TRUE(w.screen);

    auto *sticker = f.layers<ResizableImageView>().first();
    sticker->tapGesture();
    const QSizeF stickerSize = sticker->bounds().size();
    w.pinch(w.onCanvas(f, sticker->center()), 3.0);
    EXPECT_GT(sticker->bounds().width(), stickerSize.width() * 1.3);
    EXPECT_EQ(f.editor.undoArray().size(), 2);
    f.editor.undo();
    sticker = f.layers<ResizableImageView>().first();
    EXPECT_NEAR(sticker->bounds().width(), stickerSize.width(), 0.01);

    auto *text = f.layers<ResizableView>().first();
    text->tapGesture();
    const qreal fontSize = text->textView->fontSize;
    w.pinch(w.onCanvas(f, text->center()), 3.0);
    EXPECT_GT(text->textView->fontSize, fontSize + 10);
    EXPECT_EQ(f.editor.undoArray().size(), 2);
    f.editor.undo();
    EXPECT_NEAR(f.layers<ResizableView>().first()->textView->fontSize, fontSize, 0.01);
    EXPECT_FALSE(f.editor.canUndo());
}
