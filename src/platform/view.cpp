#include "view.h"

namespace {

// Shares a size change among the flexible parts of one axis in proportion to their sizes, as UIKit does.
void distribute(qreal delta, bool flexLead, bool flexSize, bool flexTrail, qreal lead, qreal size, qreal trail,
    qreal *leadDelta, qreal *sizeDelta)
{
    *leadDelta = 0;
    *sizeDelta = 0;
    const int flexible = int(flexLead) + int(flexSize) + int(flexTrail);
    if (flexible == 0 || delta == 0)
        return;
    const qreal total = (flexLead ? lead : 0) + (flexSize ? size : 0) + (flexTrail ? trail : 0);
    auto share = [&](bool flex, qreal part) {
        if (!flex)
            return 0.0;
        return total > 0 ? delta * part / total : delta / flexible;
    };
    *leadDelta = share(flexLead, lead);
    *sizeDelta = share(flexSize, size);
}

} // namespace

View::View(const QRectF &frame, QObject *parent)
    : QObject(parent)
    , m_bounds(QPointF(0, 0), frame.size())
    , m_center(frame.center())
{ }

View::~View()
{
    if (m_superview)
        m_superview->m_subviews.removeOne(this);
    for (View *child : std::as_const(m_subviews))
        child->m_superview = nullptr;
}

QRectF View::frame() const
{
    const QRectF local(-m_bounds.width() / 2, -m_bounds.height() / 2, m_bounds.width(), m_bounds.height());
    return m_transform.mapRect(local).translated(m_center);
}

void View::setFrame(const QRectF &frame)
{
    if (m_transform.isIdentity()) {
        const QSizeF old = m_bounds.size();
        m_bounds.setSize(frame.size());
        m_center = frame.center();
        resizeSubviews(old);
    } else {
        m_center = frame.center();
    }
    notifyChanged();
}

void View::setBounds(const QRectF &bounds)
{
    const QSizeF old = m_bounds.size();
    m_bounds = bounds;
    resizeSubviews(old);
    notifyChanged();
}

void View::setCenter(const QPointF &center)
{
    m_center = center;
    notifyChanged();
}

void View::setTransform(const QTransform &transform)
{
    m_transform = transform;
    notifyChanged();
}

void View::setAlpha(qreal alpha)
{
    m_alpha = alpha;
    notifyChanged();
}

void View::setHidden(bool hidden)
{
    if (m_hidden == hidden)
        return;
    m_hidden = hidden;
    notifyChanged();
}

void View::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    notifyChanged();
}

void View::resizeSubviews(const QSizeF &old)
{
    const qreal dw = m_bounds.width() - old.width();
    const qreal dh = m_bounds.height() - old.height();
    if (dw == 0 && dh == 0)
        return;
    for (View *child : std::as_const(m_subviews)) {
        const int mask = child->m_autoresizingMask;
        if (mask == 0)
            continue;
        const QRectF f = child->frame();
        qreal dx = 0;
        qreal dWidth = 0;
        qreal dy = 0;
        qreal dHeight = 0;
        distribute(dw, mask & FlexibleLeftMargin, mask & FlexibleWidth, mask & FlexibleRightMargin, f.left(), f.width(),
            old.width() - f.right(), &dx, &dWidth);
        distribute(dh, mask & FlexibleTopMargin, mask & FlexibleHeight, mask & FlexibleBottomMargin, f.top(),
            f.height(), old.height() - f.bottom(), &dy, &dHeight);
        // Sizes change in the child's own bounds, so a turned child keeps its turn.
        const QSizeF oldChild = child->m_bounds.size();
        child->m_bounds.setSize(QSizeF(oldChild.width() + dWidth, oldChild.height() + dHeight));
        child->m_center += QPointF(dx + dWidth / 2, dy + dHeight / 2);
        child->resizeSubviews(oldChild);
        child->notifyChanged();
    }
}

void View::addSubview(View *view)
{
    insertSubview(view, m_subviews.size());
}

void View::insertSubview(View *view, qsizetype index)
{
    if (!view || view == this)
        return;
    if (view->m_superview == this) {
        m_subviews.removeOne(view);
    } else if (view->m_superview) {
        view->m_superview->m_subviews.removeOne(view);
        view->m_superview->notifyChanged();
    }
    view->m_superview = this;
    view->setParent(this);
    m_subviews.insert(qBound(qsizetype(0), index, m_subviews.size()), view);
    notifyChanged();
}

void View::bringSubviewToFront(View *view)
{
    if (view && view->m_superview == this)
        insertSubview(view, m_subviews.size());
}

void View::exchangeSubview(qsizetype first, qsizetype second)
{
    if (first < 0 || second < 0 || first >= m_subviews.size() || second >= m_subviews.size())
        return;
    m_subviews.swapItemsAt(first, second);
    notifyChanged();
}

void View::removeFromSuperview()
{
    if (!m_superview)
        return;
    View *old = m_superview;
    old->m_subviews.removeOne(this);
    m_superview = nullptr;
    setParent(nullptr);
    old->notifyChanged();
}

QPointF View::mapToSuperview(const QPointF &point) const
{
    return m_center + m_transform.map(point - m_bounds.center());
}

QPointF View::mapFromSuperview(const QPointF &point) const
{
    return m_transform.inverted().map(point - m_center) + m_bounds.center();
}

QPointF View::convertPoint(const QPointF &point, const View *other) const
{
    // Up to the root, then down to `other`.
    QPointF p = point;
    for (const View *v = this; v->m_superview; v = v->m_superview)
        p = v->mapToSuperview(p);
    if (!other)
        return p;
    QList<const View *> chain;
    for (const View *v = other; v->m_superview; v = v->m_superview)
        chain.prepend(v);
    for (const View *v : chain)
        p = v->mapFromSuperview(p);
    return p;
}

bool View::pointInside(const QPointF &point) const
{
    return m_bounds.contains(point);
}

View *View::hitTest(const QPointF &point)
{
    if (m_hidden || !m_userInteraction || m_alpha < 0.01 || !pointInside(point))
        return nullptr;
    for (auto it = m_subviews.crbegin(); it != m_subviews.crend(); ++it) {
        if (View *hit = (*it)->hitTest((*it)->mapFromSuperview(point)))
            return hit;
    }
    return this;
}

void View::paintContent(QPainter &painter) const
{
    Q_UNUSED(painter);
}

void View::clip(QPainter &painter) const
{
    painter.setClipRect(m_bounds, Qt::IntersectClip);
}
