#include "layerevents.h"

#include "editorsession.h"
#include "undorecorder.h"

LayerEvents::LayerEvents(EditorSession &session)
    : m_session(session)
{ }

void LayerEvents::select(View *layer)
{
    m_session.deselectAll();
    m_session.selection.select(layer);
    // Only the outlined slot just tapped may stay active.
    for (View *view : m_session.viewMain->subviews()) {
        if (auto *outlined = qobject_cast<BorderedResizableImageView *>(view); outlined && outlined != layer)
            outlined->setActive(false);
    }
    m_session.menus()->selectionChanged();
    Q_EMIT m_session.layersChanged();
}

void LayerEvents::leaveSelection(View *layer)
{
    if (!m_session.selection.isSelected(layer))
        return;
    m_session.deselectAll();
    m_session.backToTopLevel();
}

void LayerEvents::showGrid(bool shown)
{
    m_session.gridView->setHidden(!shown);
}

void LayerEvents::stickerDidSelect(ResizableImageView *view)
{
    select(view);
}

void LayerEvents::stickerDidDeselect(ResizableImageView *) { }

void LayerEvents::stickerWillClose(ResizableImageView *view)
{
    leaveSelection(view);
    m_session.recorder().recordClosed(view->stickerJson);
}

void LayerEvents::stickerDidClose(ResizableImageView *)
{
    Q_EMIT m_session.layersChanged();
}

void LayerEvents::stickerDidUpdate(std::shared_ptr<StickerJson> json)
{
    m_session.recorder().recordChange(json);
    Q_EMIT m_session.layersChanged();
}

void LayerEvents::stickerDidAttach(std::shared_ptr<StickerJson> json)
{
    m_session.recorder().recordAdded(json);
}

void LayerEvents::stickerDidDrag(ResizableImageView *)
{
    showGrid(true);
}

void LayerEvents::stickerDidEndDrag(ResizableImageView *)
{
    showGrid(false);
}

void LayerEvents::textDidSelect(ResizableView *view)
{
    select(view);
}

void LayerEvents::textDidDeselect(ResizableView *) { }

void LayerEvents::textWillClose(ResizableView *view)
{
    leaveSelection(view);
    m_session.recorder().recordClosed(view->textJson);
    // A text says nothing after it has left the canvas; the layer list is current once it has.
    QMetaObject::invokeMethod(&m_session, &EditorSession::layersChanged, Qt::QueuedConnection);
}

void LayerEvents::textDidUpdate(std::shared_ptr<TextJson> json)
{
    m_session.recorder().recordChange(json);
    Q_EMIT m_session.layersChanged();
}

void LayerEvents::textDidAttach(std::shared_ptr<TextJson> json)
{
    m_session.recorder().recordAdded(json);
}

void LayerEvents::textDidDrag(ResizableView *)
{
    showGrid(true);
}

void LayerEvents::textDidEndDrag(ResizableView *)
{
    showGrid(false);
}

void LayerEvents::slotDidSelect(View *slot)
{
    select(slot);
}

void LayerEvents::slotDidDeselect(View *) { }

void LayerEvents::slotWillClose(View *slot)
{
    // Only an outlined slot can be closed; a picture slot has no close button.
    auto *outlined = qobject_cast<BorderedResizableImageView *>(slot);
    if (!outlined)
        return;
    leaveSelection(outlined);
    m_session.recorder().recordClosed(outlined->frameImageStickerJson);
}

void LayerEvents::slotDidUpdate(const std::shared_ptr<ImageStickerJson> &record)
{
    m_session.recorder().recordChange(record);
}

void LayerEvents::slotDidUpdate(const std::shared_ptr<FrameImageStickerJson> &record)
{
    m_session.recorder().recordChange(record);
}

void LayerEvents::slotDidClose(View *)
{
    Q_EMIT m_session.layersChanged();
}

void LayerEvents::slotDidAttach(const std::shared_ptr<ImageStickerJson> &record)
{
    m_session.recorder().recordAdded(record);
}

void LayerEvents::slotDidAttach(const std::shared_ptr<FrameImageStickerJson> &record)
{
    m_session.recorder().recordAdded(record);
}

void LayerEvents::slotDidAskForPicture(View *slot)
{
    m_session.choosePictureFor(slot);
}
