#pragma once

#include <QColor>
#include <QImage>
#include <QSize>
#include <QStringList>

#include <optional>

/**
 * Where each of the application's own pictures comes from, by the name that screens, item tables and
 * documents use: an icon of the shipped set (src/platform/icons) in one colour, an icon on a disc (the
 * layers' handles), or a picture drawn in code. Menu rows have a second name for their selected look,
 * the same icon in the accent colour.
 */
namespace AssetTable {

/** Draws a picture at `size`; `number` is the member of a numbered family ("pattern_12" gives 12), else 0. */
using Painter = QImage (*)(int number, const QSize &size);

/** The accent colour of the application, in which selected rows show their icons. */
inline constexpr QRgb accent = 0xFFE05863;

struct Source
{
    enum class Kind { Icon, Badge, Picture };
    Kind kind = Kind::Icon;
    /** Icon, Badge: the icon's file name in the set ("letter-case"). */
    QString glyph;
    /** Icon: the colour of its strokes; Badge: the colour of the glyph. */
    QColor ink;
    /** Badge: the disc behind the glyph. */
    QColor disc;
    /** Picture: its painter and the member of its family. */
    Painter painter = nullptr;
    int number = 0;
    /** The size a request without a size gets, in pixels. */
    QSize naturalSize;
};

/** The source of a name, or nothing for a name the table does not know. */
[[nodiscard]] std::optional<Source> find(const QString &name);
/** Every name the table serves, numbered families spelled out. */
[[nodiscard]] QStringList names();

} // namespace AssetTable
