// quillet-tool: the editor engine and its services without a screen, for scripts and checks.
#include "toolcommand.h"

#include "applog.h"
#include "apppaths.h"

#include <QGuiApplication>
#include <QRegularExpression>

#include <cstdio>
#include <vector>

namespace {

std::vector<const ToolCommand *> &registry()
{
    static std::vector<const ToolCommand *> commands;
    return commands;
}

int usage(FILE *out)
{
    std::fprintf(out, "usage: quillet-tool COMMAND ...\n");
    for (const ToolCommand *command : registry())
        std::fprintf(out, "  %s\n", command->usage);
    return out == stdout ? 0 : 2;
}

} // namespace

ToolCommand::ToolCommand(const char *commandName, const char *commandUsage, Runner runner)
    : name(commandName)
    , usage(commandUsage)
    , run(std::move(runner))
{
    registry().push_back(this);
}

int toolFail(const QString &message)
{
    std::fprintf(stderr, "quillet-tool: %s\n", qPrintable(message));
    return 1;
}

std::optional<QSizeF> parseToolSize(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("^(\\d+(?:\\.\\d+)?)x(\\d+(?:\\.\\d+)?)$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const QSizeF size(match.captured(1).toDouble(), match.captured(2).toDouble());
    return size.isEmpty() ? std::nullopt : std::optional(size);
}

int main(int argc, char **argv)
{
    // Fonts and pictures need a GUI application; no window is ever shown.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    // Standard output carries the command's result; the application's log lines go beside it.
    AppLog::setOutput(stderr);
    QGuiApplication::setApplicationName(QStringLiteral("Quillet"));
    QStringList args = QGuiApplication::arguments().mid(1);
    if (args.isEmpty())
        return usage(stderr);
    if (args.first() == QLatin1String("--help") || args.first() == QLatin1String("-h"))
        return usage(stdout);
    const QString word = args.takeFirst();
    for (const ToolCommand *command : registry()) {
        if (word == QLatin1String(command->name)) {
            AppPaths::ensureCreated();
            return command->run(args);
        }
    }
    std::fprintf(stderr, "quillet-tool: unknown command '%s'\n", qPrintable(word));
    return usage(stderr);
}
