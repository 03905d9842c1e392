#include "alertmodel.h"
#include "apppaths.h"
#include "borderedresizableimageview.h"
#include "designsscreens.h"
#include "editorfixture.h"
#include "editorscreens.h"
#include "fullscreenvc.h"
#include "navigationcontroller.h"
#include "photoalbum.h"
#include "printinteractioncontroller.h"
#include "resizableimageview.h"
#include "saveimagevc.h"
#include "storeddesign.h"
#include "storyboard.h"

#include <QBuffer>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// An editor made by the storyboard, on a navigation stack without screens, as the application has it,
// saving into the home's store and its pictures into an album folder below the home.
struct SaveFixture
{
    SaveFixture()
    {
        EditorScreens::registerScreens(storyboard, PhotoAlbum::atFolder(albumFolder()));
        DesignsScreens::registerScreens(storyboard);
        storyboard.registerScreen<PrintInteractionController>(QStringLiteral("PrintInteractionController"), QUrl());
        editor = qobject_cast<EditImagePortraitMode *>(storyboard.instantiate(QStringLiteral("EditImagePortraitMode")));
        editor->setDesignStore(&store);
        editor->setCanvasArea(QRectF(0, 0, 360, 640));
        editor->saveFlow().setNoticeDelay(std::chrono::milliseconds(0));
    }

    [[nodiscard]] QString albumFolder() const { return home.filePath(QStringLiteral("album")); }

    void open(const char *json)
    {
        editor->contentJson = Mapper::map<Json>(QString::fromUtf8(json));
        navigation.setRoot(editor);
    }

    template<class Layer> QList<Layer *> layers() const
    {
        QList<Layer *> found;
        for (View *view : editor->viewMain->subviews()) {
            if (auto *layer = qobject_cast<Layer *>(view))
                found.append(layer);
        }
        return found;
    }

    /** Saves at a scale and waits for the result screen to have put the picture into the album. */
    SaveImageVC *saveAndWait(bool isHD)
    {
        SaveImageVC *result = nullptr;
        bool albumDone = false;
        const auto connection
            = QObject::connect(&navigation, &NavigationController::pushed, [&](ViewController *screen) {
                  result = qobject_cast<SaveImageVC *>(screen);
                  if (result)
                      QObject::connect(result, &SaveImageVC::albumSaveFinished, [&albumDone] { albumDone = true; });
              });
        editor->saveFlow().save(isHD);
        EXPECT_TRUE(QTest::qWaitFor([&] { return albumDone; }, 30000));
        QObject::disconnect(connection);
        return result;
    }

    TestHome home;
    DesignStore store;
    Storyboard storyboard;
    NavigationController navigation;
    EditImagePortraitMode *editor = nullptr; // owned by the navigation stack
};

