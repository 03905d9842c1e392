// The editor screen's bars tapped through as a user does, in a window: a text, its font and colour, a
// sticker and its tint, the background's colour, a filter on a picture background, then undo and redo,
// with the document checked after each step.
#include "addtextvc.h"
#include "assetimageprovider.h"
#include "backgroundimageview.h"
#include "backgroundtools.h"
#include "designstore.h"
#include "editimageportraitmode.h"
#include "editorscreens.h"
#include "hexcolor.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "pickerscreens.h"
#include "resizableimageview.h"
#include "resizableview.h"
#include "stickercontentcategorypagervc.h"
#include "storyboard.h"
#include "testhome.h"
#include "toolmenus.h"

#include <QGuiApplication>
#include <QJSValue>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSet>
#include <QStyleHints>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

#include <gtest/gtest.h>

Q_IMPORT_QML_PLUGIN(Quillet_EditorPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_Editor_LayersPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_UiPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_VideoPlugin)

namespace {

// The editor at the root of a stack with the application's screens, its view in a phone-sized window.
struct EditorScreen
{
    explicit EditorScreen(QSize size = { 390, 844 })
    {
        EditorScreens::registerScreens(storyboard);
        PickerScreens::registerScreens(storyboard, nullptr, {});
        editor->setStoryboard(&storyboard);
        editor->setDesignStore(&store);
        editor->contentJson = Mapper::map<Json>(QStringLiteral(R"({"width": 360, "height": 640,
            "background_json": {"background_color": "#ffffff"}})"));
        navigation.setRoot(editor);
        engine.addImportPath(QStringLiteral("qrc:/"));
        engine.addImageProvider(QStringLiteral("assets"), new AssetImageProvider());
        window.resize(size);
        QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/Quillet/Editor/EditorView.qml")));
        screen.reset(qobject_cast<QQuickItem *>(component.createWithInitialProperties(
            { { QStringLiteral("vc"), QVariant::fromValue(static_cast<QObject *>(editor)) },
                { QStringLiteral("width"), size.width() }, { QStringLiteral("height"), size.height() } })));
        if (!screen) {
            ADD_FAILURE() << component.errorString().toStdString();
            return;
        }
        screen->setParentItem(window.contentItem());
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            ADD_FAILURE() << "the window was not shown";
    }

    QQuickItem *item(const char *name) const { return screen->findChild<QQuickItem *>(QLatin1String(name)); }

    void tap(QQuickItem *target)
    {
        ASSERT_TRUE(target);
        ASSERT_TRUE(target->isVisible());
        const QPoint centre = target->mapToScene(QPointF(target->width() / 2, target->height() / 2)).toPoint();
        QTest::mouseClick(&window, Qt::LeftButton, {}, centre);
        QTest::qWait(20);
    }

    // The cell of a visible bar that shows `word` (or the picture `word`), scrolled into view first.
    QQuickItem *cell(const QString &word) const
    {
        for (auto *list : screen->findChildren<QQuickItem *>()) {
            if (!list->isVisible() || !list->inherits("QQuickListView"))
                continue;
            QVariant model = list->property("model");
            if (model.canConvert<QJSValue>())
                model = model.value<QJSValue>().toVariant();
            const QVariantList rows = model.toList();
            for (qsizetype i = 0; i < rows.size(); ++i) {
                const QVariantMap row = rows.at(i).toMap();
                if (row.value(QStringLiteral("text")) != word && row.value(QStringLiteral("image")) != word)
                    continue;
                const int contain = 4; // ListView.Contain
                QMetaObject::invokeMethod(list, "positionViewAtIndex", Q_ARG(int, int(i)), Q_ARG(int, contain));
                QTest::qWait(20);
                QQuickItem *found = nullptr;
                QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, found), Q_ARG(int, int(i)));
                return found;
            }
        }
        return nullptr;
    }

    // The swatch of the colour strip at `index`, scrolled into view.
    QQuickItem *swatch(int index) const
    {
        auto *strip = screen->findChild<QQuickItem *>(QStringLiteral("colorSwatches"));
        const int contain = 4; // ListView.Contain
        QMetaObject::invokeMethod(strip, "positionViewAtIndex", Q_ARG(int, index), Q_ARG(int, contain));
        QTest::qWait(20);
        QQuickItem *found = nullptr;
        QMetaObject::invokeMethod(strip, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, found), Q_ARG(int, index));
        return found;
    }

    // A point of the canvas in the window.
    void tapCanvas(QPointF point)
    {
        const auto *canvas = screen->findChild<QQuickItem *>(QStringLiteral("canvas"));
        QTest::mouseClick(
            &window, Qt::LeftButton, {}, canvas->mapToScene(point + editor->canvasFrame().topLeft()).toPoint());
        QTest::qWait(20);
    }

    [[nodiscard]] const Json &document() const { return *editor->masterJson; }

    TestHome home;
    DesignStore store;
    Storyboard storyboard;
    NavigationController navigation;
    EditImagePortraitMode *editor = new EditImagePortraitMode();
    QQmlEngine engine;
    QQuickWindow window;
    std::unique_ptr<QQuickItem> screen;
};

