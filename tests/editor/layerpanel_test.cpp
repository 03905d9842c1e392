#include "editorfixture.h"
#include "layerlistmodel.h"
#include "resizableimageview.h"
#include "resizableview.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

// Three stickers A, B, C from back to front (indexes 1, 2, 3) and a text on top.
void openThreeStickers(EditorFixture &f)
{
    f.picture(QStringLiteral("a.png"));
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "text_json": [{"text": "T"}], "sticker_json": [
        {"sticker_image": "a.png", "width": 40, "height": 40}, {"sticker_image": "a.png", "width": 40, "height": 40},
        {"sticker_image": "a.png", "width": 40, "height": 40}]})"));
}

QList<qint64> stackIndexes(const EditorFixture &f)
{
    QList<qint64> indexes;
    for (ResizableImageView *sticker : f.layers<ResizableImageView>())
        indexes.append(sticker->stickerJson->index.value_or(0));
    return indexes;
}

QList<qint64> rowIndexes(const EditorFixture &f)
{
    QList<qint64> indexes;
    LayerListModel *rows = f.editor.layerModel();
    for (int row = 0; row < rows->rowCount(); ++row)
        indexes.append(rows->data(rows->index(row), LayerListModel::LayerIndexRole).toLongLong());
    return indexes;
}

} // namespace

TEST(LayerPanel, RowsAreTheStickersTopmostFirst)
{
    EditorFixture f;
    openThreeStickers(f);
    EXPECT_TRUE(f.editor.canShowLayers());
    f.editor.toggleLayers();
    EXPECT_TRUE(f.editor.layersShown());
    EXPECT_EQ(rowIndexes(f), (QList<qint64> { 3, 2, 1 }));
    f.editor.toggleLayers();
    EXPECT_FALSE(f.editor.layersShown());
}

TEST(LayerPanel, MoveAcrossTwoRowsSwapsOnlyTheTwoStickersAndRowsDisagreeUntilRefilled)
{
    EditorFixture f;
    openThreeStickers(f);
    const auto textBefore = f.layers<ResizableView>();
    const QList<View *> before = f.editor.viewMain->subviews();
    f.editor.toggleLayers();
    QSignalSpy moved(f.editor.layerModel(), &QAbstractItemModel::rowsMoved);
    f.editor.positionChanged(0, 2);
    EXPECT_EQ(moved.count(), 1);
    // C and A swapped places; B between them stayed.
    EXPECT_EQ(stackIndexes(f), (QList<qint64> { 3, 2, 1 }));
    EXPECT_EQ(rowIndexes(f), (QList<qint64> { 2, 1, 3 }));
    EXPECT_EQ(f.editor.viewMain->subviews().indexOf(textBefore.first()), before.indexOf(textBefore.first()));
    // No undo step, the document's order is untouched, but the session has changes to save.
    EXPECT_EQ(f.editor.undoArray().size(), 1);
    EXPECT_FALSE(f.editor.canUndo());
    EXPECT_TRUE(f.editor.hasChanges());
    EXPECT_EQ(f.editor.masterJson->sticker_json->first()->index, 1);
    // The next opening fills the rows from the stack again.
    f.editor.toggleLayers();
    f.editor.toggleLayers();
    EXPECT_EQ(rowIndexes(f), (QList<qint64> { 1, 2, 3 }));
}

TEST(LayerPanel, RowWhoseStickerLeftTheCanvasChangesNothing)
{
    EditorFixture f;
    openThreeStickers(f);
    f.editor.toggleLayers();
    f.layers<ResizableImageView>().last()->buttonTapGesture(); // row 0
    f.editor.setChanges(false);
    f.editor.positionChanged(0, 1);
    EXPECT_EQ(stackIndexes(f), (QList<qint64> { 1, 2 }));
    EXPECT_FALSE(f.editor.hasChanges());
    f.editor.positionChanged(1, 7); // no such row
    EXPECT_EQ(stackIndexes(f), (QList<qint64> { 1, 2 }));
}

TEST(LayerPanel, LayerButtonFollowsTheStickersOfTheCanvas)
{
    EditorFixture f;
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "text_json": [{"text": "Only text"}]})"));
    EXPECT_FALSE(f.editor.canShowLayers());
    QImage picture(30, 60, QImage::Format_ARGB32);
    picture.fill(Qt::white);
    ResizableImageView *sticker = f.editor.addNewSticker(picture);
    EXPECT_TRUE(f.editor.canShowLayers());
    // The new sticker is selected, centred and numbered, with the default catalog.
    EXPECT_EQ(f.editor.selection.selectedIconImgView, sticker);
    EXPECT_EQ(sticker->center(), QPointF(180, 320));
    EXPECT_EQ(sticker->stickerJson->index, 1);
    EXPECT_EQ(sticker->stickerJson->selected_sticker_id, 47);
    EXPECT_EQ(sticker->stickerJson->status, 1);
    EXPECT_EQ(f.editor.undoArray().size(), 2);
    f.editor.undo();
    EXPECT_FALSE(f.editor.canShowLayers());
}

TEST(LayerPanel, TintedStickerShowsTintedInItsRow)
{
    EditorFixture f;
    f.picture(QStringLiteral("white.png"), Qt::white);
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "sticker_json": [
        {"sticker_image": "white.png", "color": "#00ff00", "width": 40, "height": 40}]})"));
    f.editor.toggleLayers();
    LayerListModel *rows = f.editor.layerModel();
    const QString url = rows->data(rows->index(0), LayerListModel::ThumbnailRole).toString();
    ASSERT_TRUE(url.startsWith(QStringLiteral("data:image/png;base64,")));
    const QImage thumbnail
        = QImage::fromData(QByteArray::fromBase64(url.mid(url.indexOf(QLatin1Char(',')) + 1).toLatin1()));
    ASSERT_FALSE(thumbnail.isNull());
    EXPECT_EQ(thumbnail.pixelColor(thumbnail.width() / 2, thumbnail.height() / 2), QColor(Qt::green));
}
