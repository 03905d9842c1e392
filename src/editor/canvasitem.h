#pragma once

#include <QPointer>
#include <QQuickPaintedItem>
#include <QSet>
#include <QtQml/qqmlregistration.h>

class View;

/**
 * Draws a view tree of the editor on screen through the same renderer as the export, with the
 * selection chrome shown. It repaints whenever a view of the tree changes.
 */
class CanvasItem : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /** The root of the tree: the editor's work area. */
    Q_PROPERTY(QObject *view READ view WRITE setView NOTIFY viewChanged)
public:
    explicit CanvasItem(QQuickItem *parent = nullptr);

    [[nodiscard]] QObject *view() const;
    void setView(QObject *view);
    void paint(QPainter *painter) override;

Q_SIGNALS:
    void viewChanged();

private:
    void watch(View *view);
    QPointer<View> m_view;
    QSet<View *> m_watched;
};
