// The font library against the content server: the list and its migration, downloads with their
// outcomes, whole catalogs, custom fonts and the pages' words.
#include "alertmodel.h"
#include "apppaths.h"
#include "contentserverfixture.h"
#include "fontlist.h"
#include "fontpickercustomvc.h"
#include "fontpickerdownloadvc.h"
#include "fontpickerfontlistvc.h"
#include "fontpickerpagervc.h"
#include "fontregistry.h"
#include "hostilenames.h"
#include "hostilesandbox.h"
#include "navigationcontroller.h"
#include "qffontpicker.h"
#include "testhome.h"
#include "userdefaults.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

struct Download
{
    std::optional<QString> error;
    bool success = false;
    std::optional<QString> name;
    bool done = false;
};

class Fontpicker : public ::testing::Test
{
protected:
    Fontpicker()
        : library(&network, FontpickerConnection { 37, {}, {}, QUrl(server.apiBase()), {}, {}, {} })
    { }

    Download download(const QString &url)
    {
        Download result;
        library.downloadFont(
            url, nullptr, [&](const std::optional<QString> &error, bool success, const std::optional<QString> &name) {
                result = { error, success, name, true };
            });
        EXPECT_TRUE(QTest::qWaitFor([&] { return result.done; }, 15000));
        return result;
    }

    [[nodiscard]] static int textFonts()
    {
        const auto text = FontList::textCatalog(FontList::read().value_or(FontList::Catalogs()));
        return text && text->font_list ? int(text->font_list->size()) : -1;
    }

    /** A font list of one catalog of another name, stored as the application would have it. */
    static void storeListWithout(const QString &catalogName, const QString &fontName)
    {
        auto catalog = std::make_shared<FontpickerFontJson>();
        catalog->catalog_id = 7;
        catalog->name = catalogName;
        auto font = std::make_shared<FontpickerFontList>();
        font->font_name = fontName;
        font->ios_font_name = fontName;
        catalog->font_list = QList<std::shared_ptr<FontpickerFontList>> { font };
        FontList::write({ catalog });
    }

    TestHome home;
    TestContentServer server;
    QNetworkAccessManager network;
    QFFontpicker library;
};

TEST_F(Fontpicker, StartSeedsTheShippedListAndRegistersItsFiles)
{
    library.start();
    const auto list = FontList::read();
    ASSERT_TRUE(list.has_value());
    EXPECT_TRUE(FontList::containsFontName(*list, QStringLiteral("LobsterTwo-BoldItalic")));
    EXPECT_EQ(textFonts(), 3);
    EXPECT_TRUE(FontRegistry::shared().contains(QStringLiteral("DancingScript")));
    EXPECT_TRUE(UserDefaults::standard().boolean(DefaultsKey::hasDeletedAlphaEchoFont, false));
}

TEST_F(Fontpicker, MissingOrBrokenDefaultGivesAnEmptyList)
{
    EXPECT_TRUE(FontList::readDefault(home.filePath(QStringLiteral("absent.json"))).isEmpty());
    QFile broken(home.filePath(QStringLiteral("broken.json")));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("{ not json");
    broken.close();
    EXPECT_TRUE(FontList::readDefault(broken.fileName()).isEmpty());
}

TEST_F(Fontpicker, AlphaEchoIsRemovedOnceAndALaterAdditionStays)
{
    storeListWithout(QStringLiteral("Text"), QStringLiteral("AlphaEcho"));
    library.start();
    EXPECT_FALSE(FontList::containsFontName(*FontList::read(), QStringLiteral("AlphaEcho")));
    storeListWithout(QStringLiteral("Text"), QStringLiteral("AlphaEcho"));
    library.start();
    EXPECT_TRUE(FontList::containsFontName(*FontList::read(), QStringLiteral("AlphaEcho")));
}

