// The "My Story" list against a real store file, real preview files and real movies: its rows, its sheet's
// actions and the alerts they give, and a design opened again through the preparation into its editor; and
// the editor's two pickers of the user's own pictures.
#include "alertmodel.h"
#include "apppaths.h"
#include "borderedresizableimageview.h"
#include "contentserverfixture.h"
#include "createownvc.h"
#include "designfiles.h"
#include "designsscreens.h"
#include "designstore.h"
#include "editimageportraitmode.h"
#include "editvideoportraitmode.h"
#include "fullscreenvc.h"
#include "fullvideoscreenvc.h"
#include "imagecache.h"
#include "mapper.h"
#include "myartvc.h"
#include "mydesignsscreens.h"
#include "mydesignvc.h"
#include "navigationcontroller.h"
#include "preparationscreens.h"
#include "previewwriter.h"
#include "printinteractioncontroller.h"
#include "qffontpicker.h"
#include "resizableimageview.h"
#include "resizableview.h"
#include "sampledocument.h"
#include "savedphotosmorevc.h"
#include "savedphotosvc.h"
#include "savedvideosmorevc.h"
#include "serverclient.h"
#include "showimagesample.h"
#include "staticresizableimageview.h"
#include "storyboard.h"
#include "testhome.h"
#include "testmedia.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QFile>
#include <QMap>
#include <QNetworkAccessManager>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

QStringList documentFiles()
{
    return QDir(AppPaths::documents()).entryList(QDir::Files, QDir::Name);
}

} // namespace

/** The list as the home shows it, on a fresh home, with the screens its actions open. */
class SavedPhotos : public ::testing::Test
{
protected:
    SavedPhotos()
        : client(&network, QUrl(server.apiBase()))
        , fontpicker(&network, FontpickerConnection { 37, {}, {}, QUrl(server.apiBase()), {}, {}, {} })
    {
        AppPaths::ensureCreated();
        ImageCache::shared().clearMemory();
        fontpicker.start();
        PreparationScreens::registerScreens(storyboard, &client, &fontpicker);
        const QUrl editorView(QStringLiteral("qrc:/Quillet/Editor/EditorView.qml"));
        storyboard.registerScreen<EditImagePortraitMode>(QStringLiteral("EditImagePortraitMode"), editorView);
        storyboard.registerScreen<EditVideoPortraitMode>(QStringLiteral("EditVideoPortraitMode"), editorView);
        storyboard.registerScreen<CreateOwnVC>(QStringLiteral("CreateOwnVC"), QUrl());
        storyboard.registerScreen<PrintInteractionController>(QStringLiteral("PrintInteractionController"), QUrl());
        DesignsScreens::registerScreens(storyboard);
        MyDesignsScreens::registerScreens(storyboard);
        navigation.setRoot(new ViewController());
    }

    /** Pushes the list, which reads the store. */
    SavedPhotosVC *openList()
    {
        list = qobject_cast<SavedPhotosVC *>(storyboard.instantiate(QStringLiteral("SavedPhotosVC")));
        navigation.push(list, false);
        return list;
    }

    /** A picture design saved by the user, with a rendered preview in Documents. */
    ObjectId savePicture(std::shared_ptr<Json> design = makeSampleDocument(0))
    {
        QImage preview(54, 96, QImage::Format_RGB32);
        preview.fill(Qt::darkCyan);
        design->sample_image = PreviewWriter::write(preview);
        design->is_editsaved = true;
        return *store.saveDesign(*Mapper::toJSONString(*design, true), std::nullopt, false);
    }

    /** A video design whose movie was stored under `folder`, as another container had it. */
    ObjectId saveVideo(const QString &movieName, const QString &folder)
    {
        auto design = makeSampleDocument(0);
        design->is_Video = true;
        design->sample_video = QUrl::fromLocalFile(folder + QLatin1Char('/') + movieName).toString();
        return *store.saveDesign(*Mapper::toJSONString(*design, true), std::nullopt, true);
    }

    /** Opens the sheet of `item` by a long press and presses its button. */
    void runAction(int item, void (SavedMoreSheet::*button)())
    {
        list->longPressed(item);
        auto *sheet = qobject_cast<SavedMoreSheet *>(navigation.topViewController());
        ASSERT_NE(sheet, nullptr);
        (sheet->*button)();
    }

    TestHome home;
    TestContentServer server;
    QNetworkAccessManager network;
    ServerClient client;
    QFFontpicker fontpicker;
    Storyboard storyboard;
    NavigationController navigation;
    DesignStore store;
    SavedPhotosVC *list = nullptr;
};

