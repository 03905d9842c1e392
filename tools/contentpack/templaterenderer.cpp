#include "templaterenderer.h"

#include "fontshelf.h"

#include <QPainter>
#include <QPainterPath>

namespace {

double num(const nlohmann::json &record, const char *key, double fallback = 0)
{
    const auto it = record.find(key);
    return it != record.end() && it->is_number() ? it->get<double>() : fallback;
}

std::string str(const nlohmann::json &record, const char *key)
{
    const auto it = record.find(key);
    return it != record.end() && it->is_string() ? it->get<std::string>() : std::string();
}

QColor hexColour(const std::string &hex)
{
    QString text = QString::fromStdString(hex);
    if (!text.startsWith(QLatin1Char('#')))
        text.prepend(QLatin1Char('#'));
    return QColor::fromString(text);
}

QRectF frameOf(const nlohmann::json &record)
{
    return { num(record, "xPos"), num(record, "yPos"), num(record, "width"), num(record, "height") };
}

/** Rotates the painter about the centre of `rect` by the record's angle in degrees. */
void rotateAbout(QPainter &p, const QRectF &rect, double degrees)
{
    p.translate(rect.center());
    p.rotate(degrees);
    p.translate(-rect.center());
}

QImage tinted(const QImage &image, const QColor &colour)
{
    QImage out = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter p(&out);
    p.setCompositionMode(QPainter::CompositionMode_SourceIn);
    p.fillRect(out.rect(), colour);
    return out;
}

/** Draws `image` to fill `target`, cropping what overflows (aspect fill). */
void drawCover(QPainter &p, const QImage &image, const QRectF &target)
{
    if (image.isNull())
        return;
    const qreal scale = qMax(target.width() / image.width(), target.height() / image.height());
    const QSizeF shown(target.width() / scale, target.height() / scale);
    const QRectF source(
        (image.width() - shown.width()) / 2, (image.height() - shown.height()) / 2, shown.width(), shown.height());
    p.drawImage(target, image, source);
}

} // namespace

TemplateRenderer::TemplateRenderer(const QDir &packDir, const FontShelf &fonts)
    : m_packDir(packDir)
    , m_fonts(fonts)
{ }

QImage TemplateRenderer::asset(const std::string &name) const
{
    QString file = QString::fromStdString(name);
    file.remove(QStringLiteral("{base}"));
    if (!file.contains(QLatin1Char('/')))
        file.prepend(QStringLiteral("resource/"));
    return QImage(m_packDir.filePath(file));
}

