#pragma once

#include <QColor>
#include <QDir>
#include <QString>

#include <nlohmann/json.hpp>

class FontShelf;

/**
 * Turns a recipe of data/templates.json into a template document (template units, degrees), drawing the
 * stickers, outlines and frames it needs into the pack's "resource/" folder. Layouts: poster, photo, quote,
 * sale and cover (highlight covers).
 */
class TemplateDesigner
{
public:
    TemplateDesigner(const QDir &resourceDir, const FontShelf &fonts, int photoCount, int patternCount);

    [[nodiscard]] nlohmann::json design(const nlohmann::json &recipe, long long jsonId);

private:
    struct Context;
    void poster(Context &c);
    void photo(Context &c);
    void quote(Context &c);
    void sale(Context &c);
    void cover(Context &c);

    void background(Context &c);
    /** Adds a text layer; `centreX` places the text box so that the text is centred there. */
    nlohmann::json &addText(Context &c, const QString &text, const QString &fontKey, double size, const QColor &colour,
        double centreX, double top, double spacing = 0);
    void addSticker(Context &c, const QString &name, const QRectF &rect, double angle, double opacity = 100);
    QString saveAsset(const Context &c, const QString &what, const QImage &image);

    QDir m_resourceDir;
    const FontShelf &m_fonts;
    int m_photoCount;
    int m_patternCount;
};
