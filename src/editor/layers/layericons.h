#pragma once

#include <QImage>
#include <QString>

/** The pictures of the layers' corner handles: "ic_close", "ic_rotate", "ic_resize". */
namespace LayerIcons {
/** The handle picture of that name, drawn once at 3x and kept; a null image for an unknown name. */
[[nodiscard]] QImage image(const QString &name);
} // namespace LayerIcons
