#pragma once

#include "layerkinds.h"
#include "undohistory.h"

#include <QList>
#include <QObject>

#include <nlohmann/json.hpp>

#include <memory>
#include <variant>

/** A record that a replay hands back to the canvas: the background or a layer of any kind. */
using ReplayRecord = std::variant<std::shared_ptr<BackgroundJson>, std::shared_ptr<ImageStickerJson>,
    std::shared_ptr<FrameImageStickerJson>, std::shared_ptr<StickerJson>, std::shared_ptr<TextJson>>;

/** What a replay asks of the canvas: the two calls by which the recorder reaches the editor. */
class ReplayCanvas
{
public:
    virtual ~ReplayCanvas() = default;
    /** Removes the layers of `kind` whose records carry these indexes; with `deselect` that kind's selection goes too.
     */
    virtual void removeLayers(LayerKind kind, const QList<qint64> &indexes, bool deselect) = 0;
    /** Shows a replayed record: the background as it says, or a layer made anew from its own values, on top. */
    virtual void makeLayer(const ReplayRecord &record) = 0;
};

/**
 * Undo and redo of one editing session. Each recorded step puts the records it touched into the
 * document's `changed_*` delta and keeps the whole document as a snapshot in `undoArray`; an undo or a
 * redo rebuilds only the layers in the delta of the step, through the canvas. After every step and
 * every replay the document is stored (`stepStored`).
 *
 * The recorder works on the editor's live document, which a replay replaces as a whole.
 */
class UndoRecorder : public QObject
{
    Q_OBJECT
public:
    UndoRecorder(std::shared_ptr<Json> &document, ReplayCanvas &canvas, QObject *parent = nullptr);

    /** One entry per state of the document, oldest first; the last is the present. */
    [[nodiscard]] const QList<nlohmann::ordered_json> &undoArray() const { return m_undoArray; }
    [[nodiscard]] bool canUndo() const { return m_history.canUndo(); }
    [[nodiscard]] bool canRedo() const { return m_history.canRedo(); }

    /** The history of a freshly loaded document: one entry, nothing to undo; the background delta is cleared. */
    void start();
    /** Empties the delta of the document: the start of each recorded step. */
    void clearChanged();

    /** A layer's record changed: it replaces the record of the same `index` in its array. */
    template<class Record> void recordChange(const std::shared_ptr<Record> &record);
    /**
     * A layer was attached with its record: a record new to its array is appended with status 1 as a
     * step; one that is already there (a load, a replay) is replaced and nothing is recorded.
     */
    template<class Record> void recordAdded(const std::shared_ptr<Record> &record);
    /** A layer was closed: its record leaves its array with status 3. */
    template<class Record> void recordClosed(const std::shared_ptr<Record> &record);
    /** The background changed; the step carries it, the live document rests without the delta. */
    void recordBackground(const std::shared_ptr<BackgroundJson> &record);

    void undo();
    void redo();

Q_SIGNALS:
    /** A step was recorded or replayed: the document is to be stored. */
    void stepStored();
    void undoStateChanged();

private:
    void perform(UndoHistory::Operation operation, nlohmann::ordered_json content);
    void recordStep(nlohmann::ordered_json snapshot);
    /** The end of every recorded step: snapshot, history, store. */
    void finishStep();
    void removeContent(nlohmann::ordered_json content);
    void addContent(nlohmann::ordered_json content);
    /** Makes `json` the live document and rebuilds the layers of its delta, kind by kind. */
    void applyDocument(const std::shared_ptr<Json> &json, bool isUndo);
    void notifyUndoState();

    std::shared_ptr<Json> &m_document;
    ReplayCanvas &m_canvas;
    UndoHistory m_history;
    QList<nlohmann::ordered_json> m_undoArray;
    bool m_canUndo = false;
    bool m_canRedo = false;
};

namespace UndoRecords {

// An absent `index` matches an absent one.
template<class Record> bool replaceByIndex(RecordList<Record> &list, const std::shared_ptr<Record> &record)
{
    if (!list)
        return false;
    for (auto &entry : *list) {
        if (entry && entry->index == record->index) {
            entry = record;
            return true;
        }
    }
    return false;
}

} // namespace UndoRecords

template<class Record> void UndoRecorder::recordChange(const std::shared_ptr<Record> &record)
{
    using Kind = LayerKinds::KindOf<Record>;
    if (!m_document || !record)
        return;
    clearChanged();
    UndoRecords::replaceByIndex(*m_document.*Kind::array, record);
    (*m_document.*Kind::changed)->append(record);
    finishStep();
}

template<class Record> void UndoRecorder::recordAdded(const std::shared_ptr<Record> &record)
{
    using Kind = LayerKinds::KindOf<Record>;
    if (!m_document || !record)
        return;
    clearChanged();
    RecordList<Record> &list = *m_document.*Kind::array;
    if (UndoRecords::replaceByIndex(list, record))
        return;
    if (!list)
        list.emplace();
    list->append(record);
    record->status = 1;
    (*m_document.*Kind::changed)->append(record);
    finishStep();
}

template<class Record> void UndoRecorder::recordClosed(const std::shared_ptr<Record> &record)
{
    using Kind = LayerKinds::KindOf<Record>;
    if (!m_document || !record)
        return;
    clearChanged();
    if (RecordList<Record> &list = *m_document.*Kind::array) {
        list->removeIf(
            [&record](const std::shared_ptr<Record> &entry) { return entry && entry->index == record->index; });
    }
    record->status = 3;
    (*m_document.*Kind::changed)->append(record);
    finishStep();
}
