#include "backgroundimageview.h"
#include "editorfixture.h"
#include "resizableimageview.h"
#include "resizableview.h"
#include "undohistory.h"

#include <gtest/gtest.h>

namespace {

nlohmann::ordered_json marker(int value)
{
    return { { "marker", value } };
}

std::shared_ptr<Json> snapshotAt(const EditImagePortraitMode &editor, qsizetype entry)
{
    return Mapper::map<Json>(editor.undoArray().at(entry));
}

void pan(LayerView *layer, QPointF by)
{
    layer->tapGesture();
    layer->panGesture(LayerView::Changed, by);
    layer->panGesture(LayerView::Ended, QPointF());
}

} // namespace

TEST(UndoHistory, OperationsRegisterTheirOppositesOnTheOtherStack)
{
    QList<std::pair<UndoHistory::Operation, int>> performed;
    UndoHistory *history = nullptr;
    UndoHistory h([&](UndoHistory::Operation operation, nlohmann::ordered_json snapshot) {
        performed.append({ operation, snapshot["marker"].get<int>() });
        // As the editor does: undo registers a redo with the same snapshot and the other way round.
        history->registerUndo(operation == UndoHistory::Operation::RemoveContent
                ? UndoHistory::Operation::AddContent
                : UndoHistory::Operation::RemoveContent,
            snapshot);
    });
    history = &h;
    EXPECT_FALSE(h.canUndo());
    h.undo(); // nothing to undo is harmless
    h.registerUndo(UndoHistory::Operation::RemoveContent, marker(1));
    h.setActionName(QStringLiteral("add content"));
    h.registerUndo(UndoHistory::Operation::RemoveContent, marker(2));
    EXPECT_EQ(h.undoActionName(), QString());
    h.undo();
    h.undo();
    EXPECT_FALSE(h.canUndo());
    ASSERT_TRUE(h.canRedo());
    // The redo stack holds them newest-undone last.
    h.redo();
    EXPECT_EQ(performed.last(), std::pair(UndoHistory::Operation::AddContent, 1));
    EXPECT_TRUE(h.canRedo());
    // A step of the user's own drops what could still be redone.
    h.registerUndo(UndoHistory::Operation::RemoveContent, marker(3));
    EXPECT_FALSE(h.canRedo());
    h.undo();
    h.undo();
    EXPECT_EQ(performed.mid(2),
        (QList<std::pair<UndoHistory::Operation, int>> { { UndoHistory::Operation::AddContent, 1 },
            { UndoHistory::Operation::RemoveContent, 3 }, { UndoHistory::Operation::RemoveContent, 1 } }));
}

TEST(Undo, AfterTheLoadThereIsOneEntryAndNothingToUndo)
{
    EditorFixture f;
    f.picture(QStringLiteral("a.png"));
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "sticker_json": [{"sticker_image": "a.png"}],
        "text_json": [{"text": "Hello"}]})"));
    EXPECT_EQ(f.editor.undoArray().size(), 1);
    EXPECT_FALSE(f.editor.canUndo());
    EXPECT_FALSE(f.editor.canRedo());
    EXPECT_FALSE(f.editor.hasChanges());
    f.editor.undo();
    EXPECT_EQ(f.layers<ResizableView>().size(), 1);
    EXPECT_EQ(f.store.allDesigns().size(), 0); // opening stores nothing
}

