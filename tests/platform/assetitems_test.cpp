// The QML items of Quillet.Ui that show the application's own pictures, through the real provider.
#include "assetimageprovider.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QtQml/qqmlextensionplugin.h>

#include <gtest/gtest.h>

#include <memory>

Q_IMPORT_QML_PLUGIN(Quillet_UiPlugin)

namespace {

std::unique_ptr<QObject> create(QQmlEngine &engine, const QByteArray &qml)
{
    QQmlComponent component(&engine);
    component.setData(qml, QUrl());
    std::unique_ptr<QObject> item(component.create());
    EXPECT_TRUE(item) << component.errorString().toStdString();
    return item;
}

} // namespace

TEST(AssetItems, AnIconAsksForItsColourAndSizeAndIsDrawn)
{
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    engine.addImageProvider(QStringLiteral("assets"), new AssetImageProvider());
    const auto tinted = create(engine,
        "import Quillet.Ui\n"
        "AssetIcon { asset: \"menu_text\"; color: Theme.accent; width: 24; height: 24 }");
    ASSERT_TRUE(tinted);
    EXPECT_EQ(tinted->property("source").toUrl(), QUrl(QStringLiteral("image://assets/menu_text?color=e05863")));
    EXPECT_EQ(tinted->property("status").toInt(), 1); // Image.Ready
    EXPECT_EQ(tinted->property("sourceSize").toSize(), QSize(24, 24));

    // Without a colour the icon keeps its own; without a name there is nothing to load.
    const auto plain = create(engine, "import Quillet.Ui\nAssetIcon { asset: \"ic_volume\"; width: 24; height: 24 }");
    ASSERT_TRUE(plain);
    EXPECT_EQ(plain->property("source").toUrl(), QUrl(QStringLiteral("image://assets/ic_volume")));
    const auto empty = create(engine, "import Quillet.Ui\nAssetIcon { width: 24; height: 24 }");
    ASSERT_TRUE(empty);
    EXPECT_TRUE(empty->property("source").toUrl().isEmpty());
}
