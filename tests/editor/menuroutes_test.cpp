// The screens that the top level and the tool rows open over the editor, with the fields they are given.
#include "addtextvc.h"
#include "contentcategorypager.h"
#include "cropscreens.h"
#include "designstore.h"
#include "editimageportraitmode.h"
#include "editorscreens.h"
#include "mapper.h"
#include "mydesignsscreens.h"
#include "navigationcontroller.h"
#include "pickerscreens.h"
#include "picturesourcesheet.h"
#include "resizableview.h"
#include "storyboard.h"
#include "testhome.h"
#include "toolmenus.h"

#include <gtest/gtest.h>

namespace {

// An editor at the root of a stack with the application's screens; the pagers have no server to ask.
struct RoutedEditor
{
    explicit RoutedEditor(const char *json)
    {
        EditorScreens::registerScreens(storyboard);
        CropScreens::registerScreens(storyboard);
        PickerScreens::registerScreens(storyboard, nullptr, {});
        MyDesignsScreens::registerScreens(storyboard);
        editor->setStoryboard(&storyboard);
        editor->setDesignStore(&store);
        editor->setCanvasArea(QRectF(0, 0, 360, 640));
        editor->contentJson = Mapper::map<Json>(QString::fromUtf8(json));
        navigation.setRoot(editor);
    }

    // Taps a top-level row and reports the screen it pushed, popping back to the editor.
    QString open(int row)
    {
        editor->menus()->didSelectTopRow(row);
        ViewController *top = navigation.topViewController();
        QString name = top == editor ? QString() : QString::fromLatin1(top->metaObject()->className());
        if (auto *pager = qobject_cast<ContentCategoryPager *>(top)) {
            lastCategory = pager->categoryId;
            lastVcTag = pager->vcTag;
        } else if (top != editor && top->property("vcTag").isValid()) {
            lastVcTag = top->property("vcTag").toInt();
        }
        while (navigation.depth() > 1)
            navigation.pop(false);
        return name;
    }

    TestHome home;
    DesignStore store;
    Storyboard storyboard;
    NavigationController navigation;
    EditImagePortraitMode *editor = new EditImagePortraitMode();
    qint64 lastCategory = 0;
    int lastVcTag = 0;
};

} // namespace

TEST(MenuRoutes, TopLevelRowsOpenTheirScreensByRowNumber)
{
    RoutedEditor f(R"({"width": 360, "height": 640})");
    EXPECT_EQ(f.open(0), QStringLiteral("AddTextVC"));
    EXPECT_EQ(f.open(1), QStringLiteral("PictureSourceSheet"));
    EXPECT_EQ(f.editor->imagePickerTag(), ImagePickerTarget::stickerTag);
    EXPECT_EQ(f.open(2), QStringLiteral("BGContentCategoryPagerVC"));
    EXPECT_EQ(f.lastVcTag, 1);
    for (const auto &[row, category] : { std::pair { 3, 47 }, { 4, 49 }, { 5, 50 } }) {
        EXPECT_EQ(f.open(row), QStringLiteral("StickerContentCategoryPagerVC"));
        EXPECT_EQ(f.lastCategory, category);
    }
    EXPECT_EQ(f.open(6), QStringLiteral("MyArtVC"));
    EXPECT_EQ(f.lastVcTag, 1);
    EXPECT_EQ(f.open(7), QStringLiteral("MyDesignVC"));
    EXPECT_EQ(f.open(8), QString());
}

// Without "Bkground" the row that shows "Graphics" is row 2, and row 2 opens the background pager: kept so.
TEST(MenuRoutes, APictureInPictureDesignKeepsTheRowNumbersActions)
{
    RoutedEditor f(R"({"width": 360, "height": 640, "is_pip": true,
        "text_json": [{"text": "Slide", "xPos": 40, "yPos": 300, "size": 30}]})");
    ASSERT_EQ(f.editor->menus()->barTexts().at(2), QStringLiteral("Graphics"));
    EXPECT_EQ(f.open(2), QStringLiteral("BGContentCategoryPagerVC"));
    // Rows 3 to 5 open the selected text's tools instead of a pager.
    EXPECT_EQ(f.open(3), QString());
    for (View *view : f.editor->viewMain->subviews()) {
        if (auto *text = qobject_cast<ResizableView *>(view))
            text->tapGesture();
    }
    f.editor->menus()->didSelectTopRow(4);
    EXPECT_EQ(f.editor->menus()->menuTag(), MenuTag::fontTag);
}

TEST(MenuRoutes, TheTextsEditRowOpensTheEntryWithTheText)
{
    RoutedEditor f(R"({"width": 360, "height": 640,
        "text_json": [{"text": "Slide", "fontName": "Montserrat-Bold", "xPos": 40, "yPos": 300, "size": 30}]})");
    for (View *view : f.editor->viewMain->subviews()) {
        if (auto *text = qobject_cast<ResizableView *>(view))
            text->tapGesture();
    }
    ToolMenus &menus = *f.editor->menus();
    menus.didSelectContentRow(0);
    auto *entry = qobject_cast<AddTextVC *>(f.navigation.topViewController());
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->editText, QStringLiteral("Slide"));
    EXPECT_EQ(entry->editFont, QStringLiteral("Montserrat-Bold"));
    entry->setDemoText(QStringLiteral("Glide"));
    entry->done();
    ASSERT_EQ(f.navigation.topViewController(), f.editor);
    bool changed = false;
    for (View *view : f.editor->viewMain->subviews()) {
        if (auto *text = qobject_cast<ResizableView *>(view))
            changed = text->textJson->text == QStringLiteral("Glide");
    }
    EXPECT_TRUE(changed);
}
