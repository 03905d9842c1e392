#include "processclock.h"

#include <QElapsedTimer>
#include <QFile>
#include <QList>

#include <optional>

#ifdef Q_OS_LINUX
#include <time.h>
#include <unistd.h>
#endif

namespace {

#ifdef Q_OS_LINUX
// The start time in /proc/self/stat counts clock ticks since the boot, as CLOCK_BOOTTIME does.
std::optional<qint64> linuxProcessAgeMs()
{
    QFile stat(QStringLiteral("/proc/self/stat"));
    timespec now {};
    if (!stat.open(QIODevice::ReadOnly) || clock_gettime(CLOCK_BOOTTIME, &now) != 0)
        return std::nullopt;
    const QByteArray line = stat.readAll();
    // The command name may hold spaces and parentheses: fields are counted after its closing one.
    const qsizetype close = line.lastIndexOf(')');
    if (close < 0)
        return std::nullopt;
    const QList<QByteArray> fields = line.mid(close + 2).split(' ');
    // Field 22 of the whole line (starttime) is the 20th after the name.
    constexpr qsizetype startTimeField = 19;
    const long ticksPerSecond = sysconf(_SC_CLK_TCK);
    if (fields.size() <= startTimeField || ticksPerSecond <= 0)
        return std::nullopt;
    bool ok = false;
    const double startSeconds = double(fields.at(startTimeField).toLongLong(&ok)) / double(ticksPerSecond);
    const double upSeconds = double(now.tv_sec) + double(now.tv_nsec) / 1e9;
    if (!ok)
        return std::nullopt;
    return qint64((upSeconds - startSeconds) * 1000.0);
}
#endif

} // namespace

namespace ProcessClock {

qint64 msSinceStart()
{
    static QElapsedTimer sinceFirstCall = [] {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }();
#ifdef Q_OS_LINUX
    if (const auto age = linuxProcessAgeMs())
        return *age;
#endif
    return sinceFirstCall.elapsed();
}

} // namespace ProcessClock
