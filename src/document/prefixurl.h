#pragma once

#include <QString>
#include <QUrl>

/**
 * The base of all template assets, one for the process: images at "resource/", fonts at "fonts/",
 * videos at "video/" below it. The start-up sets it from the server in use, and each `getJsonData`
 * answer that carries a `prefix_url` replaces it; the preparation and the editors form every asset
 * address here, so that both name a picture alike. GUI thread only.
 */
namespace PrefixUrl {
[[nodiscard]] QString value();
void set(const QString &prefix);
/** The asset base of a server address: "content/" below its path, as the content server answers it. */
[[nodiscard]] QString forServer(const QUrl &server);

/**
 * The address of a picture a document names: a web address as it stands, else the base + "resource/" +
 * the name's last component. Empty when the name leaves nothing usable.
 */
[[nodiscard]] QUrl pictureAddress(const QString &name);
/** The base + "video/" + the name's last component; empty when nothing usable is left. */
[[nodiscard]] QUrl videoAddress(const QString &name);
/** The base + "fonts/" + a font's file name, as a string: the font library encodes it. */
[[nodiscard]] QString fontAddress(const QString &fileName);
} // namespace PrefixUrl
