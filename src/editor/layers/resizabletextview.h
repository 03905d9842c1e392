#pragma once

#include "textattributes.h"
#include "view.h"

#include <QImage>

#include <optional>

class ResizableTextView;

/** Told after a change of font, size, underline, spacing or text: the layer fits itself around the text. */
class ResizableTextViewDelegate
{
public:
    virtual ~ResizableTextViewDelegate() = default;
    virtual void textViewDidChangeShape(ResizableTextView *textView) = 0;
};

/**
 * The text of a text layer, with every attribute of its look kept in one dictionary. Each `apply…`
 * stores its field and rebuilds the attributed text from the plain text and the dictionary. The text
 * only looks: it never writes a record; the layer records a change when it is told to.
 */
class ResizableTextView : public View
{
    Q_OBJECT
public:
    explicit ResizableTextView(const QRectF &frame = {}, QObject *parent = nullptr);

    ResizableTextViewDelegate *textViewDelegate = nullptr;
    TextAttributes textAttributes;
    /** The opacity of the text, 0 to 1; `applyAlpha` shows it. */
    qreal textAlpha = 1.0;
    QString fontName = QStringLiteral("Helvetica");
    qreal fontSize = 20.0;
    std::optional<QImage> patternColor;
    std::optional<QColor> foregroundColor;
    std::optional<QColor> textBackgroundColor;
    std::optional<qreal> textBackgroundAlpha;
    ParagraphStyle paragraphStyle;
    qreal letterSpace = 0;
    qint64 textUnderline = 0;
    TextShadow shadow;
    std::optional<QSizeF> textShadowOffset;
    QColor textShadowColor = Qt::black;
    std::optional<qreal> textShadowBlur;
    /** UITextView's default text colour, which a pattern replaces. */
    QBrush textColor = QBrush(Qt::black);
    bool editable = true;
    bool selectable = true;
    /** The case style last applied: 1 upper case, 2 lower case, 3 capitalised words, else none. */
    qint64 textStyle = 0;

    [[nodiscard]] QString text() const { return m_attributed.text; }
    void setText(const QString &text);
    [[nodiscard]] const AttributedText &attributedText() const { return m_attributed; }
    /** The size the text needs when wrapped at `size`'s width, margins included. */
    [[nodiscard]] QSizeF sizeThatFits(const QSizeF &size) const;

    /** The whole text fades by `textAlpha`: letters, texture and shadow alike. */
    void applyAlpha();
    void applyFontName();
    void applyFontSize();
    void applyPattern();
    /** A plain colour; it replaces the texture. */
    void applyForegroundColor();
    /** Colours the first characters one by one from the list; an empty text is left alone. */
    void applyColors(const QList<QColor> &colors);
    void setAlignment(Qt::Alignment alignment);
    void applyLetterSpace(qreal value);
    void applyLineSpacing(qreal value);
    void applyUnderline();
    /** The case styles replace the text itself: the typed text is gone. */
    void applyUpperCase();
    void applyLowerCase();
    void applyCapitalized();
    void applyShadow();
    void applyShadowOffset();
    void applyShadowColor();
    void applyShadowBlur();

    /** The text in a `text_style`: 1 upper case, 2 lower case, 3 capitalised words, else as it is. */
    [[nodiscard]] static QString styled(const QString &text, qint64 style);

    void paintContent(QPainter &painter) const override;
    /** Laying out and the shadow's blur are worth doing once per render. */
    [[nodiscard]] bool hasCostlyContent() const override { return true; }
    [[nodiscard]] QRectF paintExtent() const override;

private:
    void rebuild();
    void setFontEntry();
    void setShadowEntries();
    void applyCase(qint64 style);
    void changedShape();
    AttributedText m_attributed;
};
