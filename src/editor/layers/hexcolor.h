#pragma once

#include <QColor>
#include <QString>

/** Colours as the records hold them: hexadecimal RGB text, with or without "#". */
namespace HexColor {
/** "#%06x" of each component x 255, truncated. */
[[nodiscard]] QString toString(const QColor &color);
/** The colour of "RRGGBB" or "#RRGGBB"; an invalid colour for anything else. */
[[nodiscard]] QColor fromString(const QString &hex);
} // namespace HexColor
