#include "alertmodel.h"
#include "browsefixture.h"
#include "createownvc.h"

namespace {

int rowNamed(const QList<std::shared_ptr<CustomRatio>> &list, const QString &name)
{
    for (int row = 0; row < list.size(); ++row) {
        if (list.at(row)->name == name)
            return row;
    }
    return -1;
}

} // namespace

class CreateOwn : public BrowseFixture
{
protected:
    CreateOwn()
    {
        // The video flow's pager of background videos, standing in under its name.
        storyboard.registerScreen<ViewController>(QStringLiteral("BGVideoContentCategoryPagerVC"), QUrl());
        vc = push<CreateOwnVC>(QStringLiteral("CreateOwnVC"));
    }

    /** Chooses "Custom Size" in the image or video list and types the two sides into its alert. */
    AlertModel *customSize(bool video, const QString &width, const QString &height)
    {
        vc->didSelect(video, rowNamed(video ? vc->videoArray : vc->imageArray, CreateOwnVC::customSizeName));
        AlertModel *alert = navigation.alert();
        if (alert) {
            alert->setTextFieldText(0, width);
            alert->setTextFieldText(1, height);
        }
        return alert;
    }

    [[nodiscard]] std::shared_ptr<Json> editorDocument() const
    {
        auto *editor = qobject_cast<EditorSession *>(navigation.topViewController());
        return editor ? editor->contentJson : nullptr;
    }

    CreateOwnVC *vc = nullptr;
};

TEST_F(CreateOwn, ListsBothKindsOfSizesFromTheShippedFile)
{
    EXPECT_EQ(vc->title(), QStringLiteral("WHAT DO YOU NEED?"));
    ASSERT_GE(vc->imageArray.size(), 3);
    ASSERT_GE(vc->videoArray.size(), 3);
    EXPECT_EQ(vc->imageArray.first()->name, QStringLiteral("Instagram Story"));
    EXPECT_GE(rowNamed(vc->imageArray, CreateOwnVC::customSizeName), 0);
    EXPECT_GE(rowNamed(vc->videoArray, CreateOwnVC::customSizeName), 0);
    EXPECT_EQ(vc->imageSizes().size(), vc->imageArray.size());
    EXPECT_EQ(vc->videoSizes().first().toMap().value(QStringLiteral("width")).toDouble(), 1080);
}

TEST_F(CreateOwn, AnImageSizeOpensTheImageEditorOnABlankDesign)
{
    vc->didSelect(false, 0);
    auto *editor = qobject_cast<EditorSession *>(navigation.topViewController());
    ASSERT_TRUE(editor);
    EXPECT_EQ(editor->identifier(), QStringLiteral("EditImagePortraitMode"));
    EXPECT_TRUE(editor->isCreateOwn);
    const std::shared_ptr<Json> document = editor->contentJson;
    ASSERT_TRUE(document);
    EXPECT_EQ(document->width, 1080);
    EXPECT_EQ(document->height, 1920);
    EXPECT_EQ(document->is_portrait, true);
    ASSERT_TRUE(document->text_json && document->sticker_json && document->image_sticker_json
        && document->frame_image_sticker_json);
    EXPECT_TRUE(document->text_json->isEmpty() && document->sticker_json->isEmpty()
        && document->image_sticker_json->isEmpty() && document->frame_image_sticker_json->isEmpty());
    EXPECT_TRUE(document->background_json && document->frame_json);
    EXPECT_FALSE(vc->selectedIndex);
    EXPECT_EQ(vc->contentJson, document);

    // The editor opens it like any design.
    editor->setWorkAreaSize(390, 640);
    EXPECT_TRUE(editor->errorString().isEmpty());
    EXPECT_TRUE(editor->masterJson);
}

TEST_F(CreateOwn, AHighlightCoverGoesToTheHighlightEditorByName)
{
    storyboard.registerScreen<EditImagePortraitMode>(QStringLiteral("HighLightEditor"), QUrl());
    vc->didSelect(false, rowNamed(vc->imageArray, QStringLiteral("Highlight Cover")));
    EXPECT_EQ(vc->index, QStringLiteral("HighLightEditor"));
    EXPECT_EQ(navigation.topIdentifier(), QStringLiteral("HighLightEditor"));
    EXPECT_EQ(editorDocument()->width, 1080);
    EXPECT_EQ(editorDocument()->height, 1080);
}

