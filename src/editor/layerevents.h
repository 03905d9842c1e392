#pragma once

#include "resizableimageviewdelegate.h"
#include "resizableviewdelegate.h"
#include "slotdelegate.h"

#include "frameimagestickerjson.h"

class EditorSession;

/**
 * What the layers of the canvas tell the editor: a tap selects, a drag shows the grid, and every
 * finished change, attach and close is recorded as a step of the history.
 */
class LayerEvents : public ResizableImageViewDelegate,
                    public ResizableViewDelegate,
                    public SlotDelegate<ImageStickerJson>,
                    public SlotDelegate<FrameImageStickerJson>
{
public:
    explicit LayerEvents(EditorSession &session);

    void stickerDidSelect(ResizableImageView *view) override;
    void stickerDidDeselect(ResizableImageView *view) override;
    void stickerWillClose(ResizableImageView *view) override;
    void stickerDidClose(ResizableImageView *view) override;
    void stickerDidUpdate(std::shared_ptr<StickerJson> json) override;
    void stickerDidAttach(std::shared_ptr<StickerJson> json) override;
    void stickerDidDrag(ResizableImageView *view) override;
    void stickerDidEndDrag(ResizableImageView *view) override;

    void textDidSelect(ResizableView *view) override;
    void textDidDeselect(ResizableView *view) override;
    void textWillClose(ResizableView *view) override;
    void textDidUpdate(std::shared_ptr<TextJson> json) override;
    void textDidAttach(std::shared_ptr<TextJson> json) override;
    void textDidDrag(ResizableView *view) override;
    void textDidEndDrag(ResizableView *view) override;

    void slotDidSelect(View *slot) override;
    void slotDidDeselect(View *slot) override;
    void slotWillClose(View *slot) override;
    void slotDidUpdate(const std::shared_ptr<ImageStickerJson> &record) override;
    void slotDidUpdate(const std::shared_ptr<FrameImageStickerJson> &record) override;
    void slotDidClose(View *slot) override;
    void slotDidAttach(const std::shared_ptr<ImageStickerJson> &record) override;
    void slotDidAttach(const std::shared_ptr<FrameImageStickerJson> &record) override;
    void slotDidAskForPicture(View *slot) override;

private:
    void select(View *layer);
    /** A closing layer that is selected takes the selection and the tools with it. */
    void leaveSelection(View *layer);
    void showGrid(bool shown);

    EditorSession &m_session;
};
