#pragma once

#include "viewcontroller.h"

#include <QColor>
#include <QFont>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <optional>

/** One row of the font list: the face's name and the number of its catalog (0 for none). */
struct FontItem
{
    QString name;
    qint64 catalogId = 0;
};

/**
 * The screen in which a text is typed, with a demo of it in the chosen font and colour. Done hands the
 * text, font and colour to the editor below it and goes back; an empty text is refused with an alert.
 */
class AddTextVC : public ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the storyboard")
    /** The text being typed. */
    Q_PROPERTY(QString demoText READ demoText WRITE setDemoText NOTIFY demoChanged)
    Q_PROPERTY(QFont demoFont READ demoFont NOTIFY demoChanged)
    /** The demo's colour; invalid until the user or the editor chose one. */
    Q_PROPERTY(QColor demoColor READ demoColor NOTIFY demoChanged)
    /** The colour strip, as colours. */
    Q_PROPERTY(QVariantList colors READ colors CONSTANT)
    /** The font rows: maps with "title" and "font". */
    Q_PROPERTY(QVariantList fontRows READ fontRows NOTIFY fontRowsChanged)
public:
    explicit AddTextVC(QObject *parent = nullptr);

    // Set by the editor before the push: the text being edited, or nothing for a new text.
    QString editText;
    QString editFont;
    std::optional<QColor> editColor;

    QList<FontItem> fontItemsArray;
    const QStringList colorsArray;
    bool hasSetTextColor = false;

    [[nodiscard]] QString demoText() const { return m_demoText; }
    void setDemoText(const QString &text);
    [[nodiscard]] QFont demoFont() const { return m_demoFont; }
    [[nodiscard]] QColor demoColor() const { return m_demoColor; }
    [[nodiscard]] QVariantList colors() const;
    [[nodiscard]] QVariantList fontRows() const;

    /** The font rows; by default the application's fonts, then the system font's weights. */
    void setFontItems(const QList<FontItem> &items);

    void viewDidLoad() override;
    /** A tap on a font row: the demo takes that font at 30. */
    Q_INVOKABLE void selectFont(int row);
    /** A tap on the colour strip. */
    Q_INVOKABLE void selectColor(int index);
    /** The tick: hands the text to the editor below and goes back, or asks for a text. */
    Q_INVOKABLE void done();

    /** The application's fonts, then the system font's weights: the rows of the font lists. */
    [[nodiscard]] static QList<FontItem> defaultFontItems();
    /** The system font's face for a weight name: "Bold", "Light", "Medium", "Semibold"; anything else regular. */
    [[nodiscard]] static QString systemFontName(const QString &weight);
    /** What a font row shows: its name, or "Unknown Font" for the row "Text" of no catalog. */
    [[nodiscard]] static QString rowTitle(const FontItem &item);

Q_SIGNALS:
    void demoChanged();
    void fontRowsChanged();

private:
    [[nodiscard]] QFont fontNamed(const QString &name) const;
    QString m_demoText;
    QString m_demoFontName;
    QFont m_demoFont;
    QColor m_demoColor;
};
