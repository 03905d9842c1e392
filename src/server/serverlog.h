#pragma once

#include <QString>

#include <cstdio>

/**
 * The connection's log: plain lines with fixed texts, no levels. They go to standard output; a
 * command-line tool whose standard output is its result moves them to standard error.
 */
namespace ServerLog {
void print(const QString &line);
void setOutput(FILE *stream);
} // namespace ServerLog
