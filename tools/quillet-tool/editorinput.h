#pragma once

#include <QString>

#include <nlohmann/json.hpp>

#include <optional>

class EditorSession;
class View;

/** What the commands that open a design in a headless editor share: the files they read and the layers they name. */
namespace EditorInput {
/** The JSON of a file; nothing, with `error` set, when it cannot be read or is no JSON. */
[[nodiscard]] std::optional<nlohmann::ordered_json> readJson(const QString &path, QString *error);
/** The topmost layer that "kind:index" names ("text:1", "sticker:2", "slot:1", "outlined:1"); null for none. */
[[nodiscard]] View *findLayer(const EditorSession &session, const QString &name);
} // namespace EditorInput
