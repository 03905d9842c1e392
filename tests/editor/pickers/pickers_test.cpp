// The background and sticker pickers against the content server, handing their results to an editor.
#include "addnewbackgroundvc.h"
#include "addstickervc.h"
#include "alertmodel.h"
#include "bgcontentcategorypagervc.h"
#include "bgcontentvc.h"
#include "customcolorpicker.h"
#include "imagecache.h"
#include "pickerfixture.h"
#include "stickercontentcategorypagervc.h"
#include "stickercontentvc.h"

#include <QProcess>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

using State = CatalogScreen::LoadingState;

class Pickers : public ::testing::Test, public PickerFixture<>
{
protected:
    void SetUp() override { ImageCache::shared().clearMemory(); }

    BGContentCategoryPagerVC *backgrounds()
    {
        auto *pager = push<BGContentCategoryPagerVC>(QStringLiteral("BGContentCategoryPagerVC"));
        EXPECT_TRUE(waitFor([pager] { return pager->loadingState() != State::Loading; }));
        return pager;
    }

    StickerContentCategoryPagerVC *stickers(qint64 category, const QString &name, int vcTag)
    {
        auto *pager = push<StickerContentCategoryPagerVC>(
            QStringLiteral("StickerContentCategoryPagerVC"), [&](StickerContentCategoryPagerVC &p) {
                p.categoryId = category;
                p.categoryName = name;
                p.vcTag = vcTag;
            });
        EXPECT_TRUE(waitFor([pager] { return pager->loadingState() != State::Loading; }));
        return pager;
    }

    /** Shows a catalog's tab and waits for its pictures. */
    static CatalogContentPage *showTab(ContentCategoryPager *pager, int tab)
    {
        pager->setCurrentIndex(tab);
        auto *page = qobject_cast<CatalogContentPage *>(pager->pages().value(tab));
        EXPECT_TRUE(page && waitFor([page] { return page->loadingState() != State::Loading; }));
        return page;
    }

    [[nodiscard]] bool backAtTheEditor() const
    {
        return navigation.depth() == 1 && navigation.topViewController() == editor;
    }

    QString picturePath()
    {
        const QString path = home.filePath(QStringLiteral("own.png"));
        QProcess ffmpeg;
        ffmpeg.start(QStringLiteral("ffmpeg"),
            { "-loglevel", "error", "-y", "-f", "lavfi", "-i", "testsrc2=size=320x480", "-frames:v", "1", path });
        EXPECT_TRUE(ffmpeg.waitForFinished(30000) && ffmpeg.exitCode() == 0);
        return path;
    }
};

} // namespace

TEST_F(Pickers, BackgroundPagerShowsPickYourOwnThenOneTabPerCatalog)
{
    BGContentCategoryPagerVC *pager = backgrounds();
    EXPECT_EQ(pager->title(), QStringLiteral("BACKGROUNDS"));
    ASSERT_EQ(pager->loadingState(), State::Loaded);
    EXPECT_EQ(pager->tabTitles(), (QStringList { "Pick your own", "Photos", "Gradients", "Abstract" }));
    const QList<QObject *> pages = pager->pages();
    ASSERT_EQ(pages.size(), 4);
    EXPECT_EQ(static_cast<ViewController *>(pages.at(0))->identifier(), QStringLiteral("AddNewBackgroundVC"));
    QList<qint64> catalogs;
    for (int i = 1; i < 4; ++i) {
        auto *page = qobject_cast<BGContentVC *>(pages.at(i));
        ASSERT_TRUE(page);
        catalogs.append(page->catalog_id);
        // A catalog's pictures load when its tab first shows.
        EXPECT_EQ(page->loadingState(), State::Loading);
    }
    EXPECT_EQ(catalogs, (QList<qint64> { 301, 302, 303 }));
}

TEST_F(Pickers, CatalogPictureBecomesTheEditorsBackgroundWithItsAddress)
{
    BGContentCategoryPagerVC *pager = backgrounds();
    CatalogContentPage *page = showTab(pager, 1);
    ASSERT_TRUE(page);
    ASSERT_EQ(page->loadingState(), State::Loaded);
    ASSERT_EQ(page->itemsArray.size(), 12);
    EXPECT_FALSE(page->isEmpty());
    EXPECT_TRUE(page->thumbnails().first().startsWith(QStringLiteral("image://cache/http://")));
    EXPECT_TRUE(page->thumbnails().first().endsWith(QStringLiteral("_thumb.jpg")));

    // The pager and its pages go once the picture reaches the editor.
    const QString address = *page->itemsArray.at(2)->original_img;
    page->didSelectItem(2);
    EXPECT_TRUE(page->isPreparing());
    ASSERT_TRUE(waitFor([this] { return !editor->newBgImage.isNull(); }));
    EXPECT_EQ(editor->newBgImage.size(), QSize(1080, 1920));
    EXPECT_EQ(editor->bg_image_url, address);
    EXPECT_TRUE(backAtTheEditor());
    EXPECT_EQ(editor->appearances, 2);
}

