// quillet-tool store: the saved designs store under QUILLET_HOME. Results go to stdout, the store's
// trace to stderr.
#include "toolcommand.h"

#include "designstore.h"
#include "mapper.h"
#include "savedphotosvc.h"
#include "storeddesign.h"

#include <QFile>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace {

const QString usageText
    = QStringLiteral("usage: store save FILE [--id ID] [--video] | store list | store delete ID | store duplicate ID");

void printLine(const QString &text)
{
    std::fprintf(stdout, "%s\n", text.toUtf8().constData());
}

// store save FILE [--id ID] [--video]: the file's text as a design's JSON; prints the row's id.
int save(const QStringList &args)
{
    std::optional<QString> path;
    std::optional<ObjectId> id;
    bool isVideo = false;
    for (qsizetype i = 0; i < args.size(); ++i) {
        if (args[i] == QLatin1String("--video")) {
            isVideo = true;
        } else if (args[i] == QLatin1String("--id") && i + 1 < args.size()) {
            id = ObjectId::fromString(args[++i]);
            if (!id)
                return toolFail(QStringLiteral("not an object id: %1").arg(args[i]));
        } else if (!path) {
            path = args[i];
        } else {
            return toolFail(usageText);
        }
    }
    if (!path)
        return toolFail(usageText);
    QFile file(*path);
    if (!file.open(QIODevice::ReadOnly))
        return toolFail(QStringLiteral("cannot read %1: %2").arg(*path, file.errorString()));
    DesignStore store;
    const std::optional<ObjectId> saved = store.saveDesign(QString::fromUtf8(file.readAll()), id, isVideo);
    if (!saved)
        return toolFail(QStringLiteral("the design was not saved"));
    printLine(saved->toString());
    return 0;
}

// store list: every design as the list screens read it, newest first.
int list(const QStringList &args)
{
    if (!args.isEmpty())
        return toolFail(usageText);
    DesignStore store;
    auto designs = nlohmann::ordered_json::array();
    for (const SavedDesign &design : store.savedDesigns()) {
        designs.push_back({ { "id", design.row.objectID.toString().toStdString() },
            { "updated_at", design.row.updated_at.toStdString() }, { "is_video", design.row.is_video },
            { "document", Mapper::toJSON(*design.document) } });
    }
    printLine(Mapper::print(designs, true));
    return 0;
}

// store delete ID: prints whether a row was found.
int remove(const QStringList &args)
{
    if (args.size() != 1)
        return toolFail(usageText);
    DesignStore store;
    printLine(
        store.deleteDesign(ObjectId::fromString(args.first())) ? QStringLiteral("true") : QStringLiteral("false"));
    return 0;
}

// store duplicate ID: the list's Duplicate action on that design; prints the new row's id.
int duplicate(const QStringList &args)
{
    if (args.size() != 1)
        return toolFail(usageText);
    const std::optional<ObjectId> id = ObjectId::fromString(args.first());
    if (!id)
        return toolFail(QStringLiteral("not an object id: %1").arg(args.first()));
    DesignStore store;
    const QList<SavePhoto> rows = store.allDesigns();
    const auto row = std::find_if(rows.cbegin(), rows.cend(), [&id](const SavePhoto &r) { return r.objectID == *id; });
    if (row == rows.cend())
        return toolFail(QStringLiteral("no design %1").arg(args.first()));
    const std::shared_ptr<Json> design = readStoredDesign(row->jsonString);
    const std::optional<ObjectId> copy = design ? SavedPhotosVC::duplicateDesign(store, *design) : std::nullopt;
    if (!copy)
        return toolFail(QStringLiteral("the design was not duplicated"));
    printLine(copy->toString());
    return 0;
}

const std::pair<const char *, ToolCommand::Runner> subcommands[] = {
    { "save", save },
    { "list", list },
    { "delete", remove },
    { "duplicate", duplicate },
};

const ToolCommand command("store",
    "store save FILE [--id ID] [--video] | store list | store delete ID | store duplicate ID",
    [](const QStringList &args) {
        for (const auto &[word, run] : subcommands) {
            if (!args.isEmpty() && args.first() == QLatin1String(word))
                return run(args.mid(1));
        }
        return toolFail(usageText);
    });

} // namespace
