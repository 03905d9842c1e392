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
    document.changed_text_json.reset();
    document.changed_sticker_json.reset();
    document.changed_image_sticker_json.reset();
    document.changed_frame_image_sticker_json.reset();
    document.changed_background_json.reset();
    document.sample_image = sampleImage;
    document.thumbnail_img = thumbnailImage;
    document.sticker_json = std::move(stickersInStackingOrder);
    document.is_editsaved = true;
    return store(document);
}

bool DesignSaver::store(const Json &document)
{
    const std::optional<QString> jsonString = Mapper::toJSONString(document, true);
    if (!jsonString)
        return false;
    if (m_objectId) {
        m_store.saveDesign(*jsonString, m_objectId, document.is_Video);
        return true;
    }
    // The newest row is the one just inserted.
    m_store.saveDesign(*jsonString, std::nullopt, document.is_Video);
    m_objectId = m_store.lastDesignObjectID();
    return true;
}