TEST_F(Fontpicker, DownloadRegistersAndListsAndASecondDownloadStillSucceedsOnce)
{
    library.start();
    const QString url = server.contentBase() + QStringLiteral("fonts/Cantarell-Regular.otf");
    const Download first = download(url);
    ASSERT_TRUE(first.success) << first.error.value_or(QString()).toStdString();
    EXPECT_EQ(first.name, QStringLiteral("Cantarell-Regular"));
    EXPECT_TRUE(QFile::exists(QDir(AppPaths::documents()).filePath(QStringLiteral("Cantarell-Regular.otf"))));
    EXPECT_EQ(textFonts(), 4);

    // Registered already: success and the name, and the file is not listed twice.
    const Download again = download(url);
    EXPECT_TRUE(again.success);
    EXPECT_EQ(again.name, QStringLiteral("Cantarell-Regular"));
    EXPECT_EQ(textFonts(), 4);
}

TEST_F(Fontpicker, ListWithoutTextCatalogTakesNoEntryWhileTheDownloadSucceeds)
{
    storeListWithout(QStringLiteral("Script"), QStringLiteral("Someone"));
    UserDefaults::standard().setBoolean(DefaultsKey::hasDeletedAlphaEchoFont, true);
    library.start();
    const Download result = download(server.contentBase() + QStringLiteral("fonts/Lato-Black.ttf"));
    EXPECT_TRUE(result.success);
    EXPECT_EQ(textFonts(), -1);
    EXPECT_FALSE(FontList::containsFontName(*FontList::read(), *result.name));
}

TEST_F(Fontpicker, FailedDownloadsAndFilesThatAreNoFontsLeaveNothingBehind)
{
    library.start();
    const Download missing = download(server.contentBase() + QStringLiteral("fonts/NoSuchFont.otf"));
    EXPECT_FALSE(missing.success);
    EXPECT_FALSE(QFile::exists(QDir(AppPaths::documents()).filePath(QStringLiteral("NoSuchFont.otf"))));

    // Not a font: refused before it lands, not listed.
    const Download picture = download(server.contentBase() + QStringLiteral("resource/abstract_0.jpg"));
    EXPECT_FALSE(picture.success);
    EXPECT_FALSE(QFile::exists(QDir(AppPaths::documents()).filePath(QStringLiteral("abstract_0.jpg"))));
    EXPECT_EQ(textFonts(), 3);

    // A string that makes no address: no completion at all.
    bool called = false;
    library.downloadFont(QStringLiteral("not an address"), nullptr,
        [&](const std::optional<QString> &, bool, const std::optional<QString> &) { called = true; });
    QTest::qWait(100);
    EXPECT_FALSE(called);
}

TEST_F(Fontpicker, TheListIsStoredAsAnArrayAndTheOlderTextFormStillReads)
{
    library.start();
    const QJsonValue stored = UserDefaults::standard().value(DefaultsKey::qfFontJson);
    ASSERT_TRUE(stored.isArray());
    EXPECT_EQ(stored.toArray().first().toObject().value(QStringLiteral("font_list")).type(), QJsonValue::Array);
    UserDefaults::standard().setString(
        DefaultsKey::qfFontJson, QString::fromUtf8(QJsonDocument(stored.toArray()).toJson()));
    EXPECT_TRUE(FontList::containsFontName(*FontList::read(), QStringLiteral("LobsterTwo-BoldItalic")));
}

