#include "toolsliders.h"

#include "editorsession.h"

ToolSliders::ToolSliders(EditorSession &session)
    : QObject(&session)
    , m_session(session)
{ }

void ToolSliders::rotate(qreal radians)
{
    const LayerSelection &selection = m_session.selection;
    if (selection.selectedView)
        selection.selectedView->rotate(radians);
    else if (selection.selectedIconImgView)
        selection.selectedIconImgView->rotate(radians);
}

qreal ToolSliders::beginScale()
{
    const LayerSelection &selection = m_session.selection;
    if (selection.selectedView)
        m_fontSizeAtOpen = selection.selectedView->textView->fontSize;
    else if (selection.selectedIconImgView)
        selection.selectedIconImgView->storeScalingState();
    return 1.0;
}

void ToolSliders::scale(qreal value)
{
    const LayerSelection &selection = m_session.selection;
    if (ResizableView *text = selection.selectedView) {
        // The font never goes to 1 or below, as with the other ways of sizing a text.
        const qreal size = value * m_fontSizeAtOpen;
        if (size > 1.0) {
            text->textView->fontSize = size;
            text->textView->applyFontSize();
        }
    } else if (ResizableImageView *sticker = selection.selectedIconImgView) {
        sticker->scaleStoring(value);
    }
}

void ToolSliders::setOpacity(qreal percent)
{
    const LayerSelection &selection = m_session.selection;
    if (ResizableView *text = selection.selectedView) {
        text->textView->textAlpha = percent / 100.0;
        text->textView->applyAlpha();
    } else if (ResizableImageView *sticker = selection.selectedIconImgView) {
        sticker->contentImageView->setAlpha(percent / 100.0);
    } else if (BorderedResizableImageView *outlined = selection.selectedBorderedImageView) {
        outlined->contentImageView->setAlpha(percent / 100.0);
    }
}

void ToolSliders::setLetterSpacing(qreal value)
{
    if (ResizableView *text = m_session.selection.selectedView)
        text->textView->applyLetterSpace(value);
}

void ToolSliders::setLineSpacing(qreal value)
{
    if (ResizableView *text = m_session.selection.selectedView)
        text->textView->applyLineSpacing(value);
}

void ToolSliders::setShadow(qreal amount)
{
    ResizableView *text = m_session.selection.selectedView;
    if (!text)
        return;
    ResizableTextView *view = text->textView;
    view->textShadowBlur = amount;
    view->textShadowOffset = QSizeF(amount / 2, amount / 2);
    view->applyShadowColor();
    view->applyShadowBlur();
    view->applyShadowOffset();
}

void ToolSliders::sliderDidEndSliding(Slider slider)
{
    const LayerSelection &selection = m_session.selection;
    if (ResizableView *text = selection.selectedView) {
        // The record takes the whole look of the text: its angle, size, opacity and spacing.
        text->recordTextChange();
    } else if (ResizableImageView *sticker = selection.selectedIconImgView) {
        if (slider == Slider::Opacity)
            sticker->storeOpacity();
        else if (slider == Slider::Rotation || slider == Slider::Scale)
            sticker->updateStickerJson(sticker->stickerJson);
    } else if (BorderedResizableImageView *outlined = selection.selectedBorderedImageView) {
        if (slider == Slider::Opacity)
            outlined->storeOpacity();
    }
}
