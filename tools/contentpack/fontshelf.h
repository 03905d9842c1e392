#pragma once

#include <QFont>
#include <QMap>
#include <QString>

/** One font of the pack: the system file it comes from and the names the documents use. */
struct PackFont
{
    QString key; // short name used by the recipes, e.g. "Lobster"
    QString source; // installed file
    QString fileName; // name under "fonts/" in the pack
    QString postScript; // `fontName` of a text layer
    QString family;
    QString style;
};

/** The fonts of the pack, taken from Debian font packages; registered with Qt for drawing the previews. */
class FontShelf
{
public:
    /** Registers every font; false (with the missing file in `error`) when a font package is absent. */
    bool load(QString &error);
    [[nodiscard]] const PackFont &font(const QString &key) const;
    [[nodiscard]] QList<PackFont> all() const { return m_fonts.values(); }
    [[nodiscard]] bool has(const QString &key) const { return m_fonts.contains(key); }
    [[nodiscard]] QFont qfont(const QString &key, qreal pixelSize) const;
    /** The font a text layer names by PostScript name; the application's default face when unknown. */
    [[nodiscard]] QFont qfontByPostScript(const QString &postScript, qreal pixelSize) const;

    /** The PostScript name from the font's own name table (name id 6). */
    [[nodiscard]] static QString postScriptName(const QString &file);

private:
    QMap<QString, PackFont> m_fonts;
};
