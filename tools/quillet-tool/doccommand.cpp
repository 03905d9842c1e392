// quillet-tool doc: template documents.
#include "toolcommand.h"

#include "mapper.h"
#include "storeddesign.h"

#include <QFile>

#include <cstdio>
#include <utility>

namespace {

// doc print FILE: the design as the store would read it, printed as the store would write it.
int print(const QStringList &args)
{
    if (args.size() != 1)
        return toolFail(QStringLiteral("usage: doc print FILE"));
    QFile file(args.first());
    if (!file.open(QIODevice::ReadOnly))
        return toolFail(QStringLiteral("cannot read %1: %2").arg(args.first(), file.errorString()));
    const nlohmann::ordered_json dictionary = Mapper::parse(QString::fromUtf8(file.readAll()));
    if (!dictionary.is_object())
        return toolFail(QStringLiteral("%1 is not a JSON object").arg(args.first()));
    const std::optional<QString> text = Mapper::toJSONString(*readStoredDesign(dictionary), true);
    if (!text)
        return toolFail(QStringLiteral("%1 holds a number that JSON cannot represent").arg(args.first()));
    std::fprintf(stdout, "%s\n", text->toUtf8().constData());
    return 0;
}

const std::pair<const char *, ToolCommand::Runner> subcommands[] = {
    { "print", print },
};

const ToolCommand command("doc", "doc print FILE", [](const QStringList &args) {
    for (const auto &[word, run] : subcommands) {
        if (!args.isEmpty() && args.first() == QLatin1String(word))
            return run(args.mid(1));
    }
    return toolFail(QStringLiteral("usage: doc print FILE"));
});

} // namespace
