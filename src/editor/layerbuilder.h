#pragma once

#include "layerkinds.h"

#include <QImage>
#include <QRectF>

#include <memory>
#include <optional>

class EditorSession;

/** The next `index` of each kind of layer; every layer made advances its kind's counter. */
struct IndexCounters
{
    qint64 textJsonIndex = 1;
    qint64 stickerJsonIndex = 1;
    qint64 imageStickerJsonIndex = 1;
    qint64 frameImageStickerJsonIndex = 1;

    template<class Kind> qint64 &of();
};

template<> inline qint64 &IndexCounters::of<SlotKind>()
{
    return imageStickerJsonIndex;
}
template<> inline qint64 &IndexCounters::of<OutlinedSlotKind>()
{
    return frameImageStickerJsonIndex;
}
template<> inline qint64 &IndexCounters::of<StickerKind>()
{
    return stickerJsonIndex;
}
template<> inline qint64 &IndexCounters::of<TextKind>()
{
    return textJsonIndex;
}

/**
 * Makes the layers of the canvas: from a document's records (the load, a replay, a duplicate) and new
 * ones that the user adds. Every layer is made the same way: the selection is cleared, the view made
 * with its frame, the editor as its delegate, put below the frame, turned, flashed while a design
 * loads, and attached with its kind's next index, which writes its record in canvas points.
 */
class LayerBuilder
{
public:
    explicit LayerBuilder(EditorSession &session);

    IndexCounters counters;
    /** Count of outlined slots made by the load. */
    int imageLimit = 0;

    StaticResizableImageView *addLayer(
        const QRectF &frame, const std::shared_ptr<ImageStickerJson> &record, bool isLoading);
    BorderedResizableImageView *addLayer(
        const QRectF &frame, const std::shared_ptr<FrameImageStickerJson> &record, bool isLoading);
    ResizableImageView *addLayer(const QRectF &frame, const std::shared_ptr<StickerJson> &record, bool isLoading);
    ResizableView *addLayer(const QRectF &frame, const std::shared_ptr<TextJson> &record, bool isLoading);
    /** A layer of a record in canvas points, framed as its kind keeps it. */
    template<class Record> auto *addStored(const std::shared_ptr<Record> &record, bool isLoading)
    {
        return addLayer(LayerKinds::KindOf<Record>::storedFrame(*record), record, isLoading);
    }

    /** A sticker from a picked picture, sized for the screen, centred and selected. */
    ResizableImageView *addNewSticker(const QImage &picture);
    /** A text typed in the entry screen, at 28 points, centred and selected. */
    ResizableView *addNewText(const QString &text, const QString &fontName, const std::optional<QColor> &color);
    /** A copy of the selected text or sticker, a little below and right of it when there is room. */
    void duplicateSelected();

private:
    template<class Kind>
    typename Kind::Layer *addSlot(
        const QRectF &frame, const std::shared_ptr<typename Kind::Record> &record, bool isLoading);
    /** Puts a layer on the canvas, below the frame. */
    void insert(View *layer);
    [[nodiscard]] QImage pictureFor(const std::optional<QString> &name) const;

    EditorSession &m_session;
};
