#pragma once

#include "fontpickerfontjson.h"

#include <QList>
#include <QString>

#include <memory>
#include <optional>

/**
 * The font list under "qfFontJson": an array of catalogs, each with its `font_list`. It is read and
 * rewritten as a whole each time, from the GUI thread only.
 */
class FontList
{
public:
    using Catalogs = QList<std::shared_ptr<FontpickerFontJson>>;

    /** The stored list, or nothing when the key is absent or holds no array. */
    [[nodiscard]] static std::optional<Catalogs> read();
    static void write(const Catalogs &catalogs);

    /**
     * The `data.result` list of a "qf_font_json.json" envelope; logs "no file" or "JSON is invalid" and
     * gives an empty list when the file is missing or not JSON.
     */
    [[nodiscard]] static Catalogs readDefault(const QString &path);

    /** Fills the list from `defaultPath` when absent, then removes "AlphaEcho" once. */
    static void prepare(const QString &defaultPath);

    /** Whether some font of some catalog has this `ios_font_name`. */
    [[nodiscard]] static bool containsFontName(const Catalogs &catalogs, const QString &iosFontName);
    [[nodiscard]] static bool containsCatalog(const Catalogs &catalogs, qint64 catalogId);
    [[nodiscard]] static bool containsFontUrl(const Catalogs &catalogs, const QString &fontUrl);
    /** The catalog named "Text", which takes in fetched and custom fonts, or null. */
    [[nodiscard]] static std::shared_ptr<FontpickerFontJson> textCatalog(const Catalogs &catalogs);

    /**
     * Adds a fetched or custom font to the "Text" catalog (file name, PostScript name as both names, path
     * as `font_url`) and stores the list; a list without "Text" stays as it is.
     */
    static void addFont(const QString &fileName, const QString &postScriptName, const QString &filePath);
};