TEST(Undo, AddedTextIsRemovedByUndoAndMadeAgainByRedo)
{
    EditorFixture f;
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "text_json": [{"text": "Old"}]})"));
    ResizableView *added
        = f.editor.addNewText(QStringLiteral("New"), QStringLiteral("Montserrat-Bold"), QColor(Qt::red));
    EXPECT_EQ(f.editor.selection.selectedView, added);
    EXPECT_EQ(added->textJson->index, 2);
    ASSERT_EQ(f.editor.undoArray().size(), 2);
    EXPECT_TRUE(f.editor.canUndo());
    const auto step = snapshotAt(f.editor, 1);
    ASSERT_EQ(step->changed_text_json->size(), 1);
    EXPECT_EQ(step->changed_text_json->first()->status, 1);
    EXPECT_EQ(step->changed_text_json->first()->text, QStringLiteral("New"));
    EXPECT_EQ(step->text_json->size(), 2);

    f.editor.undo();
    EXPECT_EQ(f.editor.undoArray().size(), 1);
    EXPECT_EQ(f.editor.masterJson->text_json->size(), 1);
    // The previous document has no such record, so the added layer's delta is taken: status 1 on undo
    // means the layer goes and none is made. The document rests, and is stored, without that delta.
    EXPECT_TRUE(f.editor.masterJson->changed_text_json->isEmpty());
    EXPECT_TRUE(f.store.savedDesigns().first().document->changed_text_json->isEmpty());
    const auto texts = f.layers<ResizableView>();
    ASSERT_EQ(texts.size(), 1);
    EXPECT_EQ(texts.first()->textJson->text, QStringLiteral("Old"));
    EXPECT_FALSE(f.editor.selection.selectedView);
    EXPECT_FALSE(f.editor.canUndo());
    EXPECT_TRUE(f.editor.canRedo());

    f.editor.redo();
    EXPECT_EQ(f.editor.undoArray().size(), 2);
    EXPECT_EQ(f.layers<ResizableView>().size(), 2);
    EXPECT_EQ(f.layers<ResizableView>().last()->textJson->text, QStringLiteral("New"));
    EXPECT_TRUE(f.editor.canUndo());
    EXPECT_FALSE(f.editor.canRedo());
}

TEST(Undo, ClosedTextComesBackOnTopAndRedoClosesItAgain)
{
    EditorFixture f;
    f.picture(QStringLiteral("a.png"));
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "text_json": [{"text": "Bottom"}],
        "sticker_json": [{"sticker_image": "a.png", "xPos": 50, "yPos": 50, "width": 40, "height": 40}]})"));
    ResizableView *text = f.layers<ResizableView>().first();
    text->tapGesture();
    const QRectF before = text->unrotatedFrame();
    text->buttonTapGesture();
    EXPECT_FALSE(f.editor.selection.selectedView);
    ASSERT_EQ(f.editor.undoArray().size(), 2);
    const auto closed = snapshotAt(f.editor, 1);
    EXPECT_TRUE(closed->text_json->isEmpty());
    ASSERT_EQ(closed->changed_text_json->size(), 1);
    EXPECT_EQ(closed->changed_text_json->first()->status, 3);

    f.editor.undo();
    const auto texts = f.layers<ResizableView>();
    ASSERT_EQ(texts.size(), 1);
    EXPECT_NE(texts.first(), text);
    EXPECT_EQ(texts.first()->textJson->status, 2);
    EXPECT_EQ(texts.first()->textJson->text, QStringLiteral("Bottom"));
    EXPECT_NEAR(texts.first()->unrotatedFrame().x(), before.x(), 1e-3);
    EXPECT_NEAR(texts.first()->unrotatedFrame().y(), before.y(), 1e-3);
    EXPECT_EQ(f.editor.masterJson->text_json->size(), 1);

    f.editor.redo();
    EXPECT_TRUE(f.layers<ResizableView>().isEmpty());
    EXPECT_TRUE(f.editor.masterJson->text_json->isEmpty());
    EXPECT_EQ(snapshotAt(f.editor, 1)->changed_text_json->first()->status, 3);
    EXPECT_TRUE(f.editor.masterJson->changed_text_json->isEmpty());
}

TEST(Undo, RevivedLayerLandsAboveTheLayersThatWereAboveIt)
{
    EditorFixture f;
    f.picture(QStringLiteral("a.png"));
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "sticker_json": [
        {"sticker_image": "a.png", "width": 40, "height": 40}, {"sticker_image": "a.png", "width": 40, "height": 40},
        {"sticker_image": "a.png", "width": 40, "height": 40}]})"));
    f.layers<ResizableImageView>().first()->buttonTapGesture();
    f.editor.undo();
    QList<qint64> order;
    for (ResizableImageView *sticker : f.layers<ResizableImageView>())
        order.append(sticker->stickerJson->index.value_or(0));
    EXPECT_EQ(order, (QList<qint64> { 2, 3, 1 }));
    // The document keeps its array order; only the stack changed.
    EXPECT_EQ(f.editor.masterJson->sticker_json->first()->index, 1);
}

