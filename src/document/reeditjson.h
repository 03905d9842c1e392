#pragma once

#include "frameimagestickerjson.h"
#include "imagestickerjson.h"
#include "recordlist.h"
#include "reeditbackground.h"
#include "reeditframe.h"
#include "stickerjson.h"
#include "textjson.h"

#include <QString>

#include <memory>
#include <optional>

struct Json;

/** The snapshot form that older versions stored; still read from the store, never written. */
struct ReEditJson
{
    std::optional<QString> image; // preview
    std::shared_ptr<ReEditBackground> backgroundImage;
    std::shared_ptr<ReEditFrame> fgImage;
    RecordList<StickerJson> resizableImages;
    RecordList<ImageStickerJson> staticResizableImages;
    RecordList<FrameImageStickerJson> frameResizableImages;
    RecordList<TextJson> resizables;
    std::optional<bool> is_portrait;

    /** The same design as a document. Its records are handed over, not copied. */
    [[nodiscard]] std::shared_ptr<Json> toDocument() const;

    template<class Map> void mapping(Map &map)
    {
        map("image", image);
        map("backgroundImage", backgroundImage);
        map("fgImage", fgImage);
        map("resizableImages", resizableImages);
        map("staticResizableImages", staticResizableImages);
        map("frameResizableImages", frameResizableImages);
        map("resizables", resizables);
        map("is_portrait", is_portrait);
    }
};