TEST_F(CreateOwn, CreateTakesOnlySidesFrom100To2048)
{
    AlertModel *alert = customSize(false, QString(), QString());
    ASSERT_TRUE(alert);
    EXPECT_EQ(alert->message(), QStringLiteral("Enter the size in pixels between 100 and 2048."));
    EXPECT_EQ(alert->textFieldPlaceholders(), (QStringList { QStringLiteral("Width"), QStringLiteral("Height") }));
    EXPECT_EQ(alert->actionTitles(), (QStringList { QStringLiteral("Create"), QStringLiteral("Cancel") }));
    EXPECT_EQ(alert->disabledActionTitles(), QStringList { QStringLiteral("Create") });

    const auto createEnabled = [alert] { return !alert->disabledActionTitles().contains(QStringLiteral("Create")); };
    alert->setTextFieldText(0, QStringLiteral("100"));
    EXPECT_FALSE(createEnabled());
    alert->setTextFieldText(1, QStringLiteral("2048"));
    EXPECT_TRUE(createEnabled());
    alert->setTextFieldText(0, QStringLiteral("99"));
    EXPECT_FALSE(createEnabled());
    EXPECT_FALSE(alert->trigger(QStringLiteral("Create")));
    alert->setTextFieldText(0, QStringLiteral("100"));
    alert->setTextFieldText(1, QStringLiteral("2049"));
    EXPECT_FALSE(createEnabled());
    alert->setTextFieldText(1, QStringLiteral("2048"));
    ASSERT_TRUE(alert->trigger(QStringLiteral("Create")));

    EXPECT_TRUE(vc->is_custom);
    EXPECT_EQ(vc->customWidth, 100);
    EXPECT_EQ(vc->customHeight, 2048);
    ASSERT_TRUE(editorDocument());
    EXPECT_EQ(editorDocument()->width, 100);
    EXPECT_EQ(editorDocument()->height, 2048);
    EXPECT_EQ(editorDocument()->is_portrait, true);
}

TEST_F(CreateOwn, AnImageWiderThanHighIsRefusedAndTheSizeIsAskedAgain)
{
    AlertModel *alert = customSize(false, QStringLiteral("2048"), QStringLiteral("100"));
    ASSERT_TRUE(alert && alert->trigger(QStringLiteral("Create")));
    QCoreApplication::processEvents();
    AlertModel *refusal = navigation.alert();
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->message(), QStringLiteral("Please enter valid height greater then width."));
    EXPECT_EQ(navigation.topViewController(), vc);
    ASSERT_TRUE(refusal->trigger(refusal->actionTitles().first()));
    QCoreApplication::processEvents();
    ASSERT_TRUE(navigation.alert());
    EXPECT_EQ(navigation.alert()->message(), QStringLiteral("Enter the size in pixels between 100 and 2048."));
    EXPECT_TRUE(navigation.alert()->textFieldTexts().first().isEmpty());
}

TEST_F(CreateOwn, AVideoSizeGoesToTheBackgroundVideosWithItsBlankDesign)
{
    vc->didSelect(true, rowNamed(vc->videoArray, QStringLiteral("Landscape Video")));
    ViewController *pager = navigation.topViewController();
    ASSERT_EQ(pager->identifier(), QStringLiteral("BGVideoContentCategoryPagerVC"));
    EXPECT_TRUE(pager->property("isCreateOwn").toBool());
    const auto document = pager->property("createOwnJson").value<std::shared_ptr<Json>>();
    ASSERT_TRUE(document);
    EXPECT_EQ(document->width, 1920);
    EXPECT_EQ(document->is_portrait, false);

    // A video may be wider than high.
    pager->goBack();
    AlertModel *alert = customSize(true, QStringLiteral("2048"), QStringLiteral("100"));
    ASSERT_TRUE(alert && alert->trigger(QStringLiteral("Create")));
    ASSERT_EQ(navigation.topIdentifier(), QStringLiteral("BGVideoContentCategoryPagerVC"));
    EXPECT_EQ(navigation.topViewController()->property("createOwnJson").value<std::shared_ptr<Json>>()->width, 2048);
}

class CreateOwnWithoutBackgroundVideos : public BrowseFixture
{
};

TEST_F(CreateOwnWithoutBackgroundVideos, AVideoSizeSaysSoInsteadOfDoingNothing)
{
    auto *vc = push<CreateOwnVC>(QStringLiteral("CreateOwnVC"));
    vc->didSelect(true, 0);
    EXPECT_EQ(navigation.topViewController(), vc);
    ASSERT_TRUE(navigation.alert());
    EXPECT_EQ(navigation.alert()->message(), QStringLiteral("Background videos are not available."));
}

TEST(CreateOwnSides, NumbersFrom100To2048)
{
    EXPECT_TRUE(CreateOwnVC::isValidSide(QStringLiteral("100")));
    EXPECT_TRUE(CreateOwnVC::isValidSide(QStringLiteral("2048")));
    EXPECT_FALSE(CreateOwnVC::isValidSide(QStringLiteral("99")));
    EXPECT_FALSE(CreateOwnVC::isValidSide(QStringLiteral("2049")));
    EXPECT_FALSE(CreateOwnVC::isValidSide(QString()));
    EXPECT_FALSE(CreateOwnVC::isValidSide(QStringLiteral("abc")));
}
