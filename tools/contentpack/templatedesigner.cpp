#include "templatedesigner.h"

#include "artwork.h"
#include "fontshelf.h"

#include <QFontMetricsF>
#include <QPainter>

struct TemplateDesigner::Context
{
    const nlohmann::json &recipe;
    long long id;
    double width;
    double height;
    QColor ground, accent, ink;
    QString titleFont, bodyFont;
    nlohmann::json doc;
    int nextIndex[4] = { 1, 1, 1, 1 };

    QString text(const char *key) const { return QString::fromStdString(recipe.value(key, std::string())); }
    int variant() const { return static_cast<int>(id % 97); }
};

namespace {

std::string hex(const QColor &colour)
{
    return colour.name().mid(1).toStdString();
}

QColor colourAt(const nlohmann::json &palette, size_t i, const char *fallback)
{
    if (palette.is_array() && i < palette.size() && palette[i].is_string())
        return QColor::fromString(QString::fromStdString(palette[i].get<std::string>()));
    return QColor::fromString(QString::fromLatin1(fallback));
}

} // namespace

TemplateDesigner::TemplateDesigner(const QDir &resourceDir, const FontShelf &fonts, int photoCount, int patternCount)
    : m_resourceDir(resourceDir)
    , m_fonts(fonts)
    , m_photoCount(photoCount)
    , m_patternCount(patternCount)
{ }

nlohmann::json TemplateDesigner::design(const nlohmann::json &recipe, long long jsonId)
{
    const std::string size = recipe.value("size", recipe.value("layout", "") == "cover" ? "cover" : "story");
    const double width = size == "landscape" ? 1920 : 1080;
    const double height = size == "story" ? 1920 : 1080;
    const auto &palette = recipe.value("palette", nlohmann::json::array());
    const auto fonts = recipe.value("fonts", nlohmann::json::array());
    auto fontKey = [&](size_t i, const char *fallback) {
        return i < fonts.size() && fonts[i].is_string() ? QString::fromStdString(fonts[i].get<std::string>())
                                                        : QString::fromLatin1(fallback);
    };
    Context c { recipe, jsonId, width, height, colourAt(palette, 0, "#ffffff"), colourAt(palette, 1, "#e05863"),
        colourAt(palette, 2, "#222222"), fontKey(0, "Lobster"), fontKey(1, "Lato"), nlohmann::json::object() };
    c.doc = { { "json_id", jsonId }, { "text_json", nlohmann::json::array() },
        { "sticker_json", nlohmann::json::array() }, { "image_sticker_json", nlohmann::json::array() },
        { "frame_image_sticker_json", nlohmann::json::array() }, { "background_json", nlohmann::json::object() },
        { "frame_json", nlohmann::json::object() }, { "sample_image", "tpl_" + std::to_string(jsonId) + ".jpg" },
        { "is_pip", recipe.value("pip", false) }, { "is_sample", false }, { "width", width }, { "height", height },
        { "is_free", recipe.value("free", 1) == 1 }, { "is_featured", recipe.value("featured", 0) == 1 },
        { "is_portrait", height >= width }, { "is_offline", recipe.value("offline", false) }, { "img_id", jsonId },
        { "updated_at", "2026-11-01 09:00:00" } };
    background(c);
    const std::string layout = recipe.value("layout", "poster");
    if (layout == "photo")
        photo(c);
    else if (layout == "quote")
        quote(c);
    else if (layout == "sale")
        sale(c);
    else if (layout == "cover")
        cover(c);
    else
        poster(c);
    return c.doc;
}

void TemplateDesigner::background(Context &c)
{
    auto &bg = c.doc["background_json"];
    const std::string kind = c.recipe.value("background", "color");
    if (kind == "gradient") {
        bg["gradient_colors"] = { hex(c.ground), hex(c.accent) };
    } else if (kind == "pattern") {
        bg["texture_image"] = "{base}resource/pattern_" + std::to_string(c.variant() % m_patternCount) + ".png";
    } else if (kind == "picture") {
        bg["background_image"] = "photo_" + std::to_string(c.variant() % m_photoCount) + ".jpg";
    } else if (kind == "video") {
        bg["background_image"] = "story_" + std::to_string(c.recipe.value("video", 0)) + ".mp4";
    } else {
        bg["background_color"] = "#" + hex(c.ground);
    }
}

