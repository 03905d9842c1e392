#pragma once

#include "layerlistmodel.h"

#include <QObject>

class EditorSession;

/**
 * The layer panel: the canvas's stickers, topmost first, dragged to change their stacking. Moving a
 * row swaps two stickers in the canvas and nothing else: no undo step, and `sticker_json` keeps its
 * order until the user's save takes the order of the canvas.
 */
class LayerPanel : public QObject
{
    Q_OBJECT
public:
    explicit LayerPanel(EditorSession &session);

    [[nodiscard]] LayerListModel *layerModel() const { return m_layerItems; }
    [[nodiscard]] bool layersShown() const { return m_layersShown; }
    /** The layer button: the canvas holds at least one sticker. */
    [[nodiscard]] bool canShowLayers() const;

    /** The rows: the canvas's stickers, topmost first. */
    void fillLayers();
    /** The layer button and the panel's close button: opens the panel filled anew, or closes it. */
    void toggleLayers();
    /** A row was dragged from one place to another: the two stickers swap places in the canvas. */
    void positionChanged(int currentIndex, int newIndex);

Q_SIGNALS:
    void layersShownChanged();

private:
    EditorSession &m_session;
    LayerListModel *const m_layerItems;
    bool m_layersShown = false;
};
