#include "layerpanel.h"

#include "applog.h"
#include "editorsession.h"
#include "resizableimageview.h"

#include <algorithm>

LayerPanel::LayerPanel(EditorSession &session)
    : QObject(&session)
    , m_session(session)
    , m_layerItems(new LayerListModel(this))
{ }

bool LayerPanel::canShowLayers() const
{
    const QList<View *> &subviews = m_session.viewMain->subviews();
    return std::any_of(subviews.begin(), subviews.end(),
        [](View *view) { return qobject_cast<ResizableImageView *>(view) != nullptr; });
}

void LayerPanel::fillLayers()
{
    QList<ResizableImageView *> rows;
    for (View *view : m_session.viewMain->subviews()) {
        if (auto *sticker = qobject_cast<ResizableImageView *>(view))
            rows.append(sticker);
    }
    std::reverse(rows.begin(), rows.end());
    m_layerItems->setLayers(rows);
}

void LayerPanel::toggleLayers()
{
    if (!m_layersShown)
        fillLayers();
    m_layersShown = !m_layersShown;
    Q_EMIT layersShownChanged();
}

void LayerPanel::positionChanged(int currentIndex, int newIndex)
{
    AppLog::print(
        QStringLiteral("positionChanged currentIndex: [0, %1] newIndex: [0, %2]").arg(currentIndex).arg(newIndex));
    // A row whose layer has left the canvas meanwhile is not found, and nothing changes.
    View *canvas = m_session.viewMain;
    const qsizetype from = canvas->subviews().indexOf(m_layerItems->layerAt(currentIndex));
    const qsizetype to = canvas->subviews().indexOf(m_layerItems->layerAt(newIndex));
    if (from < 0 || to < 0)
        return;
    m_layerItems->moveRow(currentIndex, newIndex);
    canvas->exchangeSubview(from, to);
    m_session.setChanges(true);
    Q_EMIT m_session.layersChanged();
}
