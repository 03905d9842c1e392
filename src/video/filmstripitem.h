#pragma once

#include <QPointer>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

class Filmstrip;

/** Draws a filmstrip's pictures side by side across the item, each filling its slot. */
class FilmstripItem : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Filmstrip *filmstrip READ filmstrip WRITE setFilmstrip NOTIFY filmstripChanged)
    /** What an empty slot shows. */
    Q_PROPERTY(QColor emptyColor READ emptyColor WRITE setEmptyColor NOTIFY emptyColorChanged)
public:
    explicit FilmstripItem(QQuickItem *parent = nullptr);

    [[nodiscard]] Filmstrip *filmstrip() const { return m_filmstrip; }
    void setFilmstrip(Filmstrip *filmstrip);
    [[nodiscard]] QColor emptyColor() const { return m_emptyColor; }
    void setEmptyColor(const QColor &color);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void filmstripChanged();
    void emptyColorChanged();

private:
    QPointer<Filmstrip> m_filmstrip;
    QColor m_emptyColor = Qt::darkGray;
};
