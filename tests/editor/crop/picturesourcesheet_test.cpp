// The picture sheet over an editor: its title, the camera row on a machine without a camera, and a
// gallery file made with ffmpeg going through the crop screen into the editor.
#include "alertmodel.h"
#include "cropfixture.h"
#include "cropscreens.h"
#include "picturesourcesheet.h"
#include "storyboard.h"
#include "testhome.h"

#include <QFile>
#include <QProcess>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

class SheetOverEditor : public ::testing::Test
{
protected:
    SheetOverEditor()
    {
        CropScreens::registerScreens(storyboard);
        navigation.setRoot(editor);
    }

    PictureSourceSheet *openSheet(bool hasImage, int tag)
    {
        PictureSourceSheet *sheet = PictureSourceSheet::open(storyboard, navigation, tag, hasImage);
        EXPECT_EQ(navigation.topViewController(), sheet);
        return sheet;
    }

    /** A photograph-like JPEG of that size, made with ffmpeg. */
    QString photo(const QString &name, QSize size)
    {
        QString path = home.filePath(name);
        QProcess ffmpeg;
        ffmpeg.start(QStringLiteral("ffmpeg"),
            { "-loglevel", "error", "-y", "-f", "lavfi", "-i",
                QStringLiteral("testsrc2=size=%1x%2").arg(size.width()).arg(size.height()), "-frames:v", "1", path });
        EXPECT_TRUE(ffmpeg.waitForFinished(30000) && ffmpeg.exitCode() == 0)
            << ffmpeg.readAllStandardError().constData();
        return path;
    }

    TestHome home;
    Storyboard storyboard;
    NavigationController navigation;
    FakeEditor *const editor = new FakeEditor();
};

} // namespace

TEST_F(SheetOverEditor, TitlesItselfAndTellsTheOpenerBeforeAnythingIsPicked)
{
    PictureSourceSheet *sheet = openSheet(false, ImagePickerTarget::stickerTag);
    EXPECT_EQ(sheet->title(), QStringLiteral("Choose Image From"));
    EXPECT_EQ(editor->calls, QStringList { "keepBgOriginalFrame on other" });
    EXPECT_EQ(editor->tag, ImagePickerTarget::stickerTag);
    sheet->cancel();
    EXPECT_EQ(navigation.topViewController(), editor);

    sheet = openSheet(true, ImagePickerTarget::selectedLayerTag);
    EXPECT_EQ(sheet->title(), QStringLiteral("Replace Image From"));
    EXPECT_EQ(editor->tag, ImagePickerTarget::selectedLayerTag);
    QSignalSpy gallery(sheet, &PictureSourceSheet::galleryRequested);
    sheet->selectRow(0);
    EXPECT_EQ(gallery.count(), 1);
}

TEST_F(SheetOverEditor, WithoutACameraTheCameraRowSaysSoAndIsDisabled)
{
    PictureSourceSheet *sheet = openSheet(true, ImagePickerTarget::selectedLayerTag);
    if (sheet->hasCamera())
        GTEST_SKIP() << "this machine has a camera";
    const QVariantList rows = sheet->rows();
    ASSERT_EQ(rows.size(), 2);
    const QVariantMap gallery = rows.at(0).toMap();
    EXPECT_EQ(gallery.value("title").toString(), QStringLiteral("Gallery"));
    EXPECT_EQ(gallery.value("image").toString(), QStringLiteral("bg_album"));
    EXPECT_TRUE(gallery.value("enabled").toBool());
    const QVariantMap camera = rows.at(1).toMap();
    EXPECT_EQ(camera.value("title").toString(), QStringLiteral("Camera"));
    EXPECT_EQ(camera.value("image").toString(), QStringLiteral("bg_camera"));
    EXPECT_FALSE(camera.value("enabled").toBool());
    EXPECT_EQ(camera.value("detail").toString(), QStringLiteral("No camera on this device"));

    sheet->selectRow(1);
    EXPECT_EQ(navigation.topViewController(), sheet);
}

TEST_F(SheetOverEditor, AGalleryPictureIsCroppedThenGoesWhereTheTagSays)
{
    PictureSourceSheet *sheet = openSheet(false, ImagePickerTarget::backgroundTag);
    sheet->pickedFile(QUrl::fromLocalFile(photo(QStringLiteral("beach.jpg"), QSize(320, 240))));
    EXPECT_TRUE(sheet->isPreparing());
    ASSERT_TRUE(waitFor([this] { return navigation.topIdentifier() == QLatin1String("CropViewController"); }));
    // The sheet has gone: the crop screen lies right over the editor, and answers to it.
    ASSERT_EQ(navigation.depth(), 2);
    auto *crop = qobject_cast<CropViewController *>(navigation.topViewController());
    ASSERT_TRUE(crop);
    EXPECT_EQ(crop->image().size(), QSize(320, 240));
    EXPECT_EQ(crop->delegate, static_cast<CropTarget *>(editor));

    crop->setViewSize(390, 700);
    crop->selectAspectRatio(crop->aspectRatioTitles().indexOf(QStringLiteral("Square")));
    crop->done();
    ASSERT_TRUE(waitFor([this] { return navigation.depth() == 1; }));
    EXPECT_EQ(editor->calls, QStringList({ "keepBgOriginalFrame on other", "background on editor" }));
    EXPECT_EQ(editor->picture.size(), QSize(240, 240));
}

TEST_F(SheetOverEditor, AFileThatIsNoPictureIsRefusedAndTheSheetStays)
{
    const QString path = home.filePath(QStringLiteral("notes.jpg"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("not a picture at all");
    file.close();
    PictureSourceSheet *sheet = openSheet(false, ImagePickerTarget::stickerTag);
    sheet->pickedFile(QUrl::fromLocalFile(path));
    ASSERT_TRUE(waitFor([this] { return navigation.alert() != nullptr; }));
    EXPECT_EQ(navigation.alert()->message(), QStringLiteral("This file is not a picture that can be opened."));
    EXPECT_EQ(navigation.topViewController(), sheet);
    EXPECT_FALSE(sheet->isPreparing());
}