void writePicture(const TestHome &home, const QString &name)
{
    QDir().mkpath(home.filePath(QStringLiteral("resource")));
    QImage picture(60, 60, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    picture.save(home.filePath(QStringLiteral("resource/") + name));
}

QStringList titlesOf(AlertModel *alert)
{
    return alert ? alert->actionTitles() : QStringList();
}

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST(ImageSaveFlowSizeChoice, OffersOriginalAndHDUpTo2048AndAsksBeyond)
{
    EditorFixture f;
    ASSERT_TRUE(f.open(R"({"width": 1080, "height": 1920})"));
    std::unique_ptr<AlertModel> sheet(f.editor.saveFlow().makeSizeChoice());
    ASSERT_TRUE(sheet);
    EXPECT_EQ(sheet->title(), QStringLiteral("Select option"));
    EXPECT_TRUE(sheet->isActionSheet());
    EXPECT_TRUE(sheet->isAnchoredAtTop()); // on a tablet, below the bar
    EXPECT_EQ(titlesOf(sheet.get()),
        QStringList({ QStringLiteral("Original (1080 × 1920)"), QStringLiteral("HD (2160 × 3840)"),
            QStringLiteral("Cancel") }));
    EXPECT_EQ(sheet->cancelTitle(), QStringLiteral("Cancel"));

    f.editor.masterJson->width = 2048;
    f.editor.masterJson->height = 2048;
    sheet.reset(f.editor.saveFlow().makeSizeChoice());
    EXPECT_EQ(titlesOf(sheet.get()).value(1), QStringLiteral("HD (4096 × 4096)"));

    f.editor.masterJson->width = 2049;
    std::unique_ptr<AlertModel> alert(f.editor.saveFlow().makeSizeChoice());
    ASSERT_TRUE(alert);
    EXPECT_FALSE(alert->isActionSheet());
    EXPECT_EQ(alert->message(), QStringLiteral("Do you want to save changes?"));
    EXPECT_EQ(titlesOf(alert.get()), QStringList({ QStringLiteral("Yes"), QStringLiteral("No") }));
    EXPECT_EQ(alert->cancelTitle(), QStringLiteral("No"));

    f.editor.masterJson->width = 1080.5;
    f.editor.masterJson->height = 1920.25;
    sheet.reset(f.editor.saveFlow().makeSizeChoice());
    EXPECT_EQ(titlesOf(sheet.get()).mid(0, 2),
        QStringList({ QStringLiteral("Original (1080.5 × 1920.25)"), QStringLiteral("HD (2161 × 3840.5)") }));

    f.editor.masterJson->width.reset();
    EXPECT_EQ(f.editor.saveFlow().makeSizeChoice(), nullptr);
}

TEST(ImageSaveFlowSizeChoice, SavePressedShowsTheQuestionAndAnAnswerSaves)
{
    SaveFixture f;
    f.open(R"({"width": 1080, "height": 1920, "background_json": {"background_color": "336699"}})");
    f.editor->savePressed();
    ASSERT_TRUE(f.navigation.alert());
    f.navigation.alert()->trigger(QStringLiteral("Cancel"));
    EXPECT_FALSE(f.editor->saveFlow().isSaving());
    EXPECT_FALSE(f.editor->issavePressed);

    f.editor->savePressed();
    QSignalSpy saved(&f.editor->saveFlow(), &ImageSaveFlow::saved);
    f.navigation.alert()->trigger(QStringLiteral("Original (1080 × 1920)"));
    EXPECT_TRUE(f.editor->issavePressed);
    ASSERT_TRUE(f.navigation.panel());
    EXPECT_EQ(f.navigation.panel()->text(), QStringLiteral("Please wait while we prepare your image."));
    ASSERT_TRUE(saved.wait(30000));
    EXPECT_EQ(f.editor->saveImg.size(), QSize(1080, 1920));
    EXPECT_EQ(f.navigation.panel(), nullptr);
    EXPECT_EQ(f.navigation.topIdentifier(), QStringLiteral("SaveImageVC"));
}

TEST(ImageSaveFlowRender, LeavesEmptyOutlinedSlotsOutAndKeepsTransparency)
{
    EditorFixture f;
    f.picture(QStringLiteral("red.png"), Qt::red, { 60, 60 });
    // No background: the design is transparent but for a red sticker; the outlined slot has no picture.
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640,
        "frame_image_sticker_json": [{"xPos": 100, "yPos": 300, "width": 150, "height": 150,
                                      "image_sticker_image": "missing.png"}],
        "sticker_json": [{"sticker_image": "red.png", "xPos": 20, "yPos": 20, "width": 60, "height": 60}]})"));
    const auto slots = f.layers<BorderedResizableImageView>();
    ASSERT_EQ(slots.size(), 1);
    ASSERT_TRUE(slots.first()->isNotImage());
    const QPoint slotMiddle = slots.first()->frame().center().toPoint();

    const QImage picture = f.editor.saveFlow().render(false);
    ASSERT_EQ(picture.size(), QSize(360, 640));
    EXPECT_EQ(qAlpha(picture.pixel(slotMiddle)), 0);
    EXPECT_FALSE(slots.first()->isHidden()); // back on the canvas afterwards
    EXPECT_EQ(picture.pixelColor(50, 50), QColor(Qt::red));

    // Through PNG data, as the picture travels, the alpha stays: no checker pattern behind the design.
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(picture.save(&buffer, "PNG"));
    const QImage decoded = QImage::fromData(png, "PNG");
    EXPECT_TRUE(decoded.hasAlphaChannel());
    EXPECT_EQ(qAlpha(decoded.pixel(300, 600)), 0);
    EXPECT_EQ(qAlpha(decoded.pixel(10, 600)), 0);

    EXPECT_EQ(f.editor.saveFlow().render(true).size(), QSize(720, 1280));
}