TEST(Undo, ChangeUndoneRestoresOnlyTheTouchedLayer)
{
    EditorFixture f;
    f.picture(QStringLiteral("a.png"));
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "sticker_json": [
        {"sticker_image": "a.png", "xPos": 100, "yPos": 100, "width": 40, "height": 40},
        {"sticker_image": "a.png", "xPos": 200, "yPos": 200, "width": 40, "height": 40}]})"));
    auto stickers = f.layers<ResizableImageView>();
    ResizableImageView *untouched = stickers.at(0);
    pan(stickers.at(1), QPointF(30, -20));
    EXPECT_NEAR(f.editor.masterJson->sticker_json->at(1)->xPos.value(), 230, 1e-3);
    EXPECT_EQ(f.editor.masterJson->sticker_json->at(1)->status, 2);

    f.editor.undo();
    stickers = f.layers<ResizableImageView>();
    ASSERT_EQ(stickers.size(), 2);
    EXPECT_EQ(stickers.at(0), untouched); // not rebuilt
    EXPECT_NEAR(stickers.at(1)->stickerJson->xPos.value(), 200, 1e-3);
    EXPECT_NEAR(stickers.at(1)->unrotatedFrame().x() + LayerView::contentInset, 200, 1e-3);
    EXPECT_NEAR(f.editor.masterJson->sticker_json->at(1)->yPos.value(), 200, 1e-3);

    f.editor.redo();
    EXPECT_NEAR(f.layers<ResizableImageView>().last()->unrotatedFrame().x() + LayerView::contentInset, 230, 1e-3);
}

TEST(Undo, BackgroundDeltaIsInTheSnapshotButNotInTheLiveModel)
{
    EditorFixture f;
    f.picture(QStringLiteral("a.png"));
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "background_json": {"background_color": "#ff0000"},
        "sticker_json": [{"sticker_image": "a.png", "width": 40, "height": 40}]})"));
    ResizableImageView *sticker = f.layers<ResizableImageView>().first();
    auto blue = std::make_shared<BackgroundJson>();
    blue->background_color = QStringLiteral("#0000ff");
    f.editor.recorder().recordBackground(blue);
    EXPECT_FALSE(f.editor.masterJson->changed_background_json);
    EXPECT_EQ(f.editor.masterJson->background_json, blue);
    const auto step = snapshotAt(f.editor, 1);
    ASSERT_TRUE(step->changed_background_json);
    EXPECT_EQ(step->changed_background_json->background_color, QStringLiteral("#0000ff"));

    f.editor.undo();
    EXPECT_EQ(f.editor.backgroundImageView->backgroundColor(), QColor(Qt::red));
    EXPECT_EQ(f.editor.masterJson->background_json->background_color, QStringLiteral("#ff0000"));
    EXPECT_EQ(f.layers<ResizableImageView>().first(), sticker); // the unchanged layer stays as it is
    f.editor.redo();
    EXPECT_EQ(f.editor.backgroundImageView->backgroundColor(), QColor(Qt::blue));
}

TEST(Undo, RecordWithoutIndexLeavesItsLayerAlone)
{
    EditorFixture f;
    f.picture(QStringLiteral("a.png"));
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "sticker_json": [
        {"sticker_image": "a.png", "xPos": 100, "yPos": 100, "width": 40, "height": 40}]})"));
    ResizableImageView *sticker = f.layers<ResizableImageView>().first();
    sticker->stickerJson->index.reset();
    pan(sticker, QPointF(50, 0));
    ASSERT_EQ(f.editor.undoArray().size(), 2);
    f.editor.undo();
    // Not in the lists of indexes, so no layer is removed: the moved one stays where it was moved.
    EXPECT_TRUE(f.editor.viewMain->subviews().contains(sticker));
    EXPECT_NEAR(sticker->unrotatedFrame().x() + LayerView::contentInset, 150, 1e-3);
}

TEST(Undo, NewStepAfterUndoDropsTheRedo)
{
    EditorFixture f;
    f.picture(QStringLiteral("a.png"));
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "sticker_json": [
        {"sticker_image": "a.png", "xPos": 100, "yPos": 100, "width": 40, "height": 40}]})"));
    pan(f.layers<ResizableImageView>().first(), QPointF(10, 0));
    pan(f.layers<ResizableImageView>().first(), QPointF(10, 0));
    f.editor.undo();
    EXPECT_TRUE(f.editor.canRedo());
    pan(f.layers<ResizableImageView>().first(), QPointF(0, 10));
    EXPECT_FALSE(f.editor.canRedo());
    EXPECT_EQ(f.editor.undoArray().size(), 3);
    f.editor.undo();
    f.editor.undo();
    EXPECT_NEAR(f.layers<ResizableImageView>().first()->stickerJson->xPos.value(), 100, 1e-3);
    EXPECT_FALSE(f.editor.canUndo());
}

