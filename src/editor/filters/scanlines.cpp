#include "scanlines.h"

#include <QList>
#include <QThreadPool>
#include <QtConcurrent/QtConcurrentMap>

#include <algorithm>

namespace ScanLines {

namespace {
// Small bands balance a busy pool; below this many lines a band is not worth a task of its own.
constexpr int minimumBand = 32;
constexpr int bandsPerThread = 4;
} // namespace

void forEachBand(int count, const std::function<void(int begin, int end)> &work)
{
    if (count <= 0)
        return;
    const int threads = std::max(1, QThreadPool::globalInstance()->maxThreadCount());
    const int bands = std::clamp(count / minimumBand, 1, threads * bandsPerThread);
    if (bands == 1) {
        work(0, count);
        return;
    }
    QList<int> starts;
    starts.reserve(bands);
    for (int band = 0; band < bands; ++band)
        starts.append(int(qint64(count) * band / bands));
    QtConcurrent::blockingMap(starts, [&](int begin) {
        const auto next = std::upper_bound(starts.cbegin(), starts.cend(), begin);
        work(begin, next == starts.cend() ? count : *next);
    });
}

} // namespace ScanLines
