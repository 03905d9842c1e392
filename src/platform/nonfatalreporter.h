#pragma once

#include <QString>

/**
 * Errors worth knowing about that the user never sees ("Prefix Url Empty", "Font Path Not Found"): each
 * goes as one JSON line (domain, code, description, time) to "nonfatal.jsonl" in the application's data
 * folder, and to the log.
 */
namespace NonFatalReporter {
void record(const QString &domain, const QString &description, int code = 0);
/** The file the reports go to, below the current base path. */
[[nodiscard]] QString path();
} // namespace NonFatalReporter
