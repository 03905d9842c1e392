#pragma once

#include <QString>

#include <atomic>

/**
 * The local copy of a movie that the video view makes before a merge: its picture and sound streams
 * copied packet by packet into an MPEG-4 file, never decoded. The source may be a file or a remote address.
 */
namespace VideoCacheExport {

/** How an export ended, numbered as the log prints it. */
enum class Status { Completed = 3, Failed = 4, Cancelled = 5 };

struct Result
{
    Status status = Status::Failed;
    QString error; // empty when completed
};

/** Copies `source` into `destination`; stops early when `cancelled` becomes true. Blocking. */
[[nodiscard]] Result exportMovie(const QString &source, const QString &destination, const std::atomic_bool &cancelled);

} // namespace VideoCacheExport
