#pragma once

#include <QByteArray>
#include <QString>

/**
 * One font file made into a platform font and registered, as the font library does it: the PostScript
 * name comes from the file's name table; registration fails when a face of that name is registered
 * already (the usual case) or the platform refuses the file.
 */
struct FontFile
{
    bool created = false; // Qt loaded the bytes as a font, and its faces have names
    bool registered = false;
    QString postScriptName; // of the first face; may be empty

    /** Reads the faces of `data` and has Qt load it (no registration). */
    [[nodiscard]] static FontFile create(const QByteArray &data);
    /** Creates the font of the file at `path` and registers it. */
    [[nodiscard]] static FontFile registerFile(const QString &path, const QByteArray &data);
};
