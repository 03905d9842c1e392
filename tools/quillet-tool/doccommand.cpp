// quillet-tool doc: template documents.
#include "toolcommand.h"

#include "editimageportraitmode.h"
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

// doc load FILE --area WxH [--scale S] [--reedit]: the document after an editor has opened it.
int load(const QStringList &args)
{
    const QString usage = QStringLiteral("usage: doc load FILE --area WxH [--scale S] [--reedit]");
    QString path;
    QSizeF area;
    double scale = 1.0;
    bool reEdit = false;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString &arg = args.at(i);
        if (arg == QLatin1String("--reedit")) {
            reEdit = true;
        } else if (arg == QLatin1String("--area") && i + 1 < args.size()) {
            const std::optional<QSizeF> parsed = parseToolSize(args.at(++i));
            if (!parsed)
                return toolFail(QStringLiteral("--area takes WxH, e.g. 360x640"));
            area = *parsed;
        } else if (arg == QLatin1String("--scale") && i + 1 < args.size()) {
            bool ok = false;
            scale = args.at(++i).toDouble(&ok);
            if (!ok || scale <= 0)
                return toolFail(QStringLiteral("--scale takes a positive number"));
        } else if (path.isEmpty() && !arg.startsWith(QLatin1String("--"))) {
            path = arg;
        } else {
            return toolFail(usage);
        }
    }
    if (path.isEmpty() || area.isEmpty())
        return toolFail(usage);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return toolFail(QStringLiteral("cannot read %1: %2").arg(path, file.errorString()));
    const nlohmann::ordered_json dictionary = Mapper::parse(QString::fromUtf8(file.readAll()));
    if (!dictionary.is_object())
        return toolFail(QStringLiteral("%1 is not a JSON object").arg(path));

    EditImagePortraitMode session;
    session.screenScale = scale;
    session.setCanvasArea(QRectF(QPointF(0, 0), area));
    const bool loaded = reEdit ? session.loadReEdit(readStoredDesign(dictionary))
                               : session.loadTemplate(Mapper::map<Json>(dictionary));
    if (!loaded)
        return toolFail(session.errorString());
    const std::optional<QString> text = Mapper::toJSONString(*session.masterJson, true);
    if (!text)
        return toolFail(QStringLiteral("the document holds a number that JSON cannot represent"));
    std::fprintf(stdout, "%s\n", text->toUtf8().constData());
    return 0;
}

const std::pair<const char *, ToolCommand::Runner> subcommands[] = {
    { "print", print },
    { "load", load },
};

const ToolCommand command(
    "doc", "doc print FILE | doc load FILE --area WxH [--scale S] [--reedit]", [](const QStringList &args) {
        for (const auto &[word, run] : subcommands) {
            if (!args.isEmpty() && args.first() == QLatin1String(word))
                return run(args.mid(1));
        }
        return toolFail(QStringLiteral("usage: doc print FILE | doc load FILE --area WxH"));
    });

} // namespace
