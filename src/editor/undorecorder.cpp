#include "undorecorder.h"

#include "mapper.h"

UndoRecorder::UndoRecorder(std::shared_ptr<Json> &document, ReplayCanvas &canvas, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_canvas(canvas)
    , m_history([this](UndoHistory::Operation operation, nlohmann::ordered_json content) {
        perform(operation, std::move(content));
    })
{ }

void UndoRecorder::start()
{
    m_undoArray = { m_document ? Mapper::toJSON(*m_document) : nlohmann::ordered_json::object() };
    if (m_document)
        m_document->changed_background_json = nullptr;
    notifyUndoState();
}

void UndoRecorder::clearChanged()
{
    m_document->changed_background_json = nullptr;
    LayerKinds::forEach([this](auto kind) { (*m_document.*decltype(kind)::changed).emplace(); });
}

void UndoRecorder::recordBackground(const std::shared_ptr<BackgroundJson> &record)
{
    if (!m_document || !record)
        return;
    clearChanged();
    m_document->background_json = record;
    m_document->changed_background_json = record;
    recordStep(Mapper::toJSON(*m_document));
    // The snapshot carries the background delta; the live document rests without it.
    m_document->changed_background_json = nullptr;
    Q_EMIT stepStored();
}

void UndoRecorder::finishStep()
{
    recordStep(Mapper::toJSON(*m_document));
    Q_EMIT stepStored();
}

void UndoRecorder::recordStep(nlohmann::ordered_json snapshot)
{
    m_history.registerUndo(UndoHistory::Operation::RemoveContent, snapshot);
    m_history.setActionName(QStringLiteral("add content"));
    m_undoArray.append(std::move(snapshot));
    notifyUndoState();
}

void UndoRecorder::undo()
{
    m_history.undo();
    notifyUndoState();
}

void UndoRecorder::redo()
{
    m_history.redo();
    notifyUndoState();
}

void UndoRecorder::notifyUndoState()
{
    if (m_canUndo == canUndo() && m_canRedo == canRedo())
        return;
    m_canUndo = canUndo();
    m_canRedo = canRedo();
    Q_EMIT undoStateChanged();
}

void UndoRecorder::perform(UndoHistory::Operation operation, nlohmann::ordered_json content)
{
    if (operation == UndoHistory::Operation::RemoveContent)
        removeContent(std::move(content));
    else
        addContent(std::move(content));
}

namespace {

// Of the present entry an undo reads only the delta; mapping the whole document would cost as much
// as mapping the previous one, which the undo does need.
nlohmann::ordered_json deltaOf(const nlohmann::ordered_json &snapshot)
{
    if (!snapshot.is_object())
        return snapshot;
    nlohmann::ordered_json delta = nlohmann::ordered_json::object();
    for (const char *key : { "changed_text_json", "changed_sticker_json", "changed_image_sticker_json",
             "changed_frame_image_sticker_json", "changed_background_json" }) {
        if (const auto found = snapshot.find(key); found != snapshot.end())
            delta[key] = *found;
    }
    return delta;
}

// Marks the records of `previous` that the undone step touched as changed, so that their layers are
// rebuilt. When the step touched none that existed before, it added layers: the current delta, still
// with status 1, tells the replay to remove them.
template<class Kind> void markTouched(Json &previous, const Json &current)
{
    QList<qint64> indexes = LayerKinds::indexesOf(current.*Kind::changed);
    auto &delta = previous.*Kind::changed;
    delta.emplace();
    bool matched = false;
    if (const auto &records = previous.*Kind::array) {
        for (const auto &record : *records) {
            if (record && record->index && indexes.removeOne(*record->index)) {
                record->status = 2;
                delta->append(record);
                matched = true;
            }
        }
    }
    if (!matched)
        delta = current.*Kind::changed;
}

// A record that makes no layer in this direction: added and undone, or closed and redone.
template<class Record> bool makesNoLayer(const Record &record, bool isUndo)
{
    return (record.status == 1 && isUndo) || (record.status == 3 && !isUndo);
}

} // namespace

void UndoRecorder::removeContent(nlohmann::ordered_json content)
{
    m_history.registerUndo(UndoHistory::Operation::AddContent, std::move(content));
    m_history.setActionName(QStringLiteral("remove content"));
    if (m_undoArray.isEmpty())
        return;
    const std::shared_ptr<Json> current = Mapper::map<Json>(deltaOf(m_undoArray.last()));
    m_undoArray.removeLast();
    if (m_undoArray.isEmpty() || !current)
        return;
    const std::shared_ptr<Json> previous = Mapper::map<Json>(m_undoArray.last());
    if (!previous)
        return;
    // A step that gave a background to a document without one goes back to an empty record: clear.
    if (current->changed_background_json)
        previous->changed_background_json
            = previous->background_json ? previous->background_json : std::make_shared<BackgroundJson>();
    LayerKinds::forEach([&](auto kind) { markTouched<decltype(kind)>(*previous, *current); });
    applyDocument(previous, true);
}

void UndoRecorder::addContent(nlohmann::ordered_json content)
{
    m_history.registerUndo(UndoHistory::Operation::RemoveContent, content);
    m_history.setActionName(QStringLiteral("add content"));
    m_undoArray.append(std::move(content));
    if (const std::shared_ptr<Json> json = Mapper::map<Json>(m_undoArray.last()))
        applyDocument(json, false);
}

void UndoRecorder::applyDocument(const std::shared_ptr<Json> &json, bool isUndo)
{
    // The frame is no step of the history: a replay keeps the frame shown now.
    if (m_document)
        json->frame_json = m_document->frame_json;
    m_document = json;
    // The whole delta is read first: a layer made below attaches and empties it, and the document
    // rests, and is stored, without it.
    const Json delta = *json;
    clearChanged();
    if (delta.changed_background_json)
        m_canvas.makeLayer(delta.changed_background_json);
    LayerKinds::forEach([&](auto kind) {
        using Kind = decltype(kind);
        const auto &records = delta.*Kind::changed;
        if (!records || records->isEmpty())
            return;
        // Only a text's or a sticker's selection goes with a layer that is not made again.
        const bool selectable = Kind::kind == LayerKind::Sticker || Kind::kind == LayerKind::Text;
        const bool deselect = selectable
            && std::any_of(records->cbegin(), records->cend(),
                [isUndo](const auto &record) { return record && makesNoLayer(*record, isUndo); });
        m_canvas.removeLayers(Kind::kind, LayerKinds::indexesOf(records), deselect);
        for (const auto &record : *records) {
            if (record && !makesNoLayer(*record, isUndo))
                m_canvas.makeLayer(record);
        }
    });
    Q_EMIT stepStored();
}
