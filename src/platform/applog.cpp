#include "applog.h"

namespace AppLog {

namespace {
FILE *output = stdout;
} // namespace

void print(const QString &line)
{
    std::fprintf(output, "%s\n", line.toUtf8().constData());
    std::fflush(output);
}

void setOutput(FILE *stream)
{
    output = stream;
}

} // namespace AppLog
