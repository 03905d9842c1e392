#pragma once

#include <QImage>
#include <QString>

/** The picture a record's image field names, for the layers' own pictures (text background, texture). */
namespace PictureSource {
/**
 * A bare name is a file in Documents (then in resource/), a "file" address or an absolute path is read
 * as it stands. Remote addresses and missing or unreadable files give a null image.
 */
[[nodiscard]] QImage load(const QString &value);
} // namespace PictureSource