TEST_F(Pickers, EmptyCatalogShowsTheEmptyState)
{
    auto *page = push<BGContentVC>(QStringLiteral("BGContentVC"), [](BGContentVC &p) { p.catalog_id = 999; });
    ASSERT_TRUE(waitFor([page] { return page->loadingState() == State::Loaded; }));
    EXPECT_TRUE(page->isEmpty());
    EXPECT_TRUE(page->thumbnails().isEmpty());
}

TEST_F(Pickers, WithoutServerOrCacheThePagerFailsAndRetryRecovers)
{
    server.server().setRefuseConnections(true);
    BGContentCategoryPagerVC *pager = backgrounds();
    EXPECT_EQ(pager->loadingState(), State::Failed);
    // The own page stays usable without a connection.
    EXPECT_EQ(pager->tabTitles(), QStringList { QStringLiteral("Pick your own") });

    server.server().setRefuseConnections(false);
    pager->retry();
    ASSERT_TRUE(waitFor([pager] { return pager->loadingState() == State::Loaded; }));
    EXPECT_EQ(pager->tabTitles().size(), 4);
}

TEST_F(Pickers, CachedCatalogsShowAtOnceAndAFailedCallLeavesThem)
{
    BGContentCategoryPagerVC *first = backgrounds();
    ASSERT_TRUE(showTab(first, 2));
    navigation.pop(false);

    server.server().setRefuseConnections(true);
    auto *pager = push<BGContentCategoryPagerVC>(QStringLiteral("BGContentCategoryPagerVC"));
    // Shown before the server answers.
    EXPECT_EQ(pager->loadingState(), State::Loaded);
    EXPECT_EQ(pager->tabTitles().size(), 4);
    CatalogContentPage *page = showTab(pager, 2);
    ASSERT_TRUE(page);
    EXPECT_EQ(page->itemsArray.size(), 12);
    // A refused connection fails at once; the cached content stays.
    QTest::qWait(500);
    EXPECT_EQ(pager->loadingState(), State::Loaded);
    EXPECT_EQ(page->loadingState(), State::Loaded);
}

TEST_F(Pickers, APictureThatCannotBeLoadedSaysSoAndStays)
{
    BGContentCategoryPagerVC *pager = backgrounds();
    CatalogContentPage *page = showTab(pager, 3);
    ASSERT_TRUE(page);
    ASSERT_FALSE(page->itemsArray.isEmpty());
    server.server().setRefuseConnections(true);
    page->didSelectItem(0);
    ASSERT_TRUE(waitFor([this] { return navigation.alert() != nullptr; }));
    EXPECT_EQ(navigation.alert()->message(),
        QStringLiteral("The picture could not be loaded. Please check your connection and try again."));
    EXPECT_FALSE(page->isPreparing());
    EXPECT_TRUE(editor->newBgImage.isNull());
    EXPECT_EQ(navigation.topViewController(), pager);
}

TEST_F(Pickers, ColourStripHandsBackColoursAndTransparent)
{
    BGContentCategoryPagerVC *pager = backgrounds();
    auto *own = qobject_cast<AddNewBackgroundVC *>(pager->pages().first());
    ASSERT_TRUE(own);
    CreateColorCell *cell = own->colorCell();
    ASSERT_EQ(cell->rows().size(), 5);
    EXPECT_EQ(cell->rows().at(0).toMap().value("title"), QStringLiteral("Custom"));
    EXPECT_EQ(cell->rows().at(0).toMap().value("icon"), QStringLiteral("color_picker"));
    EXPECT_EQ(cell->rows().at(1).toMap().value("title"), QStringLiteral("Transparent"));
    EXPECT_EQ(cell->rows().at(1).toMap().value("picture"), QStringLiteral("img_transperent_bg_bright"));
    EXPECT_EQ(cell->rows().at(4).toMap().value("color").value<QColor>(), QColor(0xE0, 0x58, 0x63));

    cell->select(4);
    EXPECT_EQ(cell->selectedIndex(), 4);
    ASSERT_TRUE(editor->pickedColor.has_value());
    EXPECT_EQ(*editor->pickedColor, QColor(0xE0, 0x58, 0x63));
    EXPECT_EQ(own->setColor, QColor(0xE0, 0x58, 0x63));
    EXPECT_TRUE(backAtTheEditor());

    pager = backgrounds();
    qobject_cast<AddNewBackgroundVC *>(pager->pages().first())->colorCell()->select(1);
    ASSERT_TRUE(editor->pickedColor.has_value());
    EXPECT_FALSE(editor->pickedColor->has_value());
    EXPECT_TRUE(backAtTheEditor());
}

