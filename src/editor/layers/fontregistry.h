#pragma once

#include "fontnametable.h"

#include <QFont>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/**
 * Fonts by the names designs use: a face's PostScript name ("Lobster-Regular") or full name ("Lobster
 * Regular"), as UIFont's fontWithName:size: finds them. Holds the fonts shipped with the application,
 * the ones registered later (downloaded or custom fonts), and the system's, which are read the first
 * time a name is not found. Names of the platform's own faces ("Helvetica", "SFUIText-Bold") lead to the
 * closest faces that exist here. GUI thread only.
 */
class FontRegistry
{
public:
    /** The process's registry, with the application's fonts already registered. */
    static FontRegistry &shared();

    /**
     * Registers a font file with the font database; returns the PostScript names of its faces, or an empty
     * list when the file is not a font Qt can load.
     */
    QStringList registerFontFile(const QString &path);

    /** The face of that PostScript or full name at `size` points, or nothing when no such face exists. */
    [[nodiscard]] std::optional<QFont> font(const QString &name, qreal size);
    [[nodiscard]] bool contains(const QString &name);
    /** The faces registered by the application (shipped and later), in registration order. */
    [[nodiscard]] QList<FontNameTable> applicationFaces() const { return m_applicationFaces; }

private:
    FontRegistry();
    void add(const FontNameTable &face, const QString &qtFamily, bool application);
    void scanSystemFonts();
    struct Entry
    {
        FontNameTable face;
        QString qtFamily;
    };
    [[nodiscard]] const Entry *find(const QString &name);

    QHash<QString, Entry> m_byName;
    QList<FontNameTable> m_applicationFaces;
    bool m_systemScanned = false;
};
