// quillet-tool menu: what the bars below the canvas show for a design, with a layer selected or none.
#include "toolcommand.h"

#include "designstore.h"
#include "editorinput.h"
#include "editorscreens.h"
#include "editorsession.h"
#include "layerview.h"
#include "mapper.h"
#include "slotview.h"

#include <cstdio>
#include <memory>

namespace {

using ordered_json = nlohmann::ordered_json;

// {"menuTag": N, "contentTag": N, "items": [...]} on one line, spaced as written.
QString menuLine(const ToolMenus &menus)
{
    QStringList items;
    for (const QString &text : menus.barTexts())
        items.append(QString::fromStdString(ordered_json(text.toStdString()).dump()));
    return QStringLiteral("{\"menuTag\": %1, \"contentTag\": %2, \"items\": [%3]}")
        .arg(menus.menuTag())
        .arg(menus.contentTag())
        .arg(items.join(QStringLiteral(", ")));
}

// menu FILE --area WxH [--editor NAME] [--select LAYER]
int menu(const QStringList &args)
{
    const QString usage = QStringLiteral("usage: menu FILE --area WxH [--editor NAME] [--select LAYER]");
    QString path;
    QString editorName = QStringLiteral("EditImagePortraitMode");
    QString selected;
    std::optional<QSizeF> area;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString &arg = args.at(i);
        const bool hasValue = i + 1 < args.size();
        if (arg == QLatin1String("--area") && hasValue) {
            area = parseToolSize(args.at(++i));
            if (!area)
                return toolFail(QStringLiteral("--area takes WxH, e.g. 360x640"));
        } else if (arg == QLatin1String("--editor") && hasValue) {
            editorName = args.at(++i);
        } else if (arg == QLatin1String("--select") && hasValue) {
            selected = args.at(++i);
        } else if (path.isEmpty() && !arg.startsWith(QLatin1String("--"))) {
            path = arg;
        } else {
            return toolFail(usage);
        }
    }
    if (path.isEmpty() || !area)
        return toolFail(usage);
    QString error;
    const std::optional<ordered_json> document = EditorInput::readJson(path, &error);
    if (!document)
        return toolFail(error);
    if (!document->is_object())
        return toolFail(QStringLiteral("%1 is not a JSON object").arg(path));

    const std::unique_ptr<EditorSession> session(EditorScreens::makeEditor(editorName));
    if (!session)
        return toolFail(QStringLiteral("no editor \"%1\"").arg(editorName));
    DesignStore store;
    session->setDesignStore(&store);
    session->setCanvasArea(QRectF(QPointF(0, 0), *area));
    session->screenSize = *area;
    if (!session->loadTemplate(Mapper::map<Json>(*document)))
        return toolFail(session->errorString());
    if (!selected.isEmpty()) {
        // The user's tap on the layer.
        View *layer = EditorInput::findLayer(*session, selected);
        if (auto *view = qobject_cast<LayerView *>(layer))
            view->tapGesture();
        else if (auto *slot = qobject_cast<SlotView *>(layer))
            slot->tapGesture();
        else
            return toolFail(QStringLiteral("no layer \"%1\"").arg(selected));
    }
    std::fprintf(stdout, "%s\n", menuLine(*session->menus()).toUtf8().constData());
    return 0;
}

const ToolCommand command("menu", "menu FILE --area WxH [--editor NAME] [--select LAYER]", menu);

} // namespace