QString TemplateDesigner::saveAsset(const Context &c, const QString &what, const QImage &image)
{
    const QString name = QStringLiteral("t%1_%2.png").arg(c.id).arg(what);
    image.save(m_resourceDir.filePath(name));
    return name;
}

nlohmann::json &TemplateDesigner::addText(Context &c, const QString &text, const QString &fontKey, double size,
    const QColor &colour, double centreX, double top, double spacing)
{
    QFont font = m_fonts.qfont(fontKey, size);
    font.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    const QFontMetricsF metrics(font);
    double width = 0;
    for (const auto &line : text.split(QLatin1Char('\n')))
        width = std::max(width, metrics.horizontalAdvance(line));
    nlohmann::json record = { { "xPos", std::round(centreX - width / 2) }, { "yPos", top }, { "size", size },
        { "opacity", 100 }, { "angle", 0 }, { "text", text.toStdString() }, { "color", hex(colour) },
        { "fontName", m_fonts.font(fontKey).postScript.toStdString() },
        { "fontPath", "fonts/" + m_fonts.font(fontKey).fileName.toStdString() }, { "index", c.nextIndex[0]++ },
        { "land_space", spacing }, { "vert_space", 0 }, { "alignment", 2 }, { "status", 1 }, { "text_style", 0 } };
    c.doc["text_json"].push_back(std::move(record));
    return c.doc["text_json"].back();
}

void TemplateDesigner::addSticker(Context &c, const QString &name, const QRectF &rect, double angle, double opacity)
{
    c.doc["sticker_json"].push_back(
        { { "xPos", rect.x() }, { "yPos", rect.y() }, { "width", rect.width() }, { "height", rect.height() },
            { "opacity", opacity }, { "angle", angle }, { "sticker_image", name.toStdString() },
            { "index", c.nextIndex[1]++ }, { "status", 1 }, { "is_brand_logo", false } });
}

void TemplateDesigner::poster(Context &c)
{
    const double w = c.width, h = c.height, unit = std::min(w, h);
    const bool wide = w > h;
    const QRectF slot = wide ? QRectF(w * 0.55, h * 0.14, w * 0.38, h * 0.72)
                             : QRectF(w * 0.12, h * (h > w ? 0.36 : 0.38), w * 0.76, h * (h > w ? 0.34 : 0.36));
    c.doc["image_sticker_json"].push_back({ { "xPos", slot.x() }, { "yPos", slot.y() }, { "width", slot.width() },
        { "height", slot.height() }, { "is_round", false }, { "angle", 0 },
        { "image_sticker_image", "photo_" + std::to_string((c.variant() + 3) % m_photoCount) + ".jpg" },
        { "color", hex(c.accent) }, { "index", c.nextIndex[2]++ }, { "status", 1 } });
    const double textCentre = wide ? w * 0.28 : w / 2;
    auto &title = addText(c, c.text("title"), c.titleFont, unit * 0.14, c.ink, textCentre, h * (wide ? 0.2 : 0.1));
    title["shadowColor"] = "000000";
    title["shadowRadius"] = 8;
    title["shadowDistance"] = 6;
    addText(c, c.text("subtitle"), c.bodyFont, unit * 0.045, c.ink, textCentre, h * (wide ? 0.45 : 0.26), 6);
    addText(c, c.text("cta"), c.bodyFont, unit * 0.05, c.accent, textCentre, h * (wide ? 0.7 : 0.8), 4);
    const QImage burst = Artwork::sticker(2, c.accent, c.ground, 512);
    addSticker(c, saveAsset(c, QStringLiteral("burst"), burst),
        QRectF(w - unit * 0.3, slot.y() - unit * 0.12, unit * 0.26, unit * 0.26), 15);
    const QImage sparkles = Artwork::sticker(4, QColor(Qt::white), c.accent, 384);
    addSticker(c, saveAsset(c, QStringLiteral("sparkles"), sparkles),
        QRectF(unit * 0.04, h * 0.04, unit * 0.16, unit * 0.16), -10, 85);
    c.doc["frame_json"]["frame_image"] = saveAsset(c, QStringLiteral("frame"),
        [&] {
            QImage frame(qRound(w / 2), qRound(h / 2), QImage::Format_ARGB32_Premultiplied);
            frame.fill(Qt::transparent);
            QPainter p(&frame);
            p.setRenderHint(QPainter::Antialiasing);
            p.setPen(QPen(c.ground.lightness() > 128 ? c.accent : QColor(Qt::white), 6));
            p.drawRect(QRectF(18, 18, frame.width() - 36, frame.height() - 36));
            return frame;
        }())
                                             .toStdString();
}

