#pragma once

#include <functional>

/**
 * Splits the lines of a picture (rows, or columns) into bands and works on them on the thread pool; the caller waits
 * and works on bands itself, so it may be a pool thread too (the feather runs there).
 */
namespace ScanLines {
/** Calls `work(begin, end)` for disjoint bands of [0, count) that together cover it, in parallel. */
void forEachBand(int count, const std::function<void(int begin, int end)> &work);
} // namespace ScanLines
