// quillet-tool trim: the trimmer's cut of a movie, without its screen.
#include "toolcommand.h"

#include "videotrim.h"

#include <cstdio>
#include <optional>

namespace {

const char *const usage = "trim IN --start S --end E -o OUT";

std::optional<double> seconds(const QString &text)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok ? std::optional<double>(value) : std::nullopt;
}

// Prints the path of the cut.
int trim(const QStringList &args)
{
    VideoTrim::Request request;
    std::optional<double> start;
    std::optional<double> end;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString &arg = args.at(i);
        const bool hasValue = i + 1 < args.size();
        if (arg == QLatin1String("--start") && hasValue)
            start = seconds(args.at(++i));
        else if (arg == QLatin1String("--end") && hasValue)
            end = seconds(args.at(++i));
        else if (arg == QLatin1String("-o") && hasValue)
            request.output = args.at(++i);
        else if (request.input.isEmpty() && !arg.startsWith(QLatin1Char('-')))
            request.input = arg;
        else
            return toolFail(QStringLiteral("usage: ") + QLatin1String(usage));
    }
    if (request.input.isEmpty() || request.output.isEmpty() || !start || !end)
        return toolFail(QStringLiteral("usage: ") + QLatin1String(usage));
    request.start = *start;
    request.end = *end;
    const QString error = VideoTrim::cut(request);
    if (!error.isEmpty())
        return toolFail(error);
    std::fprintf(stdout, "%s\n", qPrintable(request.output));
    return 0;
}

const ToolCommand command("trim", usage, trim);

} // namespace