QImage filled(QColor color, QSize size)
{
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(color);
    return picture;
}

QColor stripColour(int index)
{
    return HexColor::fromString(MenuItems::colorsArray().at(index));
}

} // namespace

TEST(ToolBarsByTouch, EveryToolOfTheTourChangesTheDocumentAndUndoWalksBack)
{
    EditorScreen s;
    ASSERT_TRUE(s.screen);
    ASSERT_TRUE(s.editor->masterJson);
    ToolMenus &menus = *s.editor->menus();

    // Add Text: the entry screen comes up over the editor; its tick hands the text back.
    s.tap(s.cell(QStringLiteral("Add Text")));
    auto *entry = qobject_cast<AddTextVC *>(s.navigation.topViewController());
    ASSERT_TRUE(entry);
    entry->setDemoText(QStringLiteral("Hello"));
    entry->done();
    ASSERT_EQ(s.document().text_json->size(), 1u);
    EXPECT_EQ(s.document().text_json->at(0)->text, QStringLiteral("Hello"));
    EXPECT_EQ(menus.menuTag(), MenuTag::fontTag);

    // Its font, then its colour.
    s.tap(s.cell(QStringLiteral("Font")));
    const QString font = AddTextVC::defaultFontItems().at(1).name;
    s.tap(s.cell(AddTextVC::rowTitle(AddTextVC::defaultFontItems().at(1))));
    EXPECT_EQ(s.document().text_json->at(0)->fontName, font);
    s.tap(s.cell(QStringLiteral("Color")));
    s.tap(s.swatch(4));
    EXPECT_EQ(HexColor::fromString(s.document().text_json->at(0)->color.value_or(QString())), stripColour(4));

    // A sticker from the Graphics pager, then its tint.
    s.tapCanvas(QPointF(20, 600)); // away from the text: the bars go back to the top level
    EXPECT_EQ(menus.menuTag(), MenuTag::noMenuTag);
    s.tap(s.cell(QStringLiteral("Graphics")));
    auto *pager = qobject_cast<StickerContentCategoryPagerVC *>(s.navigation.topViewController());
    ASSERT_TRUE(pager);
    EXPECT_EQ(pager->categoryId, 47);
    pager->handBack([](PickerTarget &target) {
        target.setNewStickerImage({ filled(Qt::white, { 60, 60 }), false, false, std::nullopt, std::nullopt });
    });
    ASSERT_EQ(s.document().sticker_json->size(), 1u);
    ResizableImageView *sticker = nullptr;
    for (View *view : s.editor->viewMain->subviews())
        sticker = qobject_cast<ResizableImageView *>(view) ? qobject_cast<ResizableImageView *>(view) : sticker;
    ASSERT_TRUE(sticker);
    EXPECT_EQ(s.editor->selection.selectedIconImgView, sticker); // a new sticker comes selected
    EXPECT_EQ(menus.menuTag(), MenuTag::stickerTag);
    s.tap(s.cell(QStringLiteral("Color")));
    s.tap(s.swatch(5));
    EXPECT_EQ(HexColor::fromString(s.document().sticker_json->at(0)->color.value_or(QString())), stripColour(5));

    // The background's colour: a tap off the layers deselects, a second opens the background's bar.
    s.tapCanvas(QPointF(20, 600));
    s.tapCanvas(QPointF(20, 600));
    EXPECT_EQ(menus.menuTag(), MenuTag::bgTag);
    s.tap(s.swatch(6));
    EXPECT_EQ(HexColor::fromString(s.document().background_json->background_color.value_or(QString())), stripColour(6));

    // A picture background from the background pager, then a filter on it.
    s.tapCanvas(QPointF(20, 600));
    s.tap(s.cell(QStringLiteral("Bkground")));
    auto *backgrounds = qobject_cast<ContentCategoryPager *>(s.navigation.topViewController());
    ASSERT_TRUE(backgrounds);
    QImage photo = filled(QColor(200, 80, 40), { 90, 160 });
    backgrounds->handBack([&photo](PickerTarget &target) { target.setNewBgImage(photo, QString()); });
    EXPECT_FALSE(s.document().background_json->background_image.value_or(QString()).isEmpty());
    s.tapCanvas(QPointF(20, 600));
    s.tap(s.cell(QStringLiteral("Filter")));
    const QString beforeFilter = s.document().background_json->background_image.value_or(QString());
    s.tap(s.cell(QStringLiteral("Mono")));
    ASSERT_TRUE(QTest::qWaitFor([&s] { return !s.editor->backgroundTools()->busy(); }));
    const QColor mono = s.editor->backgroundImageView->image().pixelColor(10, 10);
    EXPECT_EQ(mono.red(), mono.green());
    EXPECT_NE(s.document().background_json->background_image, beforeFilter);

    // Undo twice: the filter and the picture go; redo brings the picture back.
    s.tap(s.item("undoButton"));
    EXPECT_EQ(s.document().background_json->background_image, beforeFilter);
    EXPECT_EQ(menus.menuTag(), MenuTag::noMenuTag);
    s.tap(s.item("undoButton"));
    EXPECT_FALSE(s.document().background_json->background_image);
    EXPECT_EQ(HexColor::fromString(s.document().background_json->background_color.value_or(QString())), stripColour(6));
    s.tap(s.item("redoButton"));
    EXPECT_EQ(s.document().background_json->background_image, beforeFilter);
    EXPECT_EQ(s.document().text_json->at(0)->text, QStringLiteral("Hello"));
    EXPECT_EQ(s.document().sticker_json->size(), 1u);
}

