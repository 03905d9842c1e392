#pragma once

#include <QImage>
#include <QString>

/** Pictures of a design kept as files in the Documents folder, in the format PictureEncoding chooses. */
namespace PictureFile {
/** A new unique name: the time stamp "yyyyMMddHHmmss", a sequence number when needed, and the suffix. */
[[nodiscard]] QString uniqueName(const QString &suffix);
/**
 * Writes the picture under a new unique name and returns the name, or an empty string when it could
 * not be encoded or written. The file appears complete or not at all.
 */
[[nodiscard]] QString write(const QImage &image);
} // namespace PictureFile
