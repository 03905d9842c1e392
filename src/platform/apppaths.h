#pragma once

#include <QString>

/**
 * Where the application keeps its files. The base path is the environment variable QUILLET_HOME when
 * set (every test sets it), else the platform's application data location. Below it: Documents/,
 * resource/ (downloaded template assets), fonts/ (downloaded fonts), tmp/, the settings database and
 * the stores.
 */
namespace AppPaths {
[[nodiscard]] QString basePath();
[[nodiscard]] QString documents();
[[nodiscard]] QString resource();
[[nodiscard]] QString fonts();
[[nodiscard]] QString tmp();
/** A database file of the given name below the base path. */
[[nodiscard]] QString database(const QString &name);
/**
 * The name a file named by a server or a document may take inside one of the application's folders: its
 * last component after any '/' or '\\', or empty when nothing usable is left ("", ".", "..", a control
 * character such as NUL, more than 255 bytes).
 */
[[nodiscard]] QString fileName(const QString &name);
/** `folder` + "/" + fileName(name), or empty when the name leaves nothing usable. */
[[nodiscard]] QString fileIn(const QString &folder, const QString &name);
/** Whether `path`, once made absolute and clean, lies below the base path. */
[[nodiscard]] bool contains(const QString &path);
/** Creates the base path and its subdirectories where missing. */
void ensureCreated();
} // namespace AppPaths
