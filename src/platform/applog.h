#pragma once

#include <QString>

#include <cstdio>

/**
 * The application's log: plain lines with fixed texts and no levels, on standard output. A
 * command-line tool whose standard output is its result moves them to standard error.
 */
namespace AppLog {
void print(const QString &line);
/** Where the lines go from now on. */
void setOutput(FILE *stream);
} // namespace AppLog