TEST(Duplicate, CopyStepsAsideUnlessAtTheEdgeAndIsOneStep)
{
    EditorFixture f;
    f.picture(QStringLiteral("a.png"));
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "sticker_json": [
        {"sticker_image": "a.png", "xPos": 100, "yPos": 100, "width": 40, "height": 40},
        {"sticker_image": "a.png", "xPos": 330, "yPos": 100, "width": 20, "height": 20}]})"));
    EXPECT_FALSE(f.editor.canDuplicate());
    auto stickers = f.layers<ResizableImageView>();
    stickers.at(0)->tapGesture();
    EXPECT_TRUE(f.editor.canDuplicate());
    f.editor.duplicateClicked();
    stickers.at(1)->tapGesture();
    f.editor.duplicateClicked();
    const auto records = *f.editor.masterJson->sticker_json;
    ASSERT_EQ(records.size(), 4);
    EXPECT_EQ(records.at(2)->index, 3);
    EXPECT_EQ(records.at(2)->status, 1);
    EXPECT_NEAR(records.at(2)->xPos.value(), 110, 1e-3);
    EXPECT_NEAR(records.at(2)->yPos.value(), 110, 1e-3);
    EXPECT_NEAR(records.at(3)->xPos.value(), 330, 1e-3); // no room to the right: on its source
    EXPECT_EQ(f.editor.undoArray().size(), 3);
    // The copy shares nothing with its source.
    EXPECT_NE(records.at(0), records.at(2));
    EXPECT_NEAR(records.at(0)->xPos.value(), 100, 1e-3);
}

TEST(AutomaticSave, EveryStepUpdatesOneRowOfTheStore)
{
    EditorFixture f;
    f.picture(QStringLiteral("a.png"));
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "sample_image": "sample.jpg", "sticker_json": [
        {"sticker_image": "a.png", "xPos": 100, "yPos": 100, "width": 40, "height": 40}]})"));
    EXPECT_FALSE(f.editor.objectId);
    pan(f.layers<ResizableImageView>().first(), QPointF(5, 5));
    ASSERT_TRUE(f.editor.objectId);
    EXPECT_TRUE(f.editor.hasChanges());
    const ObjectId row = *f.editor.objectId;
    f.editor.undo();
    EXPECT_EQ(f.editor.objectId, row);

    // A second store on the same file sees what was committed.
    DesignStore reader;
    const auto designs = reader.savedDesigns();
    ASSERT_EQ(designs.size(), 1);
    const auto &stored = designs.first().document;
    ASSERT_TRUE(stored);
    EXPECT_FALSE(stored->is_editsaved);
    // The undo's save is the last: the sticker is back where it was.
    EXPECT_NEAR(stored->sticker_json->first()->xPos.value(), 100, 1e-3);
}

TEST(TextFade, SurvivesUndoAndReopen)
{
    EditorFixture f;
    ASSERT_TRUE(f.open(R"({"width": 360, "height": 640, "sample_image": "s.jpg",
        "text_json": [{"text": "Fading", "xPos": 40, "yPos": 300, "size": 30}]})"));
    auto *text = f.layers<ResizableView>().first();
    text->tapGesture();
    text->textView->textAlpha = 0.4;
    text->textView->applyAlpha();
    text->recordTextChange();
    pan(text, QPointF(10, 10));
    f.editor.undo(); // the text is made again from the record of the fade
    text = f.layers<ResizableView>().first();
    EXPECT_NEAR(text->textView->alpha(), 0.4, 1e-6);

    EditImagePortraitMode reopened;
    reopened.setCanvasArea(QRectF(0, 0, 360, 640));
    ASSERT_TRUE(reopened.loadReEdit(f.store.savedDesigns().first().document));
    const auto layer = std::find_if(reopened.viewMain->subviews().cbegin(), reopened.viewMain->subviews().cend(),
        [](View *view) { return qobject_cast<ResizableView *>(view) != nullptr; });
    ASSERT_NE(layer, reopened.viewMain->subviews().cend());
    EXPECT_NEAR(qobject_cast<ResizableView *>(*layer)->textView->alpha(), 0.4, 1e-6);
}
