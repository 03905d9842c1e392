#pragma once

#include "resizableimageviewdelegate.h"
#include "resizableviewdelegate.h"

#include <QStringList>

/** An editor stand-in that records what the layers tell it, in order. */
class LayerRecorder : public ResizableImageViewDelegate, public ResizableViewDelegate
{
public:
    QStringList calls;
    std::shared_ptr<StickerJson> lastSticker;
    std::shared_ptr<TextJson> lastText;

    void stickerDidSelect(ResizableImageView *) override { calls << QStringLiteral("stickerDidSelect"); }
    void stickerDidDeselect(ResizableImageView *) override { calls << QStringLiteral("stickerDidDeselect"); }
    void stickerWillClose(ResizableImageView *) override { calls << QStringLiteral("stickerWillClose"); }
    void stickerDidClose(ResizableImageView *) override { calls << QStringLiteral("stickerDidClose"); }
    void stickerDidUpdate(std::shared_ptr<StickerJson> json) override
    {
        calls << QStringLiteral("stickerDidUpdate");
        lastSticker = json;
    }
    void stickerDidAttach(std::shared_ptr<StickerJson> json) override
    {
        calls << QStringLiteral("stickerDidAttach");
        lastSticker = json;
    }
    void stickerDidDrag(ResizableImageView *) override { calls << QStringLiteral("stickerDidDrag"); }
    void stickerDidEndDrag(ResizableImageView *) override { calls << QStringLiteral("stickerDidEndDrag"); }

    void textDidSelect(ResizableView *) override { calls << QStringLiteral("textDidSelect"); }
    void textDidDeselect(ResizableView *) override { calls << QStringLiteral("textDidDeselect"); }
    void textWillClose(ResizableView *) override { calls << QStringLiteral("textWillClose"); }
    void textDidUpdate(std::shared_ptr<TextJson> json) override
    {
        calls << QStringLiteral("textDidUpdate");
        lastText = json;
    }
    void textDidAttach(std::shared_ptr<TextJson> json) override
    {
        calls << QStringLiteral("textDidAttach");
        lastText = json;
    }
    void textDidDrag(ResizableView *) override { calls << QStringLiteral("textDidDrag"); }
    void textDidEndDrag(ResizableView *) override { calls << QStringLiteral("textDidEndDrag"); }
};
