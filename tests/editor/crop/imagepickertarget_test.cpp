// Where a cut picture goes, by the editor's imagePickerTag, with the crop screen dismissed first.
#include "cropfixture.h"
#include "cropscreens.h"
#include "storyboard.h"

#include <gtest/gtest.h>

namespace {

/** An editor at the root of a stack with the crop screen presented over it, as the editor presents it. */
struct CropOverEditor
{
    Storyboard storyboard;
    NavigationController navigation;
    FakeEditor *editor = new FakeEditor();
    CropViewController *crop = nullptr;

    CropOverEditor(int tag, bool slotSelected)
    {
        CropScreens::registerScreens(storyboard);
        editor->tag = tag;
        editor->slotSelected = slotSelected;
        navigation.setRoot(editor);
        crop = CropViewController::present(storyboard, navigation, codedPicture(QSize(90, 60)), editor);
        EXPECT_EQ(navigation.topViewController(), crop);
        crop->setViewSize(390, 700);
    }

    /** Done on the crop screen, and what the editor was asked to do. */
    QStringList finish()
    {
        crop->done();
        EXPECT_TRUE(waitFor([this] { return navigation.depth() == 1; }));
        return editor->calls;
    }
};

} // namespace

TEST(ImagePickerRouting, EachTagSendsThePictureToItsPlaceAfterTheCropScreenHasGone)
{
    struct Case
    {
        int tag;
        bool slotSelected;
        const char *call;
    };
    const Case cases[] = {
        { ImagePickerTarget::selectedLayerTag, false, "layer on editor" },
        { ImagePickerTarget::selectedLayerTag, true, "layer on editor" },
        { ImagePickerTarget::backgroundTag, false, "background on editor" },
        { ImagePickerTarget::stickerTag, false, "sticker on editor" },
        { ImagePickerTarget::stickerTag, true, "slot on editor" },
    };
    for (const Case &c : cases) {
        CropOverEditor screen(c.tag, c.slotSelected);
        screen.crop->rotateClockwise();
        EXPECT_EQ(screen.finish(), QStringList { QString::fromLatin1(c.call) })
            << "tag " << c.tag << (c.slotSelected ? " with a slot" : "");
        // The picture as cut: turned a quarter.
        EXPECT_EQ(screen.editor->picture.size(), QSize(60, 90));
    }
}

TEST(ImagePickerRouting, AnotherTagOrACancelChangesNothing)
{
    for (const int tag : { 0, 4 }) {
        CropOverEditor screen(tag, true);
        EXPECT_TRUE(screen.finish().isEmpty()) << "tag " << tag;
    }
    CropOverEditor cancelled(ImagePickerTarget::backgroundTag, false);
    cancelled.crop->cancel();
    EXPECT_EQ(cancelled.navigation.depth(), 1);
    EXPECT_TRUE(cancelled.editor->calls.isEmpty());
}
