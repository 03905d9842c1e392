#pragma once

#include "json.h"

#include <QString>

#include <nlohmann/json.hpp>

#include <memory>

/**
 * A design as the store holds it. A dictionary with the key "sample_image", whatever its value, is
 * a document; any other (the empty one included) is read as the older snapshot form and converted, in
 * memory only.
 * Text that is not a JSON object counts as the empty dictionary, so a document always comes back.
 */
[[nodiscard]] std::shared_ptr<Json> readStoredDesign(const QString &text);
[[nodiscard]] std::shared_ptr<Json> readStoredDesign(const nlohmann::ordered_json &dictionary);
