#include "resizabletextview.h"

#include "fontregistry.h"
#include "hexcolor.h"
#include "picturefile.h"
#include "resizableview.h"
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
    if (superView)
        superView->resizeToFitText();
}

void ResizableTextView::commit()
{
    if (superView && superView->textJson)
        superView->updateTextJson(superView->textJson);
}

void ResizableTextView::setText(const QString &text)
{
    m_attributed.text = text;
    rebuild();
    if (superView && superView->textJson)
        superView->textJson->text = text;
    commit();
    changedShape();
}

QSizeF ResizableTextView::sizeThatFits(const QSizeF &size) const
{
    return TextLayoutEngine::sizeThatFits(m_attributed, size.width());
}

void ResizableTextView::applyAlpha()
{
    if (foregroundColor) {
        QColor color = *foregroundColor;
        color.setAlphaF(float(textAlpha));
        textAttributes.foreground = QBrush(color);
    } else {
        textAttributes.foreground.reset();
    }
    rebuild();
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
    if (superView && superView->textJson)
        superView->textJson->fontName = fontName;
    commit();
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

void ResizableTextView::storePattern()
{
    if (!superView || !superView->textJson)
        return;
    const QString name = patternColor ? PictureFile::write(*patternColor) : QString();
    superView->textJson->texture_image = name.isEmpty() ? std::nullopt : std::optional<QString>(name);
    commit();
}

void ResizableTextView::applyForegroundColor()
{
    patternColor.reset();
    if (foregroundColor) {
        textAttributes.foreground = QBrush(*foregroundColor);
        textColor = QBrush(*foregroundColor);
    }
    rebuild();
    if (superView && superView->textJson) {
        superView->textJson->texture_image.reset();
        if (foregroundColor)
            superView->textJson->color = HexColor::toString(*foregroundColor);
    }
    commit();
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
    if (superView && superView->textJson)
        superView->textJson->alignment = ResizableView::alignmentCode(alignment);
}

void ResizableTextView::applyLetterSpace(qreal value)
{
    letterSpace = value;
    textAttributes.kern = value;
    rebuild();
    changedShape();
}

void ResizableTextView::storeLetterSpace()
{
    if (superView && superView->textJson)
        superView->textJson->land_space = letterSpace;
    commit();
}

void ResizableTextView::applyLineSpacing(qreal value)
{
    paragraphStyle.lineSpacing = value;
    textAttributes.paragraphStyle = paragraphStyle;
    rebuild();
    changedShape();
}

void ResizableTextView::storeLineSpacing()
{
    if (superView && superView->textJson)
        superView->textJson->vert_space = paragraphStyle.lineSpacing;
    commit();
}

void ResizableTextView::applyUnderline()
{
    textAttributes.underlineStyle = int(textUnderline);
    rebuild();
    changedShape();
    if (superView && superView->textJson)
        superView->textJson->underline = textUnderline;
    commit();
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
    rebuild();
    if (superView && superView->textJson) {
        superView->textJson->text = changed;
        superView->textJson->text_style = style;
    }
    commit();
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

void ResizableTextView::storeShadow()
{
    if (superView && superView->textJson) {
        TextJson &json = *superView->textJson;
        json.shadowRadius = textShadowBlur;
        json.shadowDistance = textShadowOffset ? std::optional<double>(textShadowOffset->height()) : std::nullopt;
        json.shadowColor = HexColor::toString(textShadowColor);
    }
    commit();
}

void ResizableTextView::storeAlpha()
{
    if (superView && superView->textJson)
        superView->textJson->opacity = alpha() * 100.0;
    commit();
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
