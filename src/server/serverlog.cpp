#include "serverlog.h"

namespace {
FILE *output = stdout;
}

void ServerLog::print(const QString &line)
{
    std::fprintf(output, "%s\n", line.toUtf8().constData());
    std::fflush(output);
}

void ServerLog::setOutput(FILE *stream)
{
    output = stream;
}
