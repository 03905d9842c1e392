#pragma once

#include <QColor>
#include <QList>
#include <QObject>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QTransform>

/**
 * A rectangle in a tree of rectangles with UIKit's geometry rules, so that the editor's arithmetic
 * reads as the design states it:
 * - `frame` is derived from `center`, `bounds` and `transform` (the transform turns about the centre);
 *   setting it sets `center`, and also the bounds size while the transform is the identity;
 * - changing the bounds size keeps `center`, and subviews follow by their autoresizing mask;
 * - subviews are kept in back-to-front order; a view owns its subviews (QObject parent).
 * Nothing here draws: the painters and the QML canvas read this tree.
 */
class View : public QObject
{
    Q_OBJECT
public:
    /** UIViewAutoresizing bits. */
    enum Autoresizing : int {
        FlexibleLeftMargin = 1,
        FlexibleWidth = 2,
        FlexibleRightMargin = 4,
        FlexibleTopMargin = 8,
        FlexibleHeight = 16,
        FlexibleBottomMargin = 32,
        FlexibleAll = 63,
    };

    explicit View(const QRectF &frame = {}, QObject *parent = nullptr);
    ~View() override;

    [[nodiscard]] QRectF frame() const;
    void setFrame(const QRectF &frame);
    [[nodiscard]] QRectF bounds() const { return m_bounds; }
    void setBounds(const QRectF &bounds);
    [[nodiscard]] QPointF center() const { return m_center; }
    void setCenter(const QPointF &center);
    [[nodiscard]] QTransform transform() const { return m_transform; }
    void setTransform(const QTransform &transform);

    [[nodiscard]] qreal alpha() const { return m_alpha; }
    void setAlpha(qreal alpha);
    [[nodiscard]] bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden);
    [[nodiscard]] bool clipsToBounds() const { return m_clipsToBounds; }
    void setClipsToBounds(bool clips) { m_clipsToBounds = clips; }
    [[nodiscard]] int autoresizingMask() const { return m_autoresizingMask; }
    void setAutoresizingMask(int mask) { m_autoresizingMask = mask; }
    [[nodiscard]] QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor &color);
    [[nodiscard]] bool isUserInteractionEnabled() const { return m_userInteraction; }
    void setUserInteractionEnabled(bool enabled) { m_userInteraction = enabled; }
    /** UIKit's `tag`; subclasses may give setting it a meaning of their own. */
    [[nodiscard]] qint64 tag() const { return m_tag; }
    virtual void setTag(qint64 tag) { m_tag = tag; }

    [[nodiscard]] View *superview() const { return m_superview; }
    [[nodiscard]] const QList<View *> &subviews() const { return m_subviews; }
    /** Adds on top of the other subviews; a view that has another superview leaves it first. */
    void addSubview(View *view);
    void insertSubview(View *view, qsizetype index);
    void bringSubviewToFront(View *view);
    void exchangeSubview(qsizetype first, qsizetype second);
    /** Leaves the superview; the caller then owns the view. */
    void removeFromSuperview();

    /** Maps a point of this view's bounds into `other`'s bounds (null: the root of this tree). */
    [[nodiscard]] QPointF convertPoint(const QPointF &point, const View *other) const;
    /** Maps a point of this view's bounds into the superview's bounds. */
    [[nodiscard]] QPointF mapToSuperview(const QPointF &point) const;
    [[nodiscard]] QPointF mapFromSuperview(const QPointF &point) const;
    /** Whether a point of this view's own coordinates is inside it; layers widen or narrow this. */
    [[nodiscard]] virtual bool pointInside(const QPointF &point) const;
    /** The deepest visible, interactive view under a point of this view's coordinates, or null. */
    [[nodiscard]] View *hitTest(const QPointF &point);

    /**
     * Draws this view's own content (not its background colour, not its subviews) into its bounds.
     * The canvas renderer calls it for every view of the tree, back to front, with the painter already
     * in this view's coordinates; a kind of view with content of its own overrides it.
     */
    virtual void paintContent(QPainter &painter) const;
    /**
     * Whether drawing the content costs work that does not shrink with the area drawn (laying out a
     * text, blurring its shadow), so that a render in bands draws it once into a picture and puts that
     * picture into every band it touches.
     */
    [[nodiscard]] virtual bool hasCostlyContent() const { return false; }
    /** Where in this view's coordinates the content may draw: the bounds, unless a shadow or glyphs reach out. */
    [[nodiscard]] virtual QRectF paintExtent() const { return m_bounds; }
    /** Limits the painter to this view's area when it clips to bounds; a shaped view narrows it further. */
    virtual void clip(QPainter &painter) const;

Q_SIGNALS:
    /** Something that affects drawing changed: geometry, alpha, visibility, stacking or content. */
    void changed();

protected:
    void notifyChanged() { Q_EMIT changed(); }

private:
    void resizeSubviews(const QSizeF &oldSize);
    QRectF m_bounds;
    QPointF m_center;
    QTransform m_transform;
    qreal m_alpha = 1.0;
    bool m_hidden = false;
    bool m_clipsToBounds = false;
    bool m_userInteraction = true;
    int m_autoresizingMask = 0;
    QColor m_backgroundColor;
    qint64 m_tag = 0;
    View *m_superview = nullptr;
    QList<View *> m_subviews;
};
