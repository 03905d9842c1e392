#include "designsaver.h"

#include "mapper.h"

DesignSaver::DesignSaver(DesignStore &store, std::optional<ObjectId> objectId)
    : m_store(store)
    , m_objectId(std::move(objectId))
{ }

bool DesignSaver::saveEdit(Json &document)
{
    document.is_editsaved = false;
    return store(document);
}

bool DesignSaver::saveFinal(Json &document, const QString &sampleImage, const QString &thumbnailImage,
    RecordList<StickerJson> stickersInStackingOrder)
{
    clearDeltas(document);
    document.sample_image = sampleImage;
    document.thumbnail_img = thumbnailImage;
    document.sticker_json = std::move(stickersInStackingOrder);
    document.is_editsaved = true;
    return store(document);
}

bool DesignSaver::saveExport(Json &document, const QString &sampleImage, const std::optional<QString> &backgroundImage,
    const std::optional<QString> &sampleVideo)
{
    clearDeltas(document);
    if (document.background_json)
        document.background_json->background_image = backgroundImage;
    document.sample_image = sampleImage;
    document.sample_video = sampleVideo;
    return store(document);
}

void DesignSaver::clearDeltas(Json &document)
{
    document.changed_text_json.reset();
    document.changed_sticker_json.reset();
    document.changed_image_sticker_json.reset();
    document.changed_frame_image_sticker_json.reset();
    document.changed_background_json.reset();
}

bool DesignSaver::store(Json &document)
{
    // A stored design is read as a document only when it has the key "sample_image"; without it the
    // reader takes the older form and the layers are lost.
    if (!document.sample_image)
        document.sample_image = QString();
    const std::optional<QString> jsonString = Mapper::toJSONString(document, true);
    if (!jsonString)
        return false;
    // The id of the row written, never the newest row of the store: after a failed insert that row is
    // another design's, and the next save would overwrite it.
    if (std::optional<ObjectId> written = m_store.saveDesign(*jsonString, m_objectId, document.is_Video))
        m_objectId = std::move(written);
    return true;
}
