// The pickers over a real editor: what they hand back reaches the document, as one step, and the store.
#include "addnewbackgroundvc.h"
#include "backgroundimageview.h"
#include "bgcontentcategorypagervc.h"
#include "catalogcontentpage.h"
#include "createcolorcell.h"
#include "designstore.h"
#include "editimageportraitmode.h"
#include "imagecache.h"
#include "mapper.h"
#include "pickerfixture.h"
#include "resizableimageview.h"
#include "stickercontentcategorypagervc.h"

#include <gtest/gtest.h>

namespace {

using State = CatalogScreen::LoadingState;

class EditorPickers : public ::testing::Test, public PickerFixture<EditImagePortraitMode>
{
protected:
    EditorPickers()
        : PickerFixture([](EditImagePortraitMode &editor) {
            editor.setCanvasArea(QRectF(0, 0, 360, 640));
            editor.screenSize = QSizeF(360, 640);
            editor.contentJson = Mapper::map<Json>(
                QStringLiteral(R"({"width": 360, "height": 640, "background_json": {"background_color": "#336699"}})"));
        })
    { }

    void SetUp() override { ImageCache::shared().clearMemory(); }

    /** A pager pushed over the editor, on the catalog tab `tab` once it has its pictures. */
    template<class Pager> CatalogContentPage *catalogTab(const QString &identifier, int tab)
    {
        auto *pager = push<Pager>(identifier);
        if (!waitFor([pager] { return pager->loadingState() == State::Loaded; }))
            return nullptr;
        pager->setCurrentIndex(tab);
        auto *page = qobject_cast<CatalogContentPage *>(pager->pages().value(tab));
        if (!page || !waitFor([page] { return page->loadingState() == State::Loaded; }))
            return nullptr;
        return page;
    }

    AddNewBackgroundVC *ownBackgroundPage()
    {
        auto *pager = push<BGContentCategoryPagerVC>(QStringLiteral("BGContentCategoryPagerVC"));
        if (!waitFor([pager] { return pager->loadingState() != State::Loading; }))
            return nullptr;
        return qobject_cast<AddNewBackgroundVC *>(pager->pages().value(0));
    }

    /** The document of the design's row in the store. */
    static std::shared_ptr<Json> stored()
    {
        const QList<SavePhoto> rows = DesignStore().allDesigns();
        return rows.size() == 1 ? Mapper::map<Json>(rows.first().jsonString) : nullptr;
    }

    [[nodiscard]] bool backAtTheEditor() const
    {
        return navigation.depth() == 1 && navigation.topViewController() == editor;
    }
};

} // namespace

TEST_F(EditorPickers, ACatalogBackgroundIsOneStepOfTheDocumentAndStored)
{
    ASSERT_TRUE(editor->masterJson);
    CatalogContentPage *page = catalogTab<BGContentCategoryPagerVC>(QStringLiteral("BGContentCategoryPagerVC"), 1);
    ASSERT_TRUE(page);
    // The pager and its pages go once the picture reaches the editor.
    const QString address = *page->itemsArray.at(2)->original_img;
    page->didSelectItem(2);
    ASSERT_TRUE(waitFor([this] { return backAtTheEditor(); }));

    EXPECT_EQ(editor->bg_image_url, address);
    EXPECT_EQ(editor->backgroundImageView->image().size(), QSize(1080, 1920));
    const auto background = editor->masterJson->background_json;
    ASSERT_TRUE(background);
    EXPECT_FALSE(background->background_color.has_value());
    const QString file = background->background_image.value_or(QString());
    EXPECT_EQ(QImage(home.filePath(QStringLiteral("Documents/") + file)).size(), QSize(1080, 1920));
    EXPECT_EQ(editor->undoArray().size(), 2);
    const auto row = stored();
    ASSERT_TRUE(row && row->background_json);
    EXPECT_EQ(row->background_json->background_image, file);

    editor->undo();
    EXPECT_TRUE(editor->backgroundImageView->image().isNull());
    EXPECT_EQ(editor->masterJson->background_json->background_color, "#336699");
}

TEST_F(EditorPickers, AColourAndTransparentReplaceTheBackgroundEachAsOneStep)
{
    AddNewBackgroundVC *own = ownBackgroundPage();
    ASSERT_TRUE(own);
    // The custom colour starts from the editor's colour.
    EXPECT_EQ(editor->backgroundColor(), QColor(0x33, 0x66, 0x99));
    own->colorCell()->select(4);
    ASSERT_TRUE(backAtTheEditor());
    EXPECT_EQ(editor->masterJson->background_json->background_color, "#e05863");
    EXPECT_EQ(editor->backgroundImageView->backgroundColor(), QColor(0xE0, 0x58, 0x63));
    EXPECT_EQ(editor->backgroundColor(), QColor(0xE0, 0x58, 0x63));
    EXPECT_EQ(editor->undoArray().size(), 2);

    own = ownBackgroundPage();
    ASSERT_TRUE(own);
    own->colorCell()->select(1); // "Transparent"
    ASSERT_TRUE(backAtTheEditor());
    EXPECT_EQ(editor->masterJson->background_json->background_color, QString());
    EXPECT_EQ(editor->backgroundImageView->backgroundColor().alpha(), 0);
    EXPECT_FALSE(editor->backgroundColor().has_value());
    EXPECT_EQ(editor->undoArray().size(), 3);
    const auto row = stored();
    ASSERT_TRUE(row && row->background_json);
    EXPECT_EQ(row->background_json->background_color, QString());

    editor->undo();
    EXPECT_EQ(editor->backgroundImageView->backgroundColor(), QColor(0xE0, 0x58, 0x63));
    EXPECT_EQ(editor->masterJson->background_json->background_color, "#e05863");
}

TEST_F(EditorPickers, ACatalogStickerBecomesALayerWithItsCatalogEntry)
{
    CatalogContentPage *page
        = catalogTab<StickerContentCategoryPagerVC>(QStringLiteral("StickerContentCategoryPagerVC"), 2);
    ASSERT_TRUE(page);
    page->didSelectItem(1);
    ASSERT_TRUE(waitFor([this] { return backAtTheEditor(); }));

    QList<ResizableImageView *> stickers;
    for (View *view : editor->viewMain->subviews()) {
        if (auto *sticker = qobject_cast<ResizableImageView *>(view))
            stickers.append(sticker);
    }
    ASSERT_EQ(stickers.size(), 1);
    EXPECT_FALSE(stickers.first()->contentImageView->image().isNull());
    const auto &records = editor->masterJson->sticker_json;
    ASSERT_TRUE(records && records->size() == 1);
    EXPECT_EQ(records->first()->selected_sticker_id, 47);
    EXPECT_EQ(records->first()->selected_sticker_catalog_id, 202);
    EXPECT_TRUE(editor->picked.newStickerImage.isNull()); // taken once
    EXPECT_EQ(editor->undoArray().size(), 2);
    const auto row = stored();
    ASSERT_TRUE(row && row->sticker_json);
    EXPECT_EQ(row->sticker_json->size(), 1);
}
