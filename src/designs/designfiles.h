#pragma once

#include "json.h"

#include <QString>
#include <QUrl>

class AlertModel;

/**
 * Where a stored design's files are, as every reader of the store finds them: folders named in the
 * document are never trusted, since the platform may move the application's container between launches.
 */
namespace DesignFiles {

/** True when `sample_video` names a GIF ("gif" as its extension), false for a movie. */
[[nodiscard]] bool isGif(const Json &design);

/**
 * The design's movie or GIF in today's Documents folder: only the last component of the stored address
 * counts. Empty when `sample_video` is no address at all.
 */
[[nodiscard]] QString videoFile(const Json &design);

/** `sample_image` as a web address (a template's sample that never got a preview of its own); else empty. */
[[nodiscard]] QUrl previewAddress(const Json &design);

/** The preview file in Documents; empty for a web address or no preview name. */
[[nodiscard]] QString previewFile(const Json &design);

/**
 * The preview as an image source through the picture cache ("image://cache/…"), for a web address and for
 * a file alike; empty when the design names none.
 */
[[nodiscard]] QString previewSource(const Json &design);

/**
 * A rendered preview exists: the design was saved by the user, has a thumbnail, or shows a template's
 * sample from the server (".webp").
 */
[[nodiscard]] bool hasPreview(const Json &design);

/** The alert for Preview, Share or Print of a design without a preview; `action` is the sheet's word. */
[[nodiscard]] AlertModel *previewUnavailableAlert(const QString &action);

} // namespace DesignFiles