TEST(FontpickerHostileServer, FontsStayInDocumentsAndNeverReplaceAFileThatIsNoFont)
{
    HostileSandbox sandbox;
    QFile font(QStringLiteral(QUILLET_SOURCE_ROOT "/src/editor/layers/fonts/BebasNeue-Regular.otf"));
    ASSERT_TRUE(font.open(QIODevice::ReadOnly));
    const QByteArray fontBytes = font.readAll();
    for (const QString &extension : { QStringLiteral(".ttf"), QStringLiteral(".otf") })
        sandbox.plant(extension, fontBytes);
    // A design picture, whose name the server gives one of its fonts.
    const QString design = QDir(AppPaths::documents()).filePath(QStringLiteral("20200101000000.jpg"));
    QImage(4, 4, QImage::Format_RGB32).save(design);
    QFile designFile(design);
    ASSERT_TRUE(designFile.open(QIODevice::ReadOnly));
    const QByteArray designBytes = designFile.readAll();
    designFile.close();

    TestContentServer server;
    server.server().setHostileNames(true, sandbox.outside().toStdString());
    QNetworkAccessManager network;
    QFFontpicker library(&network, FontpickerConnection { 37, {}, {}, QUrl(server.apiBase()), {}, {}, {} });
    library.start();
    for (const qint64 catalogId : { 401, 402, 403, 404 }) {
        FontpickerCatalogs catalog;
        catalog.catalog_id = catalogId;
        catalog.name = QStringLiteral("Hostile");
        std::optional<bool> fetched;
        library.fetchCatalog(catalog, nullptr, [&](bool success) { fetched = success; });
        ASSERT_TRUE(QTest::qWaitFor([&] { return fetched.has_value(); }, 15000));
        EXPECT_FALSE(*fetched) << "some of its fonts cannot be had";
    }
    // Each form once more by a single download, where it makes a web address.
    for (std::size_t n = 0; n < HostileNames::count(); ++n) {
        const QString address = QString::fromStdString(HostileNames::address(
            n, server.contentBase().toStdString(), "fonts/", ".ttf", sandbox.outside().toStdString()));
        if (!address.startsWith(QStringLiteral("http")))
            continue;
        bool done = false;
        library.downloadFont(address, nullptr,
            [&](const std::optional<QString> &, bool, const std::optional<QString> &) { done = true; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return done; }, 15000)) << n;
    }

    EXPECT_EQ(sandbox.strayFiles(), QStringList());
    for (const QString &file : QDir(AppPaths::documents()).entryList(QDir::Files))
        EXPECT_FALSE(file.startsWith(QStringLiteral("escape2")) || file.startsWith(QStringLiteral("escape3")))
            << "a local file was copied in: " << file.toStdString();
    ASSERT_TRUE(designFile.open(QIODevice::ReadOnly));
    EXPECT_EQ(designFile.readAll(), designBytes) << "the design picture was replaced";
    for (const auto &catalog : FontList::read().value_or(FontList::Catalogs())) {
        for (const auto &listed : catalog->font_list.value_or(QList<std::shared_ptr<FontpickerFontList>>()))
            EXPECT_FALSE(listed->font_url.value_or(QString()).startsWith(sandbox.outside()));
    }
}

TEST_F(Fontpicker, CatalogPagesFetchWholeCatalogsOnceAndSayWhenTheyFail)
{
    library.start();
    NavigationController navigation;
    auto *pager = new FontpickerPagerVC();
    pager->setFontpicker(&library);
    navigation.setRoot(pager);
    EXPECT_EQ(pager->title(), QStringLiteral("Fonts"));
    EXPECT_EQ(pager->tabTitles(),
        (QStringList {
            QStringLiteral("DOWNLOADED"), QStringLiteral("FREE"), QStringLiteral("PAID"), QStringLiteral("CUSTOM") }));
    FontpickerFontListVC *free = pager->freePage();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !free->isLoading() && !pager->paidPage()->isLoading(); }, 15000));
    ASSERT_EQ(free->catalogs().size(), 2);
    EXPECT_EQ(free->catalogs().at(0)->name, QStringLiteral("Script"));
    EXPECT_EQ(pager->paidPage()->catalogs().size(), 2);
    EXPECT_TRUE(library.cachedCatalogsByTypeInWebp(1).has_value());

    free->didSelectItem(0);
    ASSERT_NE(navigation.alert(), nullptr);
    EXPECT_EQ(navigation.alert()->title(), QStringLiteral("Downloading\u2026"));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            return navigation.alert()
                && navigation.alert()->message() == QStringLiteral("Fonts downloaded successfully.");
        },
        15000));
    navigation.alert()->trigger(QStringLiteral("OK"));
    EXPECT_TRUE(FontList::containsCatalog(*FontList::read(), 401));
    EXPECT_TRUE(free->itemsArray().at(0).toMap().value(QStringLiteral("downloaded")).toBool());

    free->didSelectItem(0);
    ASSERT_NE(navigation.alert(), nullptr);
    EXPECT_EQ(navigation.alert()->message(), QStringLiteral("Font already exist."));
    navigation.alert()->trigger(QStringLiteral("OK"));

    // A catalog whose fonts cannot be fetched leaves no partial catalog behind.
    server.server().forceCode("getAllFontsByCatalogId", 500, -1);
    free->didSelectItem(1);
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return navigation.alert() && navigation.alert()->message() == QStringLiteral("Please try again."); },
        15000));
    EXPECT_FALSE(FontList::containsCatalog(*FontList::read(), 402));
}

