#pragma once

#include <QtGlobal>

/** Time since the process started, for the start-up figures the application logs about itself. */
namespace ProcessClock {
/**
 * Milliseconds since the operating system started this process where it says so (Linux), else since
 * the first call.
 */
[[nodiscard]] qint64 msSinceStart();
} // namespace ProcessClock
