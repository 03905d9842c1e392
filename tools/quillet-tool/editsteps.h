#pragma once

#include <QString>

#include <nlohmann/json.hpp>

class EditorSession;

/** What went wrong with one step of `quillet-tool edit`; the command stops there. */
struct EditStepError
{
    QString message;
};

/** The steps of `quillet-tool edit` that only a video design takes. */
namespace VideoSteps {
/**
 * Runs the step when `op` is one of them ("music", "replaceVideo") and returns true; false for any other
 * op. Throws EditStepError when the step cannot be done.
 */
bool run(EditorSession &session, const QString &op, const nlohmann::ordered_json &step);
/** What the video editor plays and what its sound button shows; null for an image design. */
[[nodiscard]] nlohmann::ordered_json state(const EditorSession &session);
} // namespace VideoSteps