TEST_F(SavedPhotos, WithNoDesignsTheEmptyStateLeadsToTheBlankStart)
{
    openList();
    QAbstractItemModelTester tester(list->items(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_TRUE(list->noCardVisible());
    EXPECT_EQ(list->items()->rowCount(), 1);
    list->noCardBtnClicked();
    EXPECT_EQ(navigation.topIdentifier(), QStringLiteral("CreateOwnVC"));
}

TEST_F(SavedPhotos, CellZeroIsTheBlankStartAndNeverADesign)
{
    savePicture();
    saveVideo(QStringLiteral("1731672000123.gif"), AppPaths::documents());
    openList();
    QAbstractItemModelTester tester(list->items(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    ASSERT_FALSE(list->noCardVisible());
    SavedDesignsModel &items = *list->items();
    ASSERT_EQ(items.rowCount(), 3);
    EXPECT_TRUE(items.data(items.index(0), SavedDesignsModel::IsCreateOwnRole).toBool());
    EXPECT_TRUE(items.data(items.index(0), SavedDesignsModel::PictureRole).toString().isEmpty());
    // Newest first: the GIF design, then the picture, whose preview comes through the picture cache.
    EXPECT_TRUE(items.data(items.index(1), SavedDesignsModel::IsVideoGifRole).toBool());
    EXPECT_TRUE(items.data(items.index(2), SavedDesignsModel::PictureRole)
                    .toString()
                    .startsWith(QStringLiteral("image://cache/file://")));

    // Neither a long press nor the more button of cell 0 opens a sheet; a press outside any cell neither.
    const int depth = navigation.depth();
    list->longPressed(0);
    list->moreClicked(0);
    list->longPressed(-1);
    EXPECT_EQ(navigation.depth(), depth);
    list->didSelectItem(0);
    EXPECT_EQ(navigation.topIdentifier(), QStringLiteral("CreateOwnVC"));
    navigation.pop(false);

    // A design's cell opens the sheet of its kind.
    list->longPressed(1);
    EXPECT_EQ(navigation.topIdentifier(), QStringLiteral("SavedVideosMoreVC"));
    qobject_cast<SavedMoreSheet *>(navigation.topViewController())->cancelBtnClick();
    list->moreClicked(2);
    EXPECT_EQ(navigation.topIdentifier(), QStringLiteral("SavedPhotosMoreVC"));
}

TEST_F(SavedPhotos, AnUnreadableRowPutsTheTwoListsOutOfStep)
{
    const ObjectId picture = savePicture();
    store.saveDesign(QStringLiteral("{\"sample_image\": 12, \"width\": \"wide\"}"), std::nullopt, false);
    openList();
    // Every row gives its id; only readable rows give a design.
    EXPECT_EQ(list->objectIdArr().size(), 2);
    EXPECT_EQ(list->objectIdArr().last(), picture);
    EXPECT_EQ(list->itemsArray().size() + 1, list->items()->rowCount());
}

TEST_F(SavedPhotos, ADesignWithoutAPreviewCannotBeSharedPreviewedOrPrinted)
{
    auto design = makeSampleDocument(0);
    design->is_editsaved = false;
    design->thumbnail_img.reset();
    design->sample_image = QStringLiteral("1731672000123456.png");
    store.saveDesign(*Mapper::toJSONString(*design, true), std::nullopt, false);
    openList();

    for (const auto &[button, word] : { std::pair { &SavedMoreSheet::shareBtnClick, QStringLiteral("Share") },
             std::pair { &SavedMoreSheet::previewBtnClick, QStringLiteral("Preview") } }) {
        runAction(1, button);
        AlertModel *alert = navigation.alert();
        ASSERT_NE(alert, nullptr);
        EXPECT_EQ(alert->title(), word + QStringLiteral(" Unavailable!"));
        EXPECT_EQ(alert->message(),
            QStringLiteral("Design preview was not generated so you can't %1 it.\n"
                           "Please save again to generate a new preview.")
                .arg(word.toLower()));
        EXPECT_EQ(alert->actionTitles(), QStringList { QStringLiteral("OK") });
        alert->trigger(QStringLiteral("OK"));
        EXPECT_EQ(navigation.topViewController(), list);
    }
    // A template's sample from the server counts as a preview.
    design->sample_image = QStringLiteral("https://example.invalid/sample.webp");
    EXPECT_TRUE(DesignFiles::hasPreview(*design));
}

TEST_F(SavedPhotos, APictureDesignPreviewsSharesAndPrintsItsPreview)
{
    savePicture();
    openList();
    runAction(1, &SavedMoreSheet::previewBtnClick);
    auto *full = qobject_cast<FullScreenVC *>(navigation.topViewController());
    ASSERT_NE(full, nullptr);
    EXPECT_EQ(full->imageToDisplay.size(), QSize(54, 96));
    EXPECT_EQ(full->deviceOrientation, QStringLiteral("Portrait"));
    navigation.pop(false);

    runAction(1, &SavedMoreSheet::shareBtnClick);
    ASSERT_NE(navigation.alert(), nullptr);
    EXPECT_TRUE(navigation.alert()->actionTitles().contains(QStringLiteral("Show in Folder")));
    navigation.alert()->trigger(QStringLiteral("Cancel"));

    list->longPressed(1);
    auto *sheet = qobject_cast<SavedPhotosMoreVC *>(navigation.topViewController());
    ASSERT_NE(sheet, nullptr);
    sheet->printBtnClick();
    auto *panel = qobject_cast<PrintInteractionController *>(navigation.topViewController());
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->jobName, QStringLiteral("PrintingReceipt"));
    EXPECT_EQ(panel->printingItem.size(), QSize(54, 96));
}

TEST_F(SavedPhotos, AMovieFromAnotherContainerPlaysFromTodaysDocuments)
{
    TestMedia media(AppPaths::documents());
    const QString movie
        = media.movie(QStringLiteral("1731672000123.mov"), QStringLiteral("testsrc=size=64x96:rate=10"), 0.5);
    saveVideo(QStringLiteral("1731672000123.mov"),
        QStringLiteral("/var/mobile/Containers/Data/Application/0A1B2C3D/Documents"));
    openList();
    runAction(1, &SavedMoreSheet::previewBtnClick);
    auto *player = qobject_cast<FullVideoScreenVC *>(navigation.topViewController());
    ASSERT_NE(player, nullptr);
    EXPECT_EQ(player->videoURL, QUrl::fromLocalFile(movie));
    EXPECT_TRUE(player->gifURL.isEmpty());
    player->btnCloseClicked();

    runAction(1, &SavedMoreSheet::shareBtnClick);
    ASSERT_NE(navigation.alert(), nullptr);
    navigation.alert()->trigger(QStringLiteral("Cancel"));
}

TEST_F(SavedPhotos, DuplicateKeepsTheKindAndSharesTheFiles)
{
    TestMedia media(AppPaths::documents());
    media.movie(QStringLiteral("1731672000123.mov"), QStringLiteral("testsrc=size=64x96:rate=10"), 0.5);
    const ObjectId source = saveVideo(QStringLiteral("1731672000123.mov"), AppPaths::documents());
    openList();
    const QStringList files = documentFiles();
    runAction(1, &SavedMoreSheet::duplicateBtnClick);
    // The list read the store again for the copy, and the store's own notice adds no further reading.
    QSignalSpy reloads(list, &SavedPhotosVC::listChanged);
    QTest::qWait(20);
    EXPECT_EQ(reloads.size(), 0);
    ASSERT_EQ(list->objectIdArr().size(), 2);
    const ObjectId copy = list->objectIdArr().first();
    EXPECT_NE(copy, source);
    EXPECT_EQ(list->objectId, std::optional(source)); // the newest row before the copy
    const QList<SavePhoto> rows = store.allDesigns();
    ASSERT_EQ(rows.size(), 2);
    EXPECT_TRUE(rows.at(0).is_video);
    EXPECT_TRUE(list->itemsArray().first()->is_Video);
    EXPECT_EQ(list->itemsArray().first()->sample_video, list->itemsArray().last()->sample_video);
    EXPECT_EQ(documentFiles(), files);

    // Deleting the copy asks first, leaves the source's files, and the list reads one row again.
    runAction(1, &SavedMoreSheet::deleteBtnClick);
    AlertModel *alert = navigation.alert();
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->title(), QStringLiteral("Confirm"));
    EXPECT_EQ(alert->message(), QStringLiteral("Are you sure you want to delete this card?"));
    EXPECT_EQ(alert->actionTitles(), (QStringList { QStringLiteral("NO"), QStringLiteral("DELETE") }));
    alert->trigger(QStringLiteral("NO"));
    EXPECT_EQ(store.allDesigns().size(), 2);
    runAction(1, &SavedMoreSheet::deleteBtnClick);
    navigation.alert()->trigger(QStringLiteral("DELETE"));
    EXPECT_EQ(list->objectIdArr(), QList<ObjectId> { source });
    EXPECT_EQ(documentFiles(), files);
}

TEST_F(SavedPhotos, DeleteRemovesThePictureRowAndNoFile)
{
    savePicture();
    const ObjectId kept = savePicture();
    openList();
    const QStringList files = documentFiles();
    ASSERT_EQ(files.size(), 2);
    // The list is the newest first: cell 1 is the second design.
    runAction(2, &SavedMoreSheet::deleteBtnClick);
    navigation.alert()->trigger(QStringLiteral("DELETE"));
    EXPECT_EQ(list->objectIdArr(), QList<ObjectId> { kept });
    EXPECT_EQ(list->items()->rowCount(), 2);
    EXPECT_EQ(documentFiles(), files);
}

TEST_F(SavedPhotos, TheListFollowsSavesMadeElsewhere)
{
    openList();
    ASSERT_TRUE(list->noCardVisible());
    DesignStore editorStore; // as an editor's own store object writes
    editorStore.saveDesign(*Mapper::toJSONString(*makeSampleDocument(0), true), std::nullopt, false);
    editorStore.saveDesign(*Mapper::toJSONString(*makeSampleDocument(0), true), std::nullopt, false);
    QSignalSpy reloads(list, &SavedPhotosVC::listChanged);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !list->noCardVisible(); }, 2000));
    EXPECT_EQ(list->itemsArray().size(), 2);
    QTest::qWait(20);
    EXPECT_EQ(reloads.size(), 1); // one reading for the burst
}

