#include "resizableview.h"

#include "hexcolor.h"
#include "layerflash.h"
#include "picturefile.h"
#include "picturesource.h"
#include "textlayoutengine.h"

ResizableView::ResizableView(const QRectF &frame, QObject *parent)
    : LayerView(frame, parent)
{
    setupViews();
}

void ResizableView::setupViews()
{
    setupFrame();
    addBorderView(0.0);
    const QRectF area(QPointF(0, 0), mainView->bounds().size());
    contentView = new View(area);
    contentView->setAutoresizingMask(FlexibleAll);
    contentView->setBackgroundColor(Qt::transparent);
    mainView->addSubview(contentView);
    backgroundView = new ImageView(area);
    backgroundView->setAutoresizingMask(FlexibleAll);
    backgroundView->setBackgroundColor(Qt::transparent);
    contentView->addSubview(backgroundView);
    textView = new ResizableTextView(area);
    textView->setAutoresizingMask(FlexibleAll);
    contentView->addSubview(textView);
    setupControls();

    textView->setAlignment(Qt::AlignHCenter);
    textView->setBackgroundColor(Qt::transparent);
    // Names no font on purpose: the font entry stays out until a font that exists is named.
    textView->fontName = QStringLiteral("Helveticas");
    textView->fontSize = contentView->bounds().height();
    textView->applyFontName();
    textView->foregroundColor = textColor;
    textView->applyForegroundColor();
    // Linked last: the look built here fits no text yet.
    textView->textViewDelegate = this;
}

void ResizableView::textViewDidChangeShape(ResizableTextView *)
{
    resizeToFitText();
}

QRectF ResizableView::frameForTextAt(const QPointF &textCorner)
{
    const qreal offset = contentInset + TextLayoutEngine::margin;
    return { textCorner - QPointF(offset, offset), buildSize };
}

void ResizableView::resizeToFitText()
{
    const QSizeF fits = textView->sizeThatFits(QSizeF(maxWidth, std::numeric_limits<qreal>::max()));
    setBounds(QRectF(bounds().topLeft(), fits + QSizeF(buttonSize, buttonSize)));
    mainView->setFrame(QRectF(QPointF(contentInset, contentInset), fits));
    layoutControls();
}

qint64 ResizableView::alignmentCode(Qt::Alignment alignment)
{
    if (alignment & Qt::AlignLeft)
        return 1;
    if (alignment & Qt::AlignRight)
        return 3;
    return 2;
}

void ResizableView::writePosition(TextJson &json) const
{
    const QRectF r = unrotatedFrame();
    json.xPos = r.x() + contentInset + TextLayoutEngine::margin;
    json.yPos = r.y() + contentInset + TextLayoutEngine::margin;
}

void ResizableView::updateTextJson(std::shared_ptr<TextJson> json)
{
    textJson = std::move(json);
    if (!textJson)
        return;
    writePosition(*textJson);
    textJson->status = 2;
    if (delegate)
        delegate->textDidUpdate(textJson);
}

void ResizableView::writeLook(TextJson &json) const
{
    json.size = textView->fontSize;
    json.opacity = textView->alpha() * 100.0;
    json.angle = zAngle;
    json.shadowRadius = textView->textShadowBlur;
    json.shadowDistance
        = textView->textShadowOffset ? std::optional<double>(textView->textShadowOffset->height()) : std::nullopt;
    json.text = textView->text();
    json.text_style = textView->textStyle;
    if (textView->foregroundColor)
        json.color = HexColor::toString(*textView->foregroundColor);
    json.fontName = textView->fontName;
    json.underline = textView->textUnderline;
    json.shadowColor = HexColor::toString(textView->textShadowColor);
    json.land_space = textView->letterSpace;
    json.vert_space = textView->paragraphStyle.lineSpacing;
    json.alignment = alignmentCode(textView->paragraphStyle.alignment);
}

void ResizableView::recordTextChange()
{
    if (!textJson)
        return;
    writeLook(*textJson);
    updateTextJson(textJson);
}

void ResizableView::recordColourChange()
{
    if (textJson)
        textJson->texture_image.reset();
    recordTextChange();
}

void ResizableView::storePattern()
{
    if (!textJson)
        return;
    const QString name = textView->patternColor ? PictureFile::write(*textView->patternColor) : QString();
    textJson->texture_image = name.isEmpty() ? std::nullopt : std::optional<QString>(name);
    recordTextChange();
}

void ResizableView::setTag(qint64 tag)
{
    View::setTag(tag);
    if (!textJson)
        textJson = std::make_shared<TextJson>();
    TextJson &json = *textJson;
    writePosition(json);
    writeLook(json);
    if (!backgroundView->image().isNull() && json.bg_image.value_or(QString()).isEmpty()) {
        const QString name = PictureFile::write(backgroundView->image());
        if (!name.isEmpty())
            json.bg_image = name;
    }
    if (!json.index || *json.index == 0)
        json.index = tag;
    if (delegate)
        delegate->textDidAttach(textJson);
}

