#include "textlayoutengine.h"

#include "fontregistry.h"
#include "imageblur.h"

#include <QImage>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <memory>

namespace TextLayoutEngine {

namespace {

// Qt's fixed-point layout overflows near 2^25; "unbounded" widths are clamped far below that.
constexpr qreal widestLine = 1.0e6;

QPaintDevice *referenceDevice()
{
    static QImage device = [] {
        QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
        image.setDotsPerMeterX(2835); // 72 dpi: a point is a unit
        image.setDotsPerMeterY(2835);
        return image;
    }();
    return &device;
}

struct Laid
{
    std::unique_ptr<QTextLayout> layout;
    QSizeF size;
};

QList<QTextLayout::FormatRange> formats(const AttributedText &text)
{
    const bool underline = text.attributes.underlineStyle.value_or(0) != 0;
    QList<QTextLayout::FormatRange> ranges;
    const int coloured = int(std::min<qsizetype>(text.characterForegrounds.size(), text.text.size()));
    for (int i = 0; i < coloured; ++i) {
        QTextLayout::FormatRange range { i, 1, {} };
        range.format.setForeground(text.characterForegrounds.at(i));
        range.format.setFontUnderline(underline);
        ranges.append(range);
    }
    if (text.text.size() > coloured && (underline || text.attributes.foreground)) {
        QTextLayout::FormatRange rest { coloured, int(text.text.size()) - coloured, {} };
        rest.format.setFontUnderline(underline);
        if (text.attributes.foreground)
            rest.format.setForeground(*text.attributes.foreground);
        ranges.append(rest);
    }
    return ranges;
}

Laid layOut(const AttributedText &text, qreal width)
{
    QFont font = text.attributes.font.value_or(defaultFont());
    font.setHintingPreference(QFont::PreferNoHinting);
    if (text.attributes.kern)
        font.setLetterSpacing(QFont::AbsoluteSpacing, *text.attributes.kern);
    const ParagraphStyle paragraph = text.attributes.paragraphStyle.value_or(ParagraphStyle {});

    QString shown = text.text;
    shown.replace(QLatin1Char('\n'), QChar::LineSeparator);
    Laid laid { std::make_unique<QTextLayout>(shown, font, referenceDevice()), {} };
    QTextOption option(paragraph.alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setUseDesignMetrics(true);
    laid.layout->setTextOption(option);
    laid.layout->setFormats(formats(text));

    const qreal lineWidth = std::clamp(width, 0.0, widestLine);
    qreal y = 0;
    qreal widest = 0;
    laid.layout->beginLayout();
    for (QTextLine line = laid.layout->createLine(); line.isValid(); line = laid.layout->createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(lineWidth);
        if (y > 0)
            y += paragraph.lineSpacing;
        line.setPosition(QPointF(0, y));
        y += line.height();
        widest = std::max(widest, line.naturalTextWidth());
    }
    laid.layout->endLayout();
    laid.size = QSizeF(widest, y);
    return laid;
}

// How far a shadow's picture reaches beyond the text's box on each side, before its offset.
qreal shadowPad(const TextShadow &shadow)
{
    return shadow.blurRadius * 2 + 2;
}

bool hasShadow(const AttributedText &text)
{
    return text.attributes.shadow && text.attributes.shadow->color.alpha() > 0;
}

void drawShadow(
    QPainter &painter, const QTextLayout &layout, const TextShadow &shadow, const QRectF &rect, const QPen &pen)
{
    const QTransform world = painter.combinedTransform();
    const qreal deviceScale = std::max(std::hypot(world.m11(), world.m12()), 0.01);
    // A wide blur loses nothing at a lower resolution: draw it small enough that sigma is ~2 pixels.
    const qreal sigma = shadow.blurRadius / 2 * deviceScale;
    const qreal shrink = 1 / std::max(1.0, sigma / 2);
    const qreal pad = shadowPad(shadow);
    const QPointF offset(shadow.offset.width(), shadow.offset.height());
    // The small picture lies along the device's axes, turn included, so that putting it in place only
    // stretches it: stretching and turning it at once costs several times more on large renders.
    const QRectF device = world.mapRect(rect.adjusted(-pad, -pad, pad, pad).translated(offset));
    QImage image(QSize(int(std::ceil(device.width() * shrink)), int(std::ceil(device.height() * shrink))),
        QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return;
    image.fill(Qt::transparent);
    {
        QPainter p(&image);
        p.setRenderHints(painter.renderHints());
        p.setTransform(
            world * QTransform::fromTranslate(-device.left(), -device.top()) * QTransform::fromScale(shrink, shrink));
        p.setPen(pen);
        layout.draw(&p, rect.topLeft() + offset + QPointF(margin, margin));
        // The shape's coverage in the shadow's colour.
        p.resetTransform();
        p.setCompositionMode(QPainter::CompositionMode_SourceIn);
        p.fillRect(image.rect(), shadow.color);
    }
    ImageBlur::gaussian(image, sigma * shrink);
    painter.save();
    painter.resetTransform();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(device.topLeft(), QSizeF(image.size()) / shrink), image);
    painter.restore();
}

} // namespace

QFont defaultFont()
{
    // Looked up once: drawing may run on other threads, the font registry on the GUI thread only, and
    // every text is measured on the GUI thread before it is ever drawn.
    static const QFont font = [] {
        QFont found = FontRegistry::shared().font(QStringLiteral("Helvetica"), 12).value_or(QFont());
        found.setPointSizeF(12);
        return found;
    }();
    return font;
}

QSizeF sizeThatFits(const AttributedText &text, qreal width)
{
    const Laid laid = layOut(text, width - 2 * margin);
    const qreal fitted = std::ceil(laid.size.width() + 2 * margin);
    return { std::min(fitted, width), std::ceil(laid.size.height() + 2 * margin) };
}

void draw(QPainter &painter, const AttributedText &text, const QRectF &rect)
{
    const Laid laid = layOut(text, rect.width() - 2 * margin);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setBrushOrigin(rect.topLeft());
    const QPen pen(text.attributes.foreground.value_or(QBrush(Qt::black)), 0);
    if (hasShadow(text))
        drawShadow(painter, *laid.layout, *text.attributes.shadow, rect, pen);
    painter.setPen(pen);
    laid.layout->draw(&painter, rect.topLeft() + QPointF(margin, margin));
    painter.restore();
}

QRectF paintExtent(const AttributedText &text, const QRectF &rect)
{
    // Script and italic faces reach out of their boxes; a quarter of the font size covers them.
    const QFont font = text.attributes.font.value_or(defaultFont());
    const qreal size = std::max(font.pointSizeF(), qreal(font.pixelSize()));
    const qreal overhang = size / 4 + std::abs(text.attributes.kern.value_or(0));
    QRectF extent = rect.adjusted(-overhang, -overhang, overhang, overhang);
    if (hasShadow(text)) {
        const TextShadow &shadow = *text.attributes.shadow;
        const qreal pad = shadowPad(shadow);
        extent |= rect.adjusted(-pad, -pad, pad, pad).translated(shadow.offset.width(), shadow.offset.height());
    }
    return extent;
}

} // namespace TextLayoutEngine