QImage TemplateRenderer::render(const nlohmann::json &document, qreal scale) const
{
    const QSizeF size(num(document, "width", 1080), num(document, "height", 1920));
    QImage image(qRound(size.width() * scale), qRound(size.height() * scale), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter p(&image);
    p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    p.scale(scale, scale);

    drawBackground(p, document.value("background_json", nlohmann::json::object()), size);
    for (const auto &slot : document.value("image_sticker_json", nlohmann::json::array())) {
        const QRectF rect = frameOf(slot);
        p.save();
        rotateAbout(p, rect, num(slot, "angle"));
        QPainterPath clip;
        if (slot.value("is_round", false))
            clip.addRoundedRect(rect, rect.height() / 2, rect.height() / 2);
        else
            clip.addRect(rect);
        p.setClipPath(clip);
        if (const auto colour = str(slot, "color"); !colour.empty())
            p.fillRect(rect, hexColour(colour));
        drawCover(p, asset(str(slot, "image_sticker_image")), rect);
        p.restore();
    }
    for (const auto &slot : document.value("frame_image_sticker_json", nlohmann::json::array())) {
        // The record's picture is the outline; the preview shows a sample photo through it.
        const QRectF rect = frameOf(slot);
        const QImage outline = asset(str(slot, "image_sticker_image"));
        if (outline.isNull())
            continue;
        QImage filled(rect.size().toSize(), QImage::Format_ARGB32_Premultiplied);
        filled.fill(Qt::transparent);
        {
            QPainter fp(&filled);
            fp.setRenderHint(QPainter::SmoothPixmapTransform);
            const QImage photo = asset(str(slot, "pip_image"));
            if (photo.isNull())
                fp.fillRect(filled.rect(), hexColour(str(slot, "color").empty() ? "E9EAEB" : str(slot, "color")));
            else
                drawCover(fp, photo, filled.rect());
            fp.setCompositionMode(QPainter::CompositionMode_DestinationIn);
            fp.drawImage(filled.rect(), outline);
        }
        p.save();
        p.setOpacity(num(slot, "opacity", 100) / 100.0);
        rotateAbout(p, rect, num(slot, "angle"));
        p.drawImage(rect, filled);
        p.restore();
    }
    if (const auto frame = document.value("frame_json", nlohmann::json::object()); !str(frame, "frame_image").empty())
        p.drawImage(QRectF(QPointF(0, 0), size), asset(str(frame, "frame_image")));
    for (const auto &sticker : document.value("sticker_json", nlohmann::json::array())) {
        const QRectF rect = frameOf(sticker);
        QImage picture = asset(str(sticker, "sticker_image"));
        if (const auto colour = str(sticker, "color"); !colour.empty() && !picture.isNull())
            picture = tinted(picture, hexColour(colour));
        p.save();
        p.setOpacity(num(sticker, "opacity", 100) / 100.0);
        rotateAbout(p, rect, num(sticker, "angle"));
        p.drawImage(rect, picture);
        p.restore();
    }
    for (const auto &text : document.value("text_json", nlohmann::json::array()))
        drawText(p, text);
    return image;
}

void TemplateRenderer::drawBackground(QPainter &p, const nlohmann::json &background, const QSizeF &size) const
{
    const QRectF all(QPointF(0, 0), size);
    if (const auto colour = str(background, "background_color"); !colour.empty())
        p.fillRect(all, hexColour(colour));
    if (const auto stops = background.value("gradient_colors", nlohmann::json::array()); stops.size() >= 2) {
        QLinearGradient gradient(all.topLeft(), all.bottomLeft());
        for (size_t i = 0; i < stops.size(); ++i)
            gradient.setColorAt(double(i) / double(stops.size() - 1), hexColour(stops[i].get<std::string>()));
        p.fillRect(all, gradient);
    }
    if (const auto texture = str(background, "texture_image"); !texture.empty())
        p.fillRect(all, QBrush(asset(texture)));
    if (const auto picture = str(background, "background_image"); !picture.empty())
        drawCover(p, asset(picture), all);
}

void TemplateRenderer::drawText(QPainter &p, const nlohmann::json &text) const
{
    const QString content = QString::fromStdString(str(text, "text"));
    const QFont font = m_fonts.qfontByPostScript(QString::fromStdString(str(text, "fontName")), num(text, "size", 40));
    QFont spaced = font;
    spaced.setLetterSpacing(QFont::AbsoluteSpacing, num(text, "land_space"));
    const QFontMetricsF metrics(spaced);
    const QStringList lines = content.split(QLatin1Char('\n'));
    const qreal lineHeight = metrics.height() + num(text, "vert_space");
    qreal boxWidth = 0;
    for (const auto &line : lines)
        boxWidth = qMax(boxWidth, metrics.horizontalAdvance(line));
    const QRectF box(num(text, "xPos"), num(text, "yPos"), boxWidth, lineHeight * lines.size());
    const int alignment = text.value("alignment", 2);

    QPainterPath path;
    for (int i = 0; i < lines.size(); ++i) {
        const qreal advance = metrics.horizontalAdvance(lines[i]);
        const qreal x = alignment == 1 ? 0 : alignment == 3 ? boxWidth - advance : (boxWidth - advance) / 2;
        path.addText(QPointF(box.x() + x, box.y() + i * lineHeight + metrics.ascent()), spaced, lines[i]);
    }
    p.save();
    p.setOpacity(num(text, "opacity", 100) / 100.0);
    rotateAbout(p, box, num(text, "angle"));
    p.setPen(Qt::NoPen);
    const double radius = num(text, "shadowRadius"), distance = num(text, "shadowDistance");
    if (radius > 0 && distance > 0 && !str(text, "shadowColor").empty()) {
        QColor shadow = hexColour(str(text, "shadowColor"));
        // A soft shadow: the glyphs repeated with falling alpha around the offset.
        for (int ring = 3; ring >= 0; --ring) {
            shadow.setAlphaF(0.12 + 0.1 * (3 - ring));
            p.setBrush(shadow);
            const qreal spread = radius * ring / 6.0;
            for (const QPointF &d :
                { QPointF(spread, 0), QPointF(-spread, 0), QPointF(0, spread), QPointF(0, -spread) })
                p.drawPath(path.translated(QPointF(distance, distance) + d));
        }
    }
    if (const auto texture = str(text, "texture_image"); !texture.empty())
        p.setBrush(QBrush(asset(texture)));
    else
        p.setBrush(hexColour(str(text, "color").empty() ? "000000" : str(text, "color")));
    p.drawPath(path);
    p.restore();
}
