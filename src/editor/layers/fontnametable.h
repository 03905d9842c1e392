#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/** The names and style of one font face, read from its 'name' and 'OS/2' tables. */
struct FontNameTable
{
    QString postScriptName; // nameID 6
    QString fullName; // nameID 4
    QString family; // nameID 16, else 1
    QString subfamily; // nameID 17, else 2
    int weight = 400; // OS/2 usWeightClass
    bool italic = false; // OS/2 fsSelection bit 0

    /** The faces of a TrueType or OpenType file, or of each face of a collection; empty when unreadable. */
    [[nodiscard]] static QList<FontNameTable> read(const QByteArray &fontData);
};
