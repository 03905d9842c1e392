#pragma once

#include <QString>
#include <QUrl>

/**
 * What may go to the network, and the one spelling under which the picture and video caches keep an
 * address, so that the preload and the editor, or two launches, never hold one address twice.
 */
namespace RemoteAddress {
/** http or https with a host. Anything else ("file:", "qrc:", "data:", a bare name) never reaches the network. */
[[nodiscard]] bool isRemote(const QUrl &url);
/** The address fully percent-encoded: "a b.png" and "a%20b.png" are one key. */
[[nodiscard]] QString key(const QUrl &url);
} // namespace RemoteAddress
