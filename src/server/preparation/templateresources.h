#pragma once

#include <QStringList>

struct Json;

/** The pictures a template names, in the order they are preloaded. */
namespace TemplateResources {
/**
 * Background (when `withBackground`), frame, each sticker, each image sticker, each frame image sticker;
 * empty names are left out, duplicates kept.
 */
[[nodiscard]] QStringList names(const Json &document, bool withBackground);
/**
 * "Abc.TTF" in any folder becomes "Abc.ttf": the last component, its extension in lower case, trimmed;
 * empty when the path leaves no usable name.
 */
[[nodiscard]] QString fontFileName(const QString &fontPath);
} // namespace TemplateResources