TEST(ImageSaveFlowSave, StoresTheDesignWithItsPreviewsAndPutsTheSamePictureInTheAlbum)
{
    SaveFixture f;
    writePicture(f.home, QStringLiteral("red.png"));
    f.open(R"({"width": 360, "height": 640, "is_pip": false, "is_sample": false, "is_offline": false,
        "sticker_json": [{"sticker_image": "red.png", "xPos": 20, "yPos": 20, "width": 60, "height": 60},
                         {"sticker_image": "red.png", "xPos": 200, "yPos": 20, "width": 60, "height": 60}],
        "text_json": [{"text": "Hello", "size": 30, "xPos": 40, "yPos": 300, "color": "000000"}]})");
    ASSERT_TRUE(f.editor->errorString().isEmpty());
    // An edit first, so that the row exists with its step's delta and an edit in progress.
    auto stickers = f.layers<ResizableImageView>();
    ASSERT_EQ(stickers.size(), 2);
    stickers.first()->tapGesture();
    stickers.first()->panGesture(LayerView::Changed, QPointF(5, 5));
    stickers.first()->panGesture(LayerView::Ended, QPointF());
    // Stacking changed on the canvas only: the stored order must follow the canvas.
    f.editor->viewMain->bringSubviewToFront(stickers.first());
    ASSERT_TRUE(f.editor->objectId);
    const ObjectId row = *f.editor->objectId;

    SaveImageVC *result = f.saveAndWait(true);
    ASSERT_TRUE(result);
    EXPECT_EQ(f.navigation.topViewController(), result);
    EXPECT_EQ(result->editedImage.size(), QSize(720, 1280));

    const QList<SavePhoto> rows = f.store.allDesigns();
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows.first().objectID, row);
    const nlohmann::ordered_json stored = Mapper::parse(rows.first().jsonString);
    for (const char *delta : { "changed_text_json", "changed_sticker_json", "changed_image_sticker_json",
             "changed_frame_image_sticker_json", "changed_background_json" })
        EXPECT_FALSE(stored.contains(delta)) << delta;
    EXPECT_TRUE(stored.at("is_editsaved").get<bool>());
    const auto document = readStoredDesign(rows.first().jsonString);
    ASSERT_TRUE(document->sticker_json && document->sticker_json->size() == 2);
    EXPECT_EQ(document->sticker_json->last()->index, stickers.first()->stickerJson->index);
    const QDir documents(AppPaths::documents());
    ASSERT_TRUE(document->sample_image && document->thumbnail_img);
    EXPECT_TRUE(document->sample_image->endsWith(QStringLiteral(".png")));
    const QImage thumbnail(documents.filePath(*document->thumbnail_img));
    EXPECT_FALSE(thumbnail.isNull());
    EXPECT_LT(thumbnail.width(), 720);

    // The album file is the rendered picture's PNG, byte for byte, as is the preview.
    ASSERT_FALSE(result->albumFile().isEmpty());
    EXPECT_EQ(QFileInfo(result->albumFile()).absolutePath(), QFileInfo(f.albumFolder()).absoluteFilePath());
    const QByteArray album = fileBytes(result->albumFile());
    EXPECT_EQ(album, result->editedImageData);
    EXPECT_EQ(album, fileBytes(documents.filePath(*document->sample_image)));

    // Back in the editor, SAVE may be pressed again, and a second save rewrites the same row.
    result->backPressed();
    EXPECT_EQ(f.navigation.topViewController(), f.editor);
    EXPECT_FALSE(f.editor->issavePressed);
    f.saveAndWait(false);
    EXPECT_EQ(f.store.allDesigns().size(), 1);
    EXPECT_EQ(PhotoAlbum::atFolder(f.albumFolder()).imageAssets().size(), 2);
}

