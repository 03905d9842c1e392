#include "designlist.h"

#include "designfiles.h"
#include "designstore.h"
#include "imagecache.h"
#include "imagedecoder.h"
#include "storeddesign.h"

#include <QPointer>

DesignList DesignList::load(DesignStore &store)
{
    DesignList list;
    for (const SavePhoto &row : store.allDesigns()) {
        list.objectIdArr.append(row.objectID);
        if (auto document = readStoredDesign(row.jsonString))
            list.itemsArray.append(std::move(document));
    }
    return list;
}

void DesignList::loadPreview(const Json &design, QObject *context, const std::function<void(const QImage &)> &done)
{
    const QUrl address = DesignFiles::previewAddress(design);
    if (address.isEmpty()) {
        const QString file = DesignFiles::previewFile(design);
        done(file.isEmpty() ? QImage() : ImageDecoder::decodeFile(file));
        return;
    }
    ImageCache::shared().loadImage(address, context, [done](const QImage &picture, const QString &) { done(picture); });
}
