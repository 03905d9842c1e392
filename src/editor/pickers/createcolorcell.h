#pragma once

#include <QColor>
#include <QObject>
#include <QStringList>
#include <QVariantList>

#include <optional>

/** The page that a colour strip belongs to; it keeps the tapped colour and acts on it. */
class ColorCellOwner
{
public:
    virtual ~ColorCellOwner() = default;
    /** A colour was tapped; none for "Transparent". */
    virtual void selectColor(const std::optional<QColor> &color) = 0;
    /** "Custom" was tapped: the colour picker. */
    virtual void openCustomColorPicker() = 0;
};

/**
 * The strip of background colours: "Custom" (the colour picker) first, then "Transparent", then the
 * application's colours. `selectedIndex` marks the row tapped last.
 */
class CreateColorCell : public QObject
{
    Q_OBJECT
    /**
     * Maps with "title", "icon" (the name of an icon of the application), "picture" (the name of one of its
     * pictures) and "color" (transparent for "Custom" and "Transparent").
     */
    Q_PROPERTY(QVariantList rows READ rows NOTIFY rowsChanged)
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedIndexChanged)
public:
    CreateColorCell(ColorCellOwner *owner, QObject *parent);

    /** The colours after "Custom" and "Transparent", as hexadecimal texts with or without "#". */
    void setColors(const QStringList &colors);
    [[nodiscard]] QVariantList rows() const;
    [[nodiscard]] int selectedIndex() const { return m_selectedIndex; }
    /** The colour of a row; none for "Custom", "Transparent" and rows out of range. */
    [[nodiscard]] std::optional<QColor> colorAt(int row) const;

    Q_INVOKABLE void select(int row);

Q_SIGNALS:
    void rowsChanged();
    void selectedIndexChanged();

private:
    ColorCellOwner *const m_owner;
    QList<QColor> m_colors;
    int m_selectedIndex = -1;
};
