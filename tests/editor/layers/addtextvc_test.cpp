#include "addtextvc.h"
#include "alertmodel.h"
#include "navigationcontroller.h"
#include "textentrytarget.h"

#include <gtest/gtest.h>

namespace {

// The screen below the text entry, as the editors are.
class Editor : public ViewController, public TextEntryTarget
{
public:
    QString text;
    QString fontName;
    std::optional<QColor> color;
    std::optional<bool> isNew;

    void takeEnteredText(const QString &t, const QString &f, std::optional<QColor> c, bool n) override
    {
        text = t;
        fontName = f;
        color = c;
        isNew = n;
    }
};

} // namespace

TEST(AddTextVC, AnEmptyTextIsRefusedWithAnAlertAndTheScreenStays)
{
    NavigationController navigation;
    auto *editor = new Editor;
    navigation.setRoot(editor);
    auto *screen = new AddTextVC;
    navigation.push(screen, false);
    EXPECT_EQ(screen->title(), "Add Text");
    screen->done();
    ASSERT_NE(navigation.alert(), nullptr);
    EXPECT_EQ(navigation.alert()->title(), "Please Enter Text");
    EXPECT_EQ(navigation.depth(), 2);
    EXPECT_FALSE(editor->isNew.has_value());
}

TEST(AddTextVC, DoneHandsANewTextToTheEditorBelow)
{
    NavigationController navigation;
    auto *editor = new Editor;
    navigation.setRoot(editor);
    auto *screen = new AddTextVC;
    navigation.push(screen, false);
    screen->setDemoText(QStringLiteral("Summer"));
    screen->selectFont(0);
    screen->selectColor(2);
    screen->done();
    EXPECT_EQ(editor->text, "Summer");
    EXPECT_EQ(editor->fontName, screen->fontItemsArray.at(0).name);
    EXPECT_EQ(editor->color, QColor(0xE8, 0x43, 0x42));
    EXPECT_EQ(editor->isNew, true);
    EXPECT_TRUE(screen->hasSetTextColor);
    EXPECT_EQ(navigation.depth(), 1);
}

TEST(AddTextVC, EditingStartsFromTheEditorsTextAndIsNotNew)
{
    NavigationController navigation;
    auto *editor = new Editor;
    navigation.setRoot(editor);
    auto *screen = new AddTextVC;
    screen->editText = QStringLiteral("Old");
    screen->editFont = QStringLiteral("BebasNeueRegular");
    navigation.push(screen, false);
    EXPECT_EQ(screen->demoText(), "Old");
    EXPECT_EQ(screen->demoFont().pointSizeF(), 30);
    EXPECT_FALSE(screen->demoColor().isValid());
    screen->done();
    EXPECT_EQ(editor->isNew, false);
    EXPECT_EQ(editor->color, std::nullopt);
    EXPECT_EQ(editor->fontName, "BebasNeueRegular");
}

TEST(AddTextVC, FontRowsAndColourStrip)
{
    AddTextVC screen;
    EXPECT_EQ(screen.colors().size(), 16);
    EXPECT_EQ(screen.colors().first().value<QColor>(), QColor(Qt::white));
    EXPECT_EQ(screen.colors().last().value<QColor>(), QColor(0x22, 0x0D, 0x2A));
    EXPECT_EQ(AddTextVC::rowTitle({ "Text", 0 }), "Unknown Font");
    EXPECT_EQ(AddTextVC::rowTitle({ "Text", 4 }), "Text");
    EXPECT_EQ(AddTextVC::systemFontName("Semibold"), "SFUIText-Semibold");
    EXPECT_EQ(AddTextVC::systemFontName("Heavy"), "SFUIText-Regular");
    EXPECT_EQ(AddTextVC::systemFontName("bold"), "SFUIText-Regular");
}