void TemplateDesigner::photo(Context &c)
{
    const double w = c.width, h = c.height, unit = std::min(w, h);
    const bool wide = w > h;
    const QRectF rect = wide ? QRectF(w * 0.52, h * 0.1, h * 0.8 * 0.8, h * 0.8)
                             : QRectF(w * 0.15, h * (h > w ? 0.25 : 0.24), w * 0.7, h > w ? h * 0.48 : h * 0.5);
    const int maskKind = c.recipe.value("mask", 0);
    const QString mask = saveAsset(
        c, QStringLiteral("outline"), Artwork::mask(maskKind, 600, qRound(600 * rect.height() / rect.width())));
    c.doc["frame_image_sticker_json"].push_back({ { "xPos", rect.x() }, { "yPos", rect.y() }, { "width", rect.width() },
        { "height", rect.height() }, { "is_round", false }, { "angle", 0 }, { "opacity", 100 },
        { "image_sticker_image", mask.toStdString() }, { "color", hex(c.accent) }, { "index", c.nextIndex[3]++ },
        { "pip_image", "photo_" + std::to_string(c.variant() % m_photoCount) + ".jpg" }, { "status", 1 },
        { "xPosImage", 0 }, { "yPosImage", 0 }, { "widthImage", rect.width() }, { "heightImage", rect.height() },
        { "angleImage", 0 } });
    const double centre = wide ? w * 0.26 : w / 2;
    addText(c, c.text("title"), c.titleFont, unit * 0.12, c.ink, centre, wide ? h * 0.3 : h * 0.08);
    addText(c, c.text("subtitle"), c.bodyFont, unit * 0.05, c.accent, centre,
        wide ? h * 0.55 : rect.bottom() + h * 0.04, 8);
    const QImage leaves = Artwork::sticker(3, c.accent, c.ink, 512);
    const QString leafName = saveAsset(c, QStringLiteral("leaves"), leaves);
    addSticker(c, leafName, QRectF(rect.x() - unit * 0.1, rect.bottom() - unit * 0.25, unit * 0.3, unit * 0.3), -30);
    addSticker(c, leafName, QRectF(rect.right() - unit * 0.2, rect.y() - unit * 0.06, unit * 0.3, unit * 0.3), 150, 90);
}

void TemplateDesigner::quote(Context &c)
{
    const double w = c.width, h = c.height, unit = std::min(w, h);
    // Break the quote into lines of about 18 characters so it reads as a block.
    QStringList words = c.text("title").split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QStringList lines;
    QString line;
    for (const auto &word : words) {
        if (!line.isEmpty() && line.size() + word.size() > 18) {
            lines << line;
            line.clear();
        }
        line += (line.isEmpty() ? QString() : QStringLiteral(" ")) + word;
    }
    if (!line.isEmpty())
        lines << line;
    addText(c, QStringLiteral("\u201C"), c.titleFont, unit * 0.3, c.accent, w / 2, h * 0.18)["opacity"] = 70;
    auto &body = addText(c, lines.join(QLatin1Char('\n')), c.titleFont, unit * 0.075, c.ink, w / 2, h * 0.34);
    body["vert_space"] = unit * 0.02;
    body["shadowColor"] = hex(c.accent.darker(200));
    body["shadowRadius"] = 4;
    body["shadowDistance"] = 3;
    addText(c, c.text("subtitle"), c.bodyFont, unit * 0.04, c.accent, w / 2, h * 0.72, 5);
    if (c.recipe.value("offline", false))
        return; // offline documents name nothing that has to be downloaded
    addSticker(c, saveAsset(c, QStringLiteral("sparkles"), Artwork::sticker(4, c.accent, c.ink, 384)),
        QRectF(w * 0.72, h * 0.64, unit * 0.18, unit * 0.18), 0);
    c.doc["frame_json"]["frame_image"] = saveAsset(
        c, QStringLiteral("frame"), Artwork::frame(6, c.accent, c.ink, 540).scaled(qRound(w / 2), qRound(h / 2)))
                                             .toStdString();
}

