#include "editorinput.h"

#include "editorsession.h"
#include "layerkinds.h"
#include "mapper.h"

#include <QFile>
#include <QRegularExpression>

namespace EditorInput {

std::optional<nlohmann::ordered_json> readJson(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot read %1: %2").arg(path, file.errorString());
        return std::nullopt;
    }
    nlohmann::ordered_json json = Mapper::parse(QString::fromUtf8(file.readAll()));
    if (json.is_discarded()) {
        *error = QStringLiteral("%1 is not JSON").arg(path);
        return std::nullopt;
    }
    return json;
}

View *findLayer(const EditorSession &session, const QString &name)
{
    static const QRegularExpression pattern(QStringLiteral("^(text|sticker|slot|outlined):(\\d+)$"));
    const auto match = pattern.match(name);
    if (!match.hasMatch())
        return nullptr;
    const QList<View *> &views = session.viewMain->subviews();
    for (auto it = views.rbegin(); it != views.rend(); ++it) {
        const auto identity = LayerKinds::identify(*it);
        if (identity && LayerKinds::name(identity->kind) == match.captured(1)
            && identity->index == match.captured(2).toLongLong())
            return *it;
    }
    return nullptr;
}

} // namespace EditorInput