TEST(SaveImageVCActions, FullScreenPrintDeleteAndTheDeniedAlbum)
{
    SaveFixture f;
    f.open(R"({"width": 360, "height": 640, "background_json": {"background_color": "E05863"}})");
    SaveImageVC *result = f.saveAndWait(false);
    ASSERT_TRUE(result);
    while (f.navigation.alert()) // the review prompt may ask
        f.navigation.alert()->trigger(QStringLiteral("Not Now"));

    result->btnFullScreenClicked();
    auto *full = qobject_cast<FullScreenVC *>(f.navigation.topViewController());
    ASSERT_TRUE(full);
    EXPECT_EQ(full->imageToDisplay, result->editedImage);
    EXPECT_EQ(full->deviceOrientation, QStringLiteral("Portrait"));
    full->btnCloseClicked();
    EXPECT_EQ(f.navigation.topViewController(), result);

    result->printClicked();
    auto *print = qobject_cast<PrintInteractionController *>(f.navigation.topViewController());
    ASSERT_TRUE(print);
    EXPECT_EQ(print->jobName, QStringLiteral("PrintingReceipt"));
    EXPECT_TRUE(print->showsNumberOfCopies);
    print->pdfFile = f.home.filePath(QStringLiteral("receipt.pdf"));
    print->setPrinterIndex(print->pdfIndex());
    print->setCopies(2);
    QSignalSpy printed(print, &PrintInteractionController::printed);
    print->print();
    ASSERT_TRUE(printed.wait(30000));
    EXPECT_TRUE(printed.first().first().toBool());
    EXPECT_EQ(f.navigation.topViewController(), result);
    const QByteArray pdf = fileBytes(f.home.filePath(QStringLiteral("receipt.pdf")));
    EXPECT_TRUE(pdf.startsWith("%PDF"));
    EXPECT_EQ(pdf.count("/Type /Page\n") + pdf.count("/Type /Page\r") + pdf.count("/Type /Page "), 2);

    // Delete asks first, then removes the album's newest picture and goes back to the editor.
    const PhotoAlbum album = PhotoAlbum::atFolder(f.albumFolder());
    ASSERT_EQ(album.imageAssets().size(), 1);
    result->deleteClicked();
    ASSERT_TRUE(f.navigation.alert());
    EXPECT_EQ(f.navigation.alert()->title(), QStringLiteral("Confirm"));
    EXPECT_EQ(f.navigation.alert()->message(), QStringLiteral("Are you sure you want to delete this image?"));
    f.navigation.alert()->trigger(QStringLiteral("DELETE"));
    EXPECT_TRUE(album.imageAssets().isEmpty());
    EXPECT_EQ(f.navigation.topViewController(), f.editor);

    // An album that cannot be written: the picture goes nowhere and the user is told how to allow it.
    QFile blocker(f.home.filePath(QStringLiteral("blocker")));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    auto *denied = qobject_cast<SaveImageVC *>(f.storyboard.instantiate(QStringLiteral("SaveImageVC")));
    denied->setPhotoAlbum(PhotoAlbum::atFolder(f.home.filePath(QStringLiteral("blocker/Quillet"))));
    denied->editedImageData = result->editedImageData;
    f.navigation.push(denied);
    EXPECT_TRUE(denied->albumFile().isEmpty());
    ASSERT_TRUE(f.navigation.alert());
    EXPECT_EQ(f.navigation.alert()->title(), QStringLiteral("Allow Permission"));
    EXPECT_EQ(f.navigation.alert()->message(),
        QStringLiteral("\"Quillet\" needs Photos permission to save card to your device"));
    EXPECT_EQ(titlesOf(f.navigation.alert()), QStringList({ QStringLiteral("Settings"), QStringLiteral("Cancel") }));
}
