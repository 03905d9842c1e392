#include "appassets.h"
#include "assetimageprovider.h"
#include "editorfixture.h"
#include "resizableimageview.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QtQml/qqmlextensionplugin.h>

#include <gtest/gtest.h>

Q_IMPORT_QML_PLUGIN(Quillet_EditorPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_Editor_LayersPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_UiPlugin)

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
