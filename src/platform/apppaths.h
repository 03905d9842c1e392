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
/** Creates the base path and its subdirectories where missing. */
void ensureCreated();
} // namespace AppPaths
