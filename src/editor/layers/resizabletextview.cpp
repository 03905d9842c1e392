#include "resizabletextview.h"

#include "fontregistry.h"
#include "textlayoutengine.h"

ResizableTextView::ResizableTextView(const QRectF &frame, QObject *parent)
    : View(frame, parent)
{ }

void ResizableTextView::rebuild()
{
    m_attributed.characterForegrounds.clear();
    m_attributed.attributes = textAttributes;
    notifyChanged();
}

void ResizableTextView::changedShape()
{
    if (textViewDelegate)
        textViewDelegate->textViewDidChangeShape(this);
}

void ResizableTextView::setText(const QString &text)
{
    m_attributed.text = text;
    rebuild();
    changedShape();
}

QSizeF ResizableTextView::sizeThatFits(const QSizeF &size) const
{
    return TextLayoutEngine::sizeThatFits(m_attributed, size.width());
}

void ResizableTextView::applyAlpha()
{
    setAlpha(textAlpha);
}

void ResizableTextView::setFontEntry()
{
    if (auto font = FontRegistry::shared().font(fontName, fontSize))
        textAttributes.font = *font;
    else
        textAttributes.font.reset();
    rebuild();
}

void ResizableTextView::applyFontName()
{
    setFontEntry();
    changedShape();
}

void ResizableTextView::applyFontSize()
{
    setFontEntry();
    changedShape();
}

void ResizableTextView::applyPattern()
{
    if (!patternColor)
        return;
    textAttributes.foreground = QBrush(*patternColor);
    textColor = QBrush(*patternColor);
    rebuild();
}

void ResizableTextView::applyForegroundColor()
{
    patternColor.reset();
    if (foregroundColor) {
        textAttributes.foreground = QBrush(*foregroundColor);
        textColor = QBrush(*foregroundColor);
    }
    rebuild();
}

void ResizableTextView::applyColors(const QList<QColor> &colors)
{
    if (m_attributed.text.isEmpty())
        return;
    m_attributed.characterForegrounds.clear();
    for (qsizetype i = 0; i < colors.size() && i < m_attributed.text.size(); ++i)
        m_attributed.characterForegrounds.append(QBrush(colors.at(i)));
    notifyChanged();
}

void ResizableTextView::setAlignment(Qt::Alignment alignment)
{
    paragraphStyle.alignment = alignment;
    textAttributes.paragraphStyle = paragraphStyle;
    rebuild();
}

void ResizableTextView::applyLetterSpace(qreal value)
{
    letterSpace = value;
    textAttributes.kern = value;
    rebuild();
    changedShape();
}

void ResizableTextView::applyLineSpacing(qreal value)
{
    paragraphStyle.lineSpacing = value;
    textAttributes.paragraphStyle = paragraphStyle;
    rebuild();
    changedShape();
}

void ResizableTextView::applyUnderline()
{
    textAttributes.underlineStyle = int(textUnderline);
    rebuild();
    changedShape();
}

QString ResizableTextView::styled(const QString &text, qint64 style)
{
    switch (style) {
    case 1:
        return text.toUpper();
    case 2:
        return text.toLower();
    case 3: {
        // Foundation's `capitalized`: the first letter of each word upper case, the rest lower case.
        QString out = text.toLower();
        bool wordStart = true;
        for (QChar &c : out) {
            if (c.isLetterOrNumber()) {
                if (wordStart)
                    c = c.toUpper();
                wordStart = false;
            } else {
                wordStart = true;
            }
        }
        return out;
    }
    default:
        return text;
    }
}

void ResizableTextView::applyCase(qint64 style)
{
    const QString changed = styled(m_attributed.text, style);
    m_attributed.text = changed;
    textStyle = style;
    rebuild();
    changedShape();
}

void ResizableTextView::applyUpperCase()
{
    applyCase(1);
}

void ResizableTextView::applyLowerCase()
{
    applyCase(2);
}

void ResizableTextView::applyCapitalized()
{
    applyCase(3);
}

void ResizableTextView::setShadowEntries()
{
    textAttributes.shadow = shadow;
    textAttributes.paragraphStyle = paragraphStyle;
    rebuild();
}

void ResizableTextView::applyShadow()
{
    setShadowEntries();
}

void ResizableTextView::applyShadowOffset()
{
    Q_ASSERT_X(textShadowOffset, "applyShadowOffset", "no shadow offset set");
    if (textShadowOffset)
        shadow.offset = *textShadowOffset;
    setShadowEntries();
}

void ResizableTextView::applyShadowColor()
{
    shadow.color = textShadowColor;
    setShadowEntries();
}

void ResizableTextView::applyShadowBlur()
{
    Q_ASSERT_X(textShadowBlur, "applyShadowBlur", "no shadow blur set");
    if (textShadowBlur)
        shadow.blurRadius = *textShadowBlur;
    setShadowEntries();
}

void ResizableTextView::paintContent(QPainter &painter) const
{
    if (textBackgroundColor) {
        QColor background = *textBackgroundColor;
        if (textBackgroundAlpha)
            background.setAlphaF(float(*textBackgroundAlpha));
        painter.fillRect(bounds(), background);
    }
    TextLayoutEngine::draw(painter, m_attributed, bounds());
}

QRectF ResizableTextView::paintExtent() const
{
    return TextLayoutEngine::paintExtent(m_attributed, bounds());
}
