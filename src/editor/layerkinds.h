#pragma once

#include "borderedresizableimageview.h"
#include "json.h"
#include "resizableimageview.h"
#include "resizableview.h"
#include "staticresizableimageview.h"

#include <QList>
#include <QRectF>
#include <QString>

#include <memory>
#include <optional>
#include <variant>

/** The four kinds of layer that a document's arrays hold, in the order a replay rebuilds them. */
enum class LayerKind { Slot, OutlinedSlot, Sticker, Text };

/**
 * One description per kind of layer: its record, its view, the array and the delta of the document
 * that hold its records, and the frame a layer is made with: from a template's record converted into
 * canvas points, or from a record that holds canvas points (a stored design, a replayed step).
 * Everything that treats the kinds alike goes through these.
 */
struct SlotKind
{
    using Record = ImageStickerJson;
    using Layer = StaticResizableImageView;
    static constexpr LayerKind kind = LayerKind::Slot;
    static constexpr RecordList<Record> Json::*array = &Json::image_sticker_json;
    static constexpr RecordList<Record> Json::*changed = &Json::changed_image_sticker_json;
    static const std::shared_ptr<Record> &recordOf(const Layer &layer) { return layer.imageStickerJson; }
    static std::shared_ptr<Record> &recordOf(Layer &layer) { return layer.imageStickerJson; }
    /** The record keeps the frame's origin and its size less the margin. */
    static QRectF storedFrame(const Record &record);
    static QRectF templateFrame(const QRectF &converted);
};

struct OutlinedSlotKind
{
    using Record = FrameImageStickerJson;
    using Layer = BorderedResizableImageView;
    static constexpr LayerKind kind = LayerKind::OutlinedSlot;
    static constexpr RecordList<Record> Json::*array = &Json::frame_image_sticker_json;
    static constexpr RecordList<Record> Json::*changed = &Json::changed_frame_image_sticker_json;
    static const std::shared_ptr<Record> &recordOf(const Layer &layer) { return layer.frameImageStickerJson; }
    static std::shared_ptr<Record> &recordOf(Layer &layer) { return layer.frameImageStickerJson; }
    static QRectF storedFrame(const Record &record);
    static QRectF templateFrame(const QRectF &converted);
};

struct StickerKind
{
    using Record = StickerJson;
    using Layer = ResizableImageView;
    static constexpr LayerKind kind = LayerKind::Sticker;
    static constexpr RecordList<Record> Json::*array = &Json::sticker_json;
    static constexpr RecordList<Record> Json::*changed = &Json::changed_sticker_json;
    static const std::shared_ptr<Record> &recordOf(const Layer &layer) { return layer.stickerJson; }
    static std::shared_ptr<Record> &recordOf(Layer &layer) { return layer.stickerJson; }
    /** The record keeps the picture's own box, inside the layer's inset. */
    static QRectF storedFrame(const Record &record);
    static QRectF templateFrame(const QRectF &converted);
};

struct TextKind
{
    using Record = TextJson;
    using Layer = ResizableView;
    static constexpr LayerKind kind = LayerKind::Text;
    static constexpr RecordList<Record> Json::*array = &Json::text_json;
    static constexpr RecordList<Record> Json::*changed = &Json::changed_text_json;
    static const std::shared_ptr<Record> &recordOf(const Layer &layer) { return layer.textJson; }
    static std::shared_ptr<Record> &recordOf(Layer &layer) { return layer.textJson; }
    /** The record keeps the text's own corner, inside the inset and the inner margin; the size follows the text. */
    static QRectF storedFrame(const Record &record);
    static QRectF templateFrame(const QRectF &converted);
};

namespace LayerKinds {

/** The description of a record type. */
template<class Record> struct Of;
template<> struct Of<ImageStickerJson>
{
    using Kind = SlotKind;
};
template<> struct Of<FrameImageStickerJson>
{
    using Kind = OutlinedSlotKind;
};
template<> struct Of<StickerJson>
{
    using Kind = StickerKind;
};
template<> struct Of<TextJson>
{
    using Kind = TextKind;
};
template<class Record> using KindOf = typename Of<Record>::Kind;

/** Calls `visit` with each kind's description, in the order of a replay. */
template<class Visit> void forEach(Visit &&visit)
{
    visit(SlotKind {});
    visit(OutlinedSlotKind {});
    visit(StickerKind {});
    visit(TextKind {});
}

/** A record of any kind, as a replay hands it to the canvas. */
using AnyRecord = std::variant<std::shared_ptr<ImageStickerJson>, std::shared_ptr<FrameImageStickerJson>,
    std::shared_ptr<StickerJson>, std::shared_ptr<TextJson>>;

/** Which layer a view is: its kind and its record's index (none for a view that is no layer). */
struct Identity
{
    LayerKind kind;
    std::optional<qint64> index;
};
[[nodiscard]] std::optional<Identity> identify(const View *view);

/** The word for a kind in scripts: "slot", "outlined", "sticker", "text". */
[[nodiscard]] QString name(LayerKind kind);

/** The `index` values of records, leaving out those without one. */
template<class Record> [[nodiscard]] QList<qint64> indexesOf(const RecordList<Record> &records)
{
    QList<qint64> indexes;
    if (records) {
        for (const auto &record : *records) {
            if (record && record->index)
                indexes.append(*record->index);
        }
    }
    return indexes;
}

} // namespace LayerKinds
