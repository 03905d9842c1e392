#pragma once

#include <QSizeF>
#include <QStringList>

#include <functional>
#include <optional>

/**
 * One sub-command of quillet-tool ("doc", "store", "api", ...). Each command file registers itself
 * with a static ToolCommand; `run` gets the arguments after the command word and returns the exit code.
 */
struct ToolCommand
{
    using Runner = std::function<int(const QStringList &args)>;
    ToolCommand(const char *name, const char *usage, Runner run);

    const char *name;
    const char *usage;
    Runner run;
};

/** Prints a message to stderr and returns 1, for the commands' error exits. */
int toolFail(const QString &message);

/** A "WxH" argument such as "1080x1920" or "360.5x640"; nothing for any other text or an empty size. */
std::optional<QSizeF> parseToolSize(const QString &text);
