#pragma once

#include "textjson.h"

#include <memory>

class ResizableView;

/** What a text layer tells the editor, in this order. */
class ResizableViewDelegate
{
public:
    virtual ~ResizableViewDelegate() = default;
    virtual void textDidSelect(ResizableView *view) = 0;
    virtual void textDidDeselect(ResizableView *view) = 0;
    /** The close handle was tapped; the layer leaves the canvas next. */
    virtual void textWillClose(ResizableView *view) = 0;
    /** A change was written back into the record. */
    virtual void textDidUpdate(std::shared_ptr<TextJson> json) = 0;
    /** The record was written at `setTag`. */
    virtual void textDidAttach(std::shared_ptr<TextJson> json) = 0;
    /** The layer is being moved: show the alignment grid. */
    virtual void textDidDrag(ResizableView *view) = 0;
    virtual void textDidEndDrag(ResizableView *view) = 0;
};
