#include "canvasitem.h"

#include "canvasrenderer.h"
#include "view.h"

#include <QPainter>

CanvasItem::CanvasItem(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

QObject *CanvasItem::view() const
{
    return m_view;
}

void CanvasItem::setView(QObject *view)
{
    auto *tree = qobject_cast<View *>(view);
    if (tree == m_view)
        return;
    for (View *watched : std::as_const(m_watched))
        disconnect(watched, nullptr, this, nullptr);
    m_watched.clear();
    m_view = tree;
    if (m_view)
        watch(m_view);
    Q_EMIT viewChanged();
    update();
}

void CanvasItem::watch(View *view)
{
    // Views come and go while editing: a change of a view also picks up subviews added since.
    if (!m_watched.contains(view)) {
        m_watched.insert(view);
        connect(view, &View::changed, this, [this, view] {
            for (View *child : view->subviews())
                watch(child);
            update();
        });
        connect(view, &QObject::destroyed, this, [this, view] { m_watched.remove(view); });
    }
    for (View *child : view->subviews())
        watch(child);
}

void CanvasItem::paint(QPainter *painter)
{
    if (!m_view || m_view->bounds().isEmpty())
        return;
    const qreal scale = width() / m_view->bounds().width();
    CanvasRenderer::render(*painter, *m_view, scale, CanvasRenderer::Chrome::Shown);
}