TEST_F(Pickers, CustomColourStartsFromTheEditorsColourAndComesBackToIt)
{
    editor->currentColor = QColor(0x11, 0x88, 0xCC);
    BGContentCategoryPagerVC *pager = backgrounds();
    qobject_cast<AddNewBackgroundVC *>(pager->pages().first())->colorCell()->select(0);
    auto *picker = qobject_cast<CustomColorPicker *>(navigation.topViewController());
    ASSERT_TRUE(picker);
    EXPECT_EQ(picker->color().name(), QStringLiteral("#1188cc"));
    EXPECT_EQ(picker->hexText(), QStringLiteral("1188CC"));
    EXPECT_FALSE(picker->setHexText(QStringLiteral("12345")));
    EXPECT_FALSE(picker->setHexText(QStringLiteral("GG0000")));
    EXPECT_TRUE(picker->setHexText(QStringLiteral("#00ff00")));
    picker->setBrightness(0.6);
    picker->done();
    ASSERT_TRUE(editor->pickedColor.has_value());
    EXPECT_EQ(editor->pickedColor->value().name(), QStringLiteral("#009900"));
    EXPECT_TRUE(backAtTheEditor());
}

TEST_F(Pickers, CancelledColourPickerLeavesTheEditorAlone)
{
    BGContentCategoryPagerVC *pager = backgrounds();
    qobject_cast<AddNewBackgroundVC *>(pager->pages().first())->colorCell()->select(0);
    auto *picker = qobject_cast<CustomColorPicker *>(navigation.topViewController());
    ASSERT_TRUE(picker);
    EXPECT_EQ(picker->color().name(), QStringLiteral("#ffffff"));
    picker->cancel();
    EXPECT_EQ(navigation.topViewController(), pager);
    EXPECT_FALSE(editor->pickedColor.has_value());
}

TEST_F(Pickers, OwnPictureFromTheGalleryBecomesTheBackground)
{
    BGContentCategoryPagerVC *pager = backgrounds();
    auto *own = qobject_cast<AddNewBackgroundVC *>(pager->pages().first());
    ASSERT_TRUE(own);
    QSignalSpy gallery(own, &OwnPicturePage::galleryRequested);
    EXPECT_EQ(own->rows().size(), 2);
    own->selectRow(0);
    EXPECT_EQ(gallery.size(), 1);

    // A file that is no picture is refused and nothing reaches the editor.
    QFile text(home.filePath(QStringLiteral("notes.png")));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("not a picture");
    text.close();
    own->pickedFile(QUrl::fromLocalFile(text.fileName()));
    ASSERT_TRUE(waitFor([this] { return navigation.alert() != nullptr; }));
    EXPECT_EQ(navigation.alert()->message(), QStringLiteral("This file is not a picture that can be opened."));
    navigation.alert()->trigger(QStringLiteral("OK"));
    EXPECT_TRUE(editor->newBgImage.isNull());

    own->pickedFile(QUrl::fromLocalFile(picturePath()));
    ASSERT_TRUE(waitFor([this] { return !editor->newBgImage.isNull(); }));
    EXPECT_EQ(editor->newBgImage.size(), QSize(320, 480));
    EXPECT_TRUE(editor->bg_image_url.isEmpty());
    EXPECT_TRUE(backAtTheEditor());
}

TEST_F(Pickers, StickerPagerOfACategoryReplacesTheSelectedStickerWithTag1)
{
    StickerContentCategoryPagerVC *pager = stickers(49, QStringLiteral("Shapes"), 1);
    EXPECT_EQ(pager->title(), QStringLiteral("Shapes"));
    EXPECT_EQ(pager->tabTitles(), (QStringList { "Pick your own", "Basic Shapes" }));
    EXPECT_EQ(static_cast<ViewController *>(pager->pages().first())->identifier(), QStringLiteral("AddStickerVC"));
    CatalogContentPage *page = showTab(pager, 1);
    ASSERT_TRUE(page);
    ASSERT_TRUE(qobject_cast<StickerContentVC *>(page));
    page->didSelectItem(0);
    ASSERT_TRUE(waitFor([this] { return editor->sticker.has_value(); }));
    EXPECT_FALSE(editor->sticker->newStickerImage.isNull());
    EXPECT_TRUE(editor->sticker->isStickerChange);
    EXPECT_FALSE(editor->sticker->newStickerHasColor);
    EXPECT_EQ(editor->sticker->selected_sticker_id, 49);
    EXPECT_EQ(editor->sticker->selected_sticker_catalog_id, 211);
    EXPECT_TRUE(backAtTheEditor());
}

