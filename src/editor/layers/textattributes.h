#pragma once

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QList>
#include <QSizeF>
#include <QString>

#include <optional>

/** NSShadow: offset, blur radius and colour of a text's shadow. */
struct TextShadow
{
    QSizeF offset { 0, -3 };
    qreal blurRadius = 0;
    QColor color = QColor(0, 0, 0, 85);
};

/** NSParagraphStyle, as far as the text layer uses it. */
struct ParagraphStyle
{
    Qt::Alignment alignment = Qt::AlignHCenter;
    qreal lineSpacing = 0;
};

/**
 * The attribute dictionary of a text layer: the one source of the string's look. An entry that is absent
 * falls back to the text view's default (its default font, black).
 */
struct TextAttributes
{
    std::optional<QBrush> foreground; // a colour or a pattern picture
    std::optional<QFont> font;
    std::optional<ParagraphStyle> paragraphStyle;
    std::optional<qreal> kern;
    std::optional<int> underlineStyle;
    std::optional<TextShadow> shadow;
};

/** The attributed string that the text view shows: its text, the dictionary, and colours per character. */
struct AttributedText
{
    QString text;
    TextAttributes attributes;
    /** Foregrounds set character by character over the dictionary's, from the first character on. */
    QList<QBrush> characterForegrounds;
};
