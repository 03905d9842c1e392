#include "layerselection.h"

void LayerSelection::deselectAll()
{
    if (selectedView)
        selectedView->hideControls();
    if (selectedIconImgView)
        selectedIconImgView->hideControls();
    if (selectedImageView)
        selectedImageView->hideControls();
    if (selectedBorderedImageView)
        selectedBorderedImageView->setActive(false);
    *this = {};
}

void LayerSelection::clear(LayerKind kind)
{
    switch (kind) {
    case LayerKind::Slot:
        selectedImageView = nullptr;
        break;
    case LayerKind::OutlinedSlot:
        selectedBorderedImageView = nullptr;
        break;
    case LayerKind::Sticker:
        selectedIconImgView = nullptr;
        break;
    case LayerKind::Text:
        selectedView = nullptr;
        break;
    }
}

void LayerSelection::forget(const View *layer)
{
    if (isSelected(layer))
        *this = {};
}

void LayerSelection::select(View *layer)
{
    *this = {};
    selectedView = qobject_cast<ResizableView *>(layer);
    selectedIconImgView = qobject_cast<ResizableImageView *>(layer);
    selectedImageView = qobject_cast<StaticResizableImageView *>(layer);
    selectedBorderedImageView = qobject_cast<BorderedResizableImageView *>(layer);
}

bool LayerSelection::isSelected(const View *layer) const
{
    return layer
        && (layer == selectedView.data() || layer == selectedIconImgView.data() || layer == selectedImageView.data()
            || layer == selectedBorderedImageView.data());
}
