#pragma once

#include "stickerjson.h"

#include <memory>

class ResizableImageView;

/** What a sticker layer tells the editor, in this order. */
class ResizableImageViewDelegate
{
public:
    virtual ~ResizableImageViewDelegate() = default;
    /** The layer was tapped. */
    virtual void stickerDidSelect(ResizableImageView *view) = 0;
    virtual void stickerDidDeselect(ResizableImageView *view) = 0;
    /** The close handle was tapped; the layer leaves the canvas next. */
    virtual void stickerWillClose(ResizableImageView *view) = 0;
    virtual void stickerDidClose(ResizableImageView *view) = 0;
    /** A gesture ended and the record was written back. */
    virtual void stickerDidUpdate(std::shared_ptr<StickerJson> json) = 0;
    /** The record was written at `setTag`. */
    virtual void stickerDidAttach(std::shared_ptr<StickerJson> json) = 0;
    /** The layer is being moved: show the alignment grid. */
    virtual void stickerDidDrag(ResizableImageView *view) = 0;
    virtual void stickerDidEndDrag(ResizableImageView *view) = 0;
};
