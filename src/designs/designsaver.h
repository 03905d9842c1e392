#pragma once

#include "designstore.h"
#include "json.h"
#include "objectid.h"
#include "recordlist.h"

#include <QString>

#include <optional>

/**
 * How an editor session stores its design: serialise, save, and keep the row's object id, which
 * stays empty until the first store write and is then kept for the session.
 */
class DesignSaver
{
public:
    explicit DesignSaver(DesignStore &store, std::optional<ObjectId> objectId = std::nullopt);

    /** The design's row; empty while the design has not been stored. */
    [[nodiscard]] const std::optional<ObjectId> &objectId() const { return m_objectId; }

    /** After each recorded edit: the document is stored as an edit in progress (`is_editsaved` false). */
    bool saveEdit(Json &document);

    /**
     * The user's save: the step deltas are dropped, the rendered preview and thumbnail are named,
     * the stickers are taken in stacking order from the canvas, and the design is marked saved.
     */
    bool saveFinal(Json &document, const QString &sampleImage, const QString &thumbnailImage,
        RecordList<StickerJson> stickersInStackingOrder);

    /**
     * The store of an exported video design: the step deltas are dropped so that the document stands
     * by itself, the background names the video it was made from, the preview and the exported movie
     * or GIF are named. The row keeps the document's `is_Video`.
     */
    bool saveExport(Json &document, const QString &sampleImage, const std::optional<QString> &backgroundImage,
        const std::optional<QString> &sampleVideo);

private:
    /** Drops the records of single steps, which the whole layer lists already hold. */
    static void clearDeltas(Json &document);
    /**
     * Stores the document, with an empty "sample_image" when it has none. False, with the store
     * untouched, when no JSON text can be made of it.
     */
    bool store(Json &document);

    DesignStore &m_store;
    std::optional<ObjectId> m_objectId;
};
