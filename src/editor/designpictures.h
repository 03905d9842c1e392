#pragma once

#include <QImage>
#include <QString>

#include <functional>
#include <optional>

struct Json;
class View;

/** The pictures a document names, as the editor finds them. */
namespace DesignPictures {
/** Whether an image field names anything. */
[[nodiscard]] inline bool nonEmpty(const std::optional<QString> &value)
{
    return value && !value->isEmpty();
}
/**
 * A template's picture name as the document keeps it once loaded. With `is_offline` an application
 * asset becomes a file of the design (the name stays when there is no such asset); otherwise a "file"
 * address keeps its last component and a bare name lies in resource/.
 */
[[nodiscard]] QString resolveName(const Json *document, const QString &name);
/**
 * The picture of an image field when it is at hand: an application asset for an offline document, a
 * local file, or a picture in the picture cache. Null when there is none.
 */
[[nodiscard]] QImage pictureFor(const Json *document, const QString &value);
/** The picture at once when at hand, else loaded by address with the indicator over `host`. */
void show(
    const Json *document, const QString &value, View *host, const std::function<void(const QImage &picture)> &apply);
} // namespace DesignPictures
