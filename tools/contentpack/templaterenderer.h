#pragma once

#include <QDir>
#include <QImage>

#include <nlohmann/json.hpp>

class FontShelf;

/**
 * Draws a template document (template units, angles in degrees) the way the editor lays it out: background,
 * picture slots, outlined slots, frame, stickers, texts. Used for the card and sample pictures, so that a
 * card shows what opening the template gives.
 */
class TemplateRenderer
{
public:
    TemplateRenderer(const QDir &packDir, const FontShelf &fonts);

    /** The document at `scale` (1 = template units). */
    [[nodiscard]] QImage render(const nlohmann::json &document, qreal scale) const;

private:
    [[nodiscard]] QImage asset(const std::string &name) const;
    void drawBackground(QPainter &p, const nlohmann::json &background, const QSizeF &size) const;
    void drawText(QPainter &p, const nlohmann::json &text) const;

    QDir m_packDir;
    const FontShelf &m_fonts;
};
