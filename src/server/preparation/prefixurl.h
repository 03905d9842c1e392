#pragma once

#include <QString>

/**
 * The base of all template assets, one for the process: images at "resource/", fonts at "fonts/",
 * videos at "video/" below it. Each `getJsonData` answer that carries a `prefix_url` replaces it; the
 * editors read it too. GUI thread only.
 */
namespace PrefixUrl {
[[nodiscard]] QString value();
void set(const QString &prefix);
/** The built-in base, used until an answer brings one. */
[[nodiscard]] QString defaultValue();
} // namespace PrefixUrl