TEST_F(SavedPhotos, ReEditOpensThePictureDesignInTheEditorWithEveryLayer)
{
    auto design = makeSampleDocument(8);
    // The pictures the layers name, as the editor saved them into Documents.
    QImage picture(40, 40, QImage::Format_ARGB32);
    picture.fill(Qt::magenta);
    for (const QString &name : { QStringLiteral("frame.png"), QStringLiteral("sticker_1.png"),
             QStringLiteral("photo_2.jpg"), QStringLiteral("shape_3.png"), QStringLiteral("sticker_5.png"),
             QStringLiteral("photo_6.jpg"), QStringLiteral("shape_7.png") })
        ASSERT_TRUE(picture.save(AppPaths::documents() + QLatin1Char('/') + name));
    design->background_json.reset();
    const ObjectId id = savePicture(design);
    openList();
    runAction(1, &SavedMoreSheet::reEditBtnClick);
    auto *sample = qobject_cast<ShowImageSample *>(navigation.topViewController());
    ASSERT_NE(sample, nullptr);
    EXPECT_EQ(sample->objectId, std::optional(id));
    ASSERT_TRUE(QTest::qWaitFor([sample] { return sample->state() != TemplateSample::State::Loading; }, 20000));
    ASSERT_EQ(sample->state(), TemplateSample::State::Ready);
    sample->editClicked();
    auto *editor = qobject_cast<EditImagePortraitMode *>(navigation.topViewController());
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->objectId, std::optional(id));
    editor->setWorkAreaSize(390, 670);
    // Two of each kind: texts, stickers, picture slots and framed slots.
    QMap<QString, int> kinds;
    for (View *view : editor->viewMain->subviews()) {
        if (qobject_cast<ResizableView *>(view) || qobject_cast<ResizableImageView *>(view)
            || qobject_cast<StaticResizableImageView *>(view) || qobject_cast<BorderedResizableImageView *>(view))
            ++kinds[QString::fromLatin1(view->metaObject()->className())];
    }
    EXPECT_EQ(kinds,
        (QMap<QString, int> { { QStringLiteral("ResizableView"), 2 }, { QStringLiteral("ResizableImageView"), 2 },
            { QStringLiteral("StaticResizableImageView"), 2 }, { QStringLiteral("BorderedResizableImageView"), 2 } }));
}