void TemplateDesigner::sale(Context &c)
{
    const double w = c.width, h = c.height, unit = std::min(w, h);
    auto &title = addText(c, c.text("title"), c.titleFont, unit * 0.3, c.ink, w / 2, h * 0.12, 8);
    title["texture_image"] = "{base}resource/pattern_" + std::to_string((c.variant() + 1) % m_patternCount) + ".png";
    title["shadowColor"] = "000000";
    title["shadowRadius"] = 10;
    title["shadowDistance"] = 8;
    addText(c, c.text("subtitle"), c.bodyFont, unit * 0.065, c.ink, w / 2, h * 0.34, 3);
    const double d = unit * 0.5;
    const QRectF slot(w / 2 - d / 2, h * 0.46, d, d);
    c.doc["image_sticker_json"].push_back({ { "xPos", slot.x() }, { "yPos", slot.y() }, { "width", d }, { "height", d },
        { "is_round", true }, { "angle", 0 },
        { "image_sticker_image", "photo_" + std::to_string((c.variant() + 5) % m_photoCount) + ".jpg" },
        { "color", hex(c.ink) }, { "index", c.nextIndex[2]++ }, { "status", 1 } });
    addSticker(c, saveAsset(c, QStringLiteral("badge"), Artwork::sticker(2, c.ink, c.accent, 512)),
        QRectF(slot.right() - unit * 0.12, slot.y() - unit * 0.06, unit * 0.24, unit * 0.24), -12);
    addSticker(c, saveAsset(c, QStringLiteral("confetti"), Artwork::sticker(11, c.ink, c.ground, 512)),
        QRectF(0, h * 0.02, unit * 0.4, unit * 0.4), 0, 80);
    addSticker(c, saveAsset(c, QStringLiteral("ribbon"), Artwork::sticker(7, c.accent.darker(130), c.ink, 640)),
        QRectF(w / 2 - unit * 0.4, h * 0.79, unit * 0.8, unit * 0.8 * 0.5), 0);
    addText(c, c.text("cta"), c.bodyFont, unit * 0.04, c.ink, w / 2, h * 0.835, 2);
}

void TemplateDesigner::cover(Context &c)
{
    const double w = c.width, h = c.height;
    const QString caption = c.text("caption");
    const double iconSize = w * (caption.isEmpty() ? 0.46 : 0.38);
    const QImage icon = Artwork::icon(c.recipe.value("icon", 0), Qt::white, 512);
    c.doc["sticker_json"].push_back(
        { { "xPos", (w - iconSize) / 2 }, { "yPos", (h - iconSize) / 2 - (caption.isEmpty() ? 0 : h * 0.06) },
            { "width", iconSize }, { "height", iconSize }, { "opacity", 100 }, { "angle", 0 },
            { "sticker_image", saveAsset(c, QStringLiteral("icon"), icon).toStdString() }, { "color", hex(c.ink) },
            { "index", c.nextIndex[1]++ }, { "status", 1 }, { "is_brand_logo", false } });
    if (!caption.isEmpty())
        addText(c, caption, QStringLiteral("Comfortaa"), w * 0.09, c.ink, w / 2, h * 0.68, 2);
    c.doc["frame_json"]["frame_image"]
        = saveAsset(c, QStringLiteral("ring"), Artwork::frame(c.variant() % 8, c.ink, c.accent, 540)).toStdString();
}
