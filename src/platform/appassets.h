#pragma once

#include <QImage>
#include <QString>

/**
 * Pictures shipped inside the application, looked up by name as the designs name them ("frame_3",
 * "img_transperent_bg_bright"). Each subsystem adds its pictures under the resource prefix ":/assets/".
 */
namespace AppAssets {
/** The picture of that name (with or without a known suffix), or a null image. */
[[nodiscard]] QImage image(const QString &name);
} // namespace AppAssets
