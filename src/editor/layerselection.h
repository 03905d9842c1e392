#pragma once

#include "layerkinds.h"

#include <QPointer>

/**
 * The selected layer: at most one of the four is set. The pointers are weak, since a layer can
 * leave the canvas while it is selected.
 */
struct LayerSelection
{
    QPointer<ResizableView> selectedView;
    QPointer<ResizableImageView> selectedIconImgView;
    QPointer<StaticResizableImageView> selectedImageView;
    QPointer<BorderedResizableImageView> selectedBorderedImageView;

    /** Hides the selected layer's controls and clears the selection. */
    void deselectAll();
    /** Clears the selection of one kind only, without touching the layer. */
    void clear(LayerKind kind);
    /** Clears the selection if it is this layer. */
    void forget(const View *layer);
    /** Selects a layer of any kind, clearing the others. */
    void select(View *layer);
    [[nodiscard]] bool isSelected(const View *layer) const;
    /** A text or a sticker: what duplicate copies. */
    [[nodiscard]] bool hasTextOrSticker() const { return selectedView || selectedIconImgView; }
};