TEST_F(Fontpicker, CustomFontsAreCheckedCopiedAndListedBehindTheLicenceNotice)
{
    library.start();
    NavigationController navigation;
    auto *pager = new FontpickerPagerVC();
    pager->setFontpicker(&library);
    navigation.setRoot(new ViewController());
    navigation.push(pager, false);
    pager->setCurrentIndex(3);
    ASSERT_NE(navigation.alert(), nullptr);
    EXPECT_EQ(navigation.alert()->title(), QStringLiteral("Alert"));
    EXPECT_EQ(
        navigation.alert()->actionTitles(), (QStringList { QStringLiteral("CANCEL"), QStringLiteral("I ACCEPT") }));
    navigation.alert()->trigger(QStringLiteral("I ACCEPT"));
    EXPECT_TRUE(UserDefaults::standard().boolean(DefaultsKey::hasOpenCustomFontpicker, false));

    QTemporaryDir picked;
    const QString source = QStringLiteral(QUILLET_SOURCE_ROOT "/src/editor/layers/fonts/");
    EXPECT_EQ(
        library.addCustomFont(source + QStringLiteral("LICENSES.md")), QStringLiteral("Please select valid font."));
    // Same PostScript name as a listed font, whatever the file: refused.
    const QString renamed = picked.filePath(QStringLiteral("MyLobster.otf"));
    ASSERT_TRUE(QFile::copy(source + QStringLiteral("LobsterTwo-BoldItalic.otf"), renamed));
    EXPECT_EQ(library.addCustomFont(renamed), QStringLiteral("Font already exist."));

    const QString own = picked.filePath(QStringLiteral("Mine.ttf"));
    ASSERT_TRUE(QFile::copy(QStringLiteral("/usr/share/fonts/truetype/lato/Lato-Italic.ttf"), own));
    const int rowsBefore = int(pager->downloadPage()->rows().size());
    EXPECT_EQ(library.addCustomFont(own), QStringLiteral("Custom font has been added in downloaded list."));
    EXPECT_TRUE(QFile::exists(QDir(AppPaths::documents()).filePath(QStringLiteral("Mine.ttf"))));
    EXPECT_EQ(pager->downloadPage()->rows().size(), rowsBefore + 1);
}

TEST_F(Fontpicker, DownloadedPageShowsUnknownFontForANameNoFaceHas)
{
    library.start();
    FontList::addFont(
        QStringLiteral("ghost.ttf"), QStringLiteral("QuilletGhostFace"), QStringLiteral("/nowhere/ghost.ttf"));
    FontpickerDownloadVC page;
    page.setFontpicker(&library);
    const QVariantList rows = page.rows();
    ASSERT_EQ(rows.size(), 4);
    EXPECT_EQ(rows.at(0).toMap().value(QStringLiteral("text")).toString(), QStringLiteral("Lobster Two Bold Italic"));
    EXPECT_EQ(rows.at(3).toMap().value(QStringLiteral("text")).toString(), QStringLiteral("Unknown Font"));
    EXPECT_FALSE(rows.at(3).toMap().value(QStringLiteral("known")).toBool());
}

} // namespace