TEST_F(Pickers, StickerPagerDefaultsToGraphicsAndAddsANewSticker)
{
    auto *pager = push<StickerContentCategoryPagerVC>(QStringLiteral("StickerContentCategoryPagerVC"));
    EXPECT_EQ(pager->categoryId, 47);
    EXPECT_EQ(pager->title(), QStringLiteral("Graphics"));
    ASSERT_TRUE(waitFor([pager] { return pager->loadingState() == State::Loaded; }));
    EXPECT_EQ(pager->tabTitles(), (QStringList { "Pick your own", "Party & Love", "Nature" }));
    CatalogContentPage *page = showTab(pager, 2);
    ASSERT_TRUE(page);
    page->didSelectItem(1);
    ASSERT_TRUE(waitFor([this] { return editor->sticker.has_value(); }));
    EXPECT_FALSE(editor->sticker->isStickerChange);
    EXPECT_EQ(editor->sticker->selected_sticker_catalog_id, 202);
}

TEST_F(Pickers, StickerPagerOpensOnTheSelectedStickersCatalog)
{
    auto *pager = push<StickerContentCategoryPagerVC>(
        QStringLiteral("StickerContentCategoryPagerVC"), [](StickerContentCategoryPagerVC &p) {
            p.categoryId = 47;
            p.selected_sticker_catalog_id = 202;
        });
    ASSERT_TRUE(waitFor([pager] { return pager->loadingState() == State::Loaded; }));
    EXPECT_EQ(pager->currentIndex(), 2);
    auto *page = qobject_cast<CatalogContentPage *>(pager->pages().at(2));
    ASSERT_TRUE(waitFor([page] { return page->loadingState() == State::Loaded; }));
    EXPECT_EQ(page->catalog_id, 202);
}

TEST_F(Pickers, OwnStickerComesThroughTheChooseImageSheetAndKeepsItsColours)
{
    StickerContentCategoryPagerVC *pager = stickers(50, QStringLiteral("Text Arts"), 0);
    auto *own = qobject_cast<AddStickerVC *>(pager->pages().first());
    ASSERT_TRUE(own);
    ASSERT_EQ(own->rows().size(), 1);
    EXPECT_EQ(own->rows().first().toMap().value("title"), QStringLiteral("Choose Image"));
    EXPECT_EQ(own->rows().first().toMap().value("image"), QStringLiteral("bg_album"));
    QSignalSpy gallery(own, &OwnPicturePage::galleryRequested);
    own->selectRow(0);
    AlertModel *sheet = navigation.alert();
    ASSERT_TRUE(sheet);
    EXPECT_EQ(sheet->title(), QStringLiteral("Choose Image From"));
    EXPECT_TRUE(sheet->isActionSheet());
    EXPECT_EQ(sheet->actionTitles(), (QStringList { "Choose Image", "Cancel" }));
    sheet->trigger(QStringLiteral("Choose Image"));
    EXPECT_EQ(gallery.size(), 1);

    own->pickedFile(QUrl::fromLocalFile(picturePath()));
    ASSERT_TRUE(waitFor([this] { return editor->sticker.has_value(); }));
    EXPECT_EQ(editor->sticker->newStickerImage.size(), QSize(320, 480));
    EXPECT_TRUE(editor->sticker->newStickerHasColor);
    EXPECT_FALSE(editor->sticker->isStickerChange);
    EXPECT_EQ(editor->sticker->selected_sticker_id, 50);
    EXPECT_FALSE(editor->sticker->selected_sticker_catalog_id.has_value());
}

TEST_F(Pickers, TheEditorNamedAsSuperControllerTakesTheResult)
{
    auto *upper = new FakeEditor();
    navigation.push(upper, false);
    auto *pager = push<BGContentCategoryPagerVC>(QStringLiteral("BGContentCategoryPagerVC"),
        [this](BGContentCategoryPagerVC &p) { p.superController = editor; });
    qobject_cast<AddNewBackgroundVC *>(pager->pages().first())->colorCell()->select(2);
    EXPECT_TRUE(editor->pickedColor.has_value());
    EXPECT_FALSE(upper->pickedColor.has_value());
    EXPECT_TRUE(backAtTheEditor());
}
