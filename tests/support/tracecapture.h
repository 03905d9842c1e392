#pragma once

#include "applog.h"

#include <QString>

#include <cstdio>

/** A temporary file that takes the application's log while it lives, read back by the test. */
class TraceCapture
{
public:
    TraceCapture()
        : m_file(std::tmpfile())
    {
        AppLog::setOutput(m_file);
    }
    ~TraceCapture()
    {
        AppLog::setOutput(stdout);
        std::fclose(m_file);
    }
    TraceCapture(const TraceCapture &) = delete;
    TraceCapture &operator=(const TraceCapture &) = delete;

    /** Everything written so far. */
    [[nodiscard]] QString text() const
    {
        std::fflush(m_file);
        std::rewind(m_file);
        QByteArray bytes;
        char chunk[4096];
        while (const std::size_t n = std::fread(chunk, 1, sizeof chunk, m_file))
            bytes.append(chunk, qsizetype(n));
        return QString::fromUtf8(bytes);
    }

private:
    FILE *m_file;
};