/** An empty picture design open in the portrait editor, as the sticker panel finds it. */
class OwnStickerPickers : public SavedPhotos
{
protected:
    EditImagePortraitMode *openEditor()
    {
        editor = qobject_cast<EditImagePortraitMode *>(storyboard.instantiate(QStringLiteral("EditImagePortraitMode")));
        auto blank = makeSampleDocument(0);
        blank->background_json.reset();
        editor->contentJson = blank;
        navigation.push(editor, false);
        editor->setWorkAreaSize(390, 670);
        return editor;
    }
    template<class Picker> Picker *openPicker(const QString &identifier, int vcTag)
    {
        auto *picker = qobject_cast<Picker *>(storyboard.instantiate(identifier));
        picker->vcTag = vcTag;
        navigation.push(picker, false);
        return picker;
    }

    EditImagePortraitMode *editor = nullptr;
};

TEST_F(OwnStickerPickers, ADesignBecomesAStickerOnlyOnTheEditorItsTagAllows)
{
    savePicture();
    openEditor();
    const qsizetype layers = editor->layerViews().size();
    // With tag 2 only a landscape editor may take it: the portrait editor below gets nothing.
    auto *landscape = openPicker<MyDesignVC>(QStringLiteral("MyDesignVC"), 2);
    EXPECT_EQ(landscape->title(), QStringLiteral("MY DESIGNS"));
    ASSERT_EQ(landscape->items()->rowCount(), 1); // no create-own cell here
    EXPECT_FALSE(landscape->items()->data(landscape->items()->index(0), SavedDesignsModel::IsCreateOwnRole).toBool());
    landscape->didSelectItem(0);
    EXPECT_EQ(navigation.topViewController(), landscape);
    navigation.pop(false);

    auto *portrait = openPicker<MyDesignVC>(QStringLiteral("MyDesignVC"), 1);
    portrait->didSelectItem(0);
    EXPECT_EQ(navigation.topViewController(), editor);
    EXPECT_EQ(editor->layerViews().size(), layers + 1);
}