void ResizableView::loadFromJson(std::shared_ptr<TextJson> json, qreal canvasWidth, qint64 index, bool isLoading)
{
    if (!json)
        return;
    const QPointF origin = frame().topLeft();
    textJson = json;
    ResizableTextView *text = textView;
    if (const QString color = json->color.value_or(QString()); !color.isEmpty()) {
        text->foregroundColor = HexColor::fromString(color);
        text->applyForegroundColor();
    }
    // A picture that arrives later applies only while the record still names it.
    const QString texture = json->texture_image.value_or(QString());
    PictureSource::show(texture, this, [json, text, texture](const QImage &picture) {
        if (json->texture_image != texture)
            return;
        text->patternColor = picture;
        text->applyPattern();
    });
    hideControls();
    text->setText(ResizableTextView::styled(json->text.value_or(QString()), json->text_style));
    text->textStyle = json->text_style;
    if (const QString font = json->fontName.value_or(QString()); !font.isEmpty()) {
        text->fontName = font;
        text->applyFontName();
    }
    if (json->size)
        text->fontSize = *json->size;
    text->applyFontSize();
    const QString bgImage = json->bg_image.value_or(QString());
    backgroundView->setImage(QImage());
    PictureSource::show(bgImage, this, [this, json, bgImage](const QImage &picture) {
        if (json->bg_image == bgImage)
            backgroundView->setImage(picture);
    });
    if (json->opacity) {
        text->textAlpha = *json->opacity / 100.0;
        text->applyAlpha();
    }
    switch (json->alignment) {
    case 1:
        text->setAlignment(Qt::AlignLeft);
        break;
    case 2:
        text->setAlignment(Qt::AlignHCenter);
        break;
    case 3:
        text->setAlignment(Qt::AlignRight);
        break;
    default:
        break;
    }
    const QColor shadowColor = HexColor::fromString(json->shadowColor.value_or(QString()));
    if (shadowColor.isValid() && json->shadowRadius.value_or(0) > 0 && json->shadowDistance.value_or(0) > 0) {
        text->textShadowColor = shadowColor;
        text->applyShadowColor();
        text->textShadowBlur = *json->shadowRadius;
        text->applyShadowBlur();
        text->textShadowOffset = QSizeF(*json->shadowDistance, *json->shadowDistance);
        text->applyShadowOffset();
    }
    text->applyLetterSpace(json->land_space.value_or(0));
    text->applyLineSpacing(json->vert_space.value_or(0));
    text->textUnderline = json->underline.value_or(0);
    text->applyUnderline();
    maxWidth = canvasWidth;
    resizeToFitText();
    setFrame(QRectF(origin, frame().size()));
    text->editable = false;
    text->selectable = false;
    if (json->angle)
        applyLoadedAngle(*json->angle);
    if (isLoading)
        LayerFlash::flash(this);
    setTag(index);
}

void ResizableView::buttonTapGesture()
{
    if (delegate)
        delegate->textWillClose(this);
    removeFromSuperview();
    deleteLater();
}

void ResizableView::buttonPanGesture(GesturePhase phase, const QPointF &location)
{
    switch (phase) {
    case Began:
        prevPoint = location;
        break;
    case Changed: {
        const qreal dv = (location.x() - prevPoint.value_or(location).x()) / bounds().width();
        if (textView->fontSize + dv * 125.0 > 1.0) {
            textView->fontSize += dv * 125.0;
            textView->applyFontSize();
        }
        prevPoint = location;
        break;
    }
    case Ended:
        prevPoint = location;
        if (textJson)
            textJson->size = textView->fontSize;
        updateTextJson(textJson);
        break;
    }
}

void ResizableView::pinchStep(GesturePhase phase, qreal scale)
{
    if (phase == Began) {
        m_lastPinchScale = 1.0;
        return;
    }
    // The recogniser's scale goes back to 1.0 after each step, so each step is relative.
    const qreal step = m_lastPinchScale > 0 ? scale / m_lastPinchScale : 1.0;
    m_lastPinchScale = scale;
    const qreal d = (step - 1.0) * 100.0;
    if (textView->fontSize + d > 1.0) {
        textView->fontSize += d;
        textView->applyFontSize();
    }
}

void ResizableView::finishPinch()
{
    if (textJson)
        textJson->size = textView->fontSize;
    m_lastPinchScale = 1.0;
}

void ResizableView::didSelect()
{
    if (delegate)
        delegate->textDidSelect(this);
}

void ResizableView::didDeselect()
{
    if (delegate)
        delegate->textDidDeselect(this);
}

void ResizableView::didDrag()
{
    if (delegate)
        delegate->textDidDrag(this);
}

void ResizableView::didEndDrag()
{
    if (delegate)
        delegate->textDidEndDrag(this);
}

void ResizableView::commitGeometry()
{
    updateTextJson(textJson);
}

void ResizableView::storeAngle()
{
    if (textJson)
        textJson->angle = zAngle;
}
