// The history on its own, with a canvas that only notes what a replay asks of it.
#include "mapper.h"
#include "testhome.h"
#include "undorecorder.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

struct NotedCanvas : ReplayCanvas
{
    QStringList calls;
    void removeLayers(LayerKind kind, const QList<qint64> &indexes, bool deselect) override
    {
        QStringList numbers;
        for (qint64 index : indexes)
            numbers.append(QString::number(index));
        calls.append(QStringLiteral("remove %1 [%2]%3")
                         .arg(LayerKinds::name(kind), numbers.join(u','), deselect ? QStringLiteral(" deselect") : ""));
    }
    void makeLayer(const ReplayRecord &record) override
    {
        std::visit(
            [this](const auto &made) {
                using Record = typename std::decay_t<decltype(made)>::element_type;
                if constexpr (std::is_same_v<Record, BackgroundJson>)
                    calls.append(QStringLiteral("background ") + made->background_color.value_or(QString()));
                else
                    calls.append(QStringLiteral("make %1 %2 status %3")
                                     .arg(LayerKinds::name(LayerKinds::KindOf<Record>::kind))
                                     .arg(made->index.value_or(0))
                                     .arg(made->status));
            },
            record);
    }
};

struct History
{
    History()
    {
        document = Mapper::map<Json>(QStringLiteral(R"({"text_json": [{"text": "a", "index": 1}],
            "sticker_json": [{"sticker_image": "s.png", "index": 1}], "background_json": {"background_color": "#111111"}})"));
        recorder.start();
    }
    std::shared_ptr<TextJson> text() const { return document->text_json->first(); }

    std::shared_ptr<Json> document;
    NotedCanvas canvas;
    UndoRecorder recorder { document, canvas };
};

} // namespace

TEST(UndoRecorder, AChangeUndoneRebuildsOnlyItsLayerAndEveryStepIsStored)
{
    History h;
    QSignalSpy stored(&h.recorder, &UndoRecorder::stepStored);
    auto moved = h.text()->copy();
    moved->xPos = 50;
    h.recorder.recordChange(moved);
    EXPECT_EQ(h.recorder.undoArray().size(), 2);
    EXPECT_EQ(h.document->text_json->first(), moved);
    h.recorder.undo();
    EXPECT_EQ(h.canvas.calls, (QStringList { "remove text [1]", "make text 1 status 2" }));
    EXPECT_FALSE(h.document->text_json->first()->xPos.has_value());
    // The live document after a replay holds no delta, and so neither does what is stored.
    EXPECT_TRUE(h.document->changed_text_json->isEmpty());
    EXPECT_EQ(stored.size(), 2);
}

TEST(UndoRecorder, AnAddedLayerUndoneIsRemovedWithItsKindsSelectionOnly)
{
    History h;
    auto added = std::make_shared<StickerJson>();
    added->index = 2;
    h.recorder.recordAdded(added);
    EXPECT_EQ(added->status, 1);
    h.recorder.undo();
    EXPECT_EQ(h.canvas.calls, (QStringList { "remove sticker [2] deselect" }));
    h.canvas.calls.clear();
    h.recorder.redo();
    EXPECT_EQ(h.canvas.calls, (QStringList { "remove sticker [2]", "make sticker 2 status 1" }));
}

TEST(UndoRecorder, ARecordAlreadyInItsArrayIsNoStepButTheDeltaIsCleared)
{
    History h;
    h.document->changed_text_json = QList { h.text() };
    h.recorder.recordAdded(h.text());
    EXPECT_EQ(h.recorder.undoArray().size(), 1);
    EXPECT_TRUE(h.document->changed_text_json->isEmpty());
}

TEST(UndoRecorder, ABackgroundStepCarriesItsDeltaOnlyInTheSnapshot)
{
    History h;
    auto background = std::make_shared<BackgroundJson>();
    background->background_color = QStringLiteral("#222222");
    h.recorder.recordBackground(background);
    EXPECT_FALSE(h.document->changed_background_json);
    EXPECT_TRUE(h.recorder.undoArray().last().contains("changed_background_json"));
    h.recorder.undo();
    EXPECT_EQ(h.canvas.calls, QStringList { "background #111111" });
}
