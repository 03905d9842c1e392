#pragma once

#include "textattributes.h"
#include "view.h"

#include <QImage>
#include <QPointer>

#include <optional>

class ResizableView;

/**
 * The text of a text layer, with every attribute of its look kept in one dictionary. Each `apply…`
 * stores its field and rebuilds the attributed text from the plain text and the dictionary; the
 * operations that commit a change write it into the layer's record and let the layer tell the editor.
 * Slider-driven values split into `apply…` while dragging and `store…` on release.
 */
class ResizableTextView : public View
{
    Q_OBJECT
public:
    explicit ResizableTextView(const QRectF &frame = {}, QObject *parent = nullptr);

    TextAttributes textAttributes;
    qreal textAlpha = 1.0;
    QString fontName = QStringLiteral("Helvetica");
    /** The layer that holds this text; its record is the one written. */
    QPointer<ResizableView> superView;
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

    [[nodiscard]] QString text() const { return m_attributed.text; }
    /** Sets the plain text, rebuilds, writes `text` and commits. */
    void setText(const QString &text);
    [[nodiscard]] const AttributedText &attributedText() const { return m_attributed; }
    /** The size the text needs when wrapped at `size`'s width, margins included. */
    [[nodiscard]] QSizeF sizeThatFits(const QSizeF &size) const;

    void applyAlpha();
    void applyFontName();
    void applyFontSize();
    void applyPattern();
    void storePattern();
    void applyForegroundColor();
    /** Colours the first characters one by one from the list; an empty text is left alone. */
    void applyColors(const QList<QColor> &colors);
    void setAlignment(Qt::Alignment alignment);
    void applyLetterSpace(qreal value);
    void storeLetterSpace();
    void applyLineSpacing(qreal value);
    void storeLineSpacing();
    void applyUnderline();
    /** The case styles replace the text itself: the record keeps the changed text, not the typed one. */
    void applyUpperCase();
    void applyLowerCase();
    void applyCapitalized();
    void applyShadow();
    void applyShadowOffset();
    void applyShadowColor();
    void applyShadowBlur();
    void storeShadow();
    void storeAlpha();

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
    void commit();
    AttributedText m_attributed;
};