// On a 320-point phone SAVE is 52 wide and every button of the bar stays a 44-point target; the bars scroll.
TEST(ToolBarsByTouch, ANarrowPhoneKeepsTheTargetsAndScrollsTheBars)
{
    EditorScreen s({ 320, 568 });
    ASSERT_TRUE(s.screen);
    EXPECT_EQ(s.item("saveButton")->width(), 52);
    for (const char *name : { "backButton", "duplicateButton", "layerButton", "undoButton", "redoButton" }) {
        EXPECT_GE(s.item(name)->width(), 44) << name;
        EXPECT_GE(s.item(name)->height(), 44) << name;
    }
    auto *bar = s.item("menuContentCollectionView");
    ASSERT_TRUE(bar);
    EXPECT_GT(bar->property("contentWidth").toReal(), bar->width());
    QQuickItem *last = s.cell(QStringLiteral("My Design"));
    ASSERT_TRUE(last);
    EXPECT_GE(last->height(), 44);
}

// Every bar draws its rows: the window's strip below the canvas is not blank for any of them. With
// QUILLET_SHOTS_DIR set, each bar's picture is kept there as menus-NAME.png.
TEST(ToolBarsByTouch, EveryToolBarDraws)
{
    EditorScreen s;
    ASSERT_TRUE(s.screen);
    s.editor->addNewText(QStringLiteral("Menus"), QStringLiteral("Montserrat-Bold"), QColor(Qt::black));
    QImage photo = filled(QColor(40, 120, 200), { 90, 160 });
    const QString shots = qEnvironmentVariable("QUILLET_SHOTS_DIR");
    auto shot = [&](const char *name) {
        QTest::qWait(50);
        const QImage window = s.window.grabWindow();
        const auto *bars = s.item("toolBars");
        const QRect strip = bars->mapRectToScene(QRectF(0, 0, bars->width(), bars->height())).toRect();
        const QImage bar = window.copy(strip);
        QSet<QRgb> colours;
        for (int y = 0; y < bar.height(); y += 2) {
            for (int x = 0; x < bar.width(); x += 2)
                colours.insert(bar.pixel(x, y));
        }
        EXPECT_GT(colours.size(), 4) << name << " draws nothing";
        if (!shots.isEmpty())
            window.save(shots + QStringLiteral("/menus-") + QLatin1String(name) + QStringLiteral(".png"));
    };
    ResizableView *text = nullptr;
    for (View *view : s.editor->viewMain->subviews())
        text = qobject_cast<ResizableView *>(view) ? qobject_cast<ResizableView *>(view) : text;
    ASSERT_TRUE(text);
    shot("text");
    for (const char *row : { "Font", "Color", "Texture", "Style", "Shadow", "Rotation", "Size" }) {
        s.tap(s.cell(QLatin1String(row)));
        shot(QStringLiteral("text-%1").arg(QString::fromLatin1(row).toLower()).toLatin1().constData());
    }
    s.editor->addNewSticker(filled(Qt::white, { 60, 60 }));
    shot("sticker");
    for (const char *row : { "Crop", "Color", "Opacity" }) {
        s.tap(s.cell(QLatin1String(row)));
        shot(QStringLiteral("sticker-%1").arg(QString::fromLatin1(row).toLower()).toLatin1().constData());
    }
    s.tapCanvas(QPointF(20, 600));
    shot("top");
    s.editor->setBackgroundImage(photo);
    s.tapCanvas(QPointF(20, 600));
    shot("background");
    for (const char *row : { "Pattern", "Filter" }) {
        s.tap(s.cell(QLatin1String(row)));
        shot(QStringLiteral("background-%1").arg(QString::fromLatin1(row).toLower()).toLatin1().constData());
        s.tapCanvas(QPointF(20, 600));
        s.tapCanvas(QPointF(20, 600));
    }
    s.tap(s.cell(QStringLiteral("Adjust")));
    shot("adjust");
    s.tap(s.cell(QStringLiteral("Flip")));
    shot("adjust-flip");
}