TEST_F(OwnStickerPickers, ArtsAreImportedTogetherDeletedWithTheirFilesKeptAndPlacedAsStickers)
{
    openEditor();
    const qsizetype layers = editor->layerViews().size();
    auto *arts = openPicker<MyArtVC>(QStringLiteral("MyArtVC"), 1);
    EXPECT_EQ(arts->title(), QStringLiteral("MY ARTS"));
    EXPECT_TRUE(arts->noDataVisible());
    QSignalSpy gallery(arts, &MyArtVC::galleryRequested);
    arts->didSelectItem(0);
    EXPECT_EQ(gallery.size(), 1);

    // Two pictures and a file that is none: two arts, written as the preview writer names them.
    QImage withAlpha(64, 64, QImage::Format_ARGB32);
    withAlpha.fill(QColor(255, 0, 0, 128));
    QImage opaque(64, 48, QImage::Format_RGB32);
    opaque.fill(Qt::yellow);
    ASSERT_TRUE(withAlpha.save(home.filePath(QStringLiteral("logo.png"))));
    ASSERT_TRUE(opaque.save(home.filePath(QStringLiteral("photo.jpg"))));
    QFile broken(home.filePath(QStringLiteral("broken.png")));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write("not a picture") > 0);
    broken.close();
    QSignalSpy added(arts, &MyArtVC::artsAdded);
    arts->addArts({ QUrl::fromLocalFile(home.filePath(QStringLiteral("logo.png"))),
        QUrl::fromLocalFile(home.filePath(QStringLiteral("broken.png"))),
        QUrl::fromLocalFile(home.filePath(QStringLiteral("photo.jpg"))) });
    ASSERT_TRUE(added.wait(10000));
    EXPECT_EQ(added.first().first().toInt(), 2);
    ASSERT_EQ(arts->logoArray().size(), 2);
    EXPECT_TRUE(arts->logoArray().at(0).img_name->endsWith(QStringLiteral(".png")));
    EXPECT_TRUE(arts->logoArray().at(1).img_name->endsWith(QStringLiteral(".jpg")));
    EXPECT_EQ(arts->items()->rowCount(), 3);
    EXPECT_FALSE(arts->noDataVisible());
    EXPECT_EQ(store.allLogos().size(), 2);
    const QStringList files = documentFiles();

    arts->longPressed(1);
    AlertModel *alert = navigation.alert();
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->title(), QStringLiteral("Confirm"));
    EXPECT_EQ(alert->message(), QStringLiteral("Are you sure you want to delete this image?"));
    alert->trigger(QStringLiteral("DELETE"));
    ASSERT_EQ(arts->logoArray().size(), 1);
    EXPECT_TRUE(arts->logoArray().first().img_name->endsWith(QStringLiteral(".jpg")));
    EXPECT_EQ(arts->items()->rowCount(), 2);
    EXPECT_EQ(store.allLogos().size(), 1);
    EXPECT_EQ(documentFiles(), files);

    arts->didSelectItem(1);
    EXPECT_EQ(navigation.topViewController(), editor);
    EXPECT_EQ(editor->layerViews().size(), layers + 1);
}
