// quillet-tool render: a design drawn as the SAVE button draws it.
#include "toolcommand.h"

#include "editimageportraitmode.h"
#include "mapper.h"
#include "pictureencoding.h"
#include "saveflow.h"
#include "storeddesign.h"

#include <QFile>
#include <QSaveFile>

#include <cstdio>
#include <optional>

namespace {

struct Options
{
    QString path;
    QString output;
    QSizeF area;
    double scale = 1.0;
    bool hd = false;
    bool reEdit = false;
};

const QString usage = QStringLiteral("usage: render FILE --area WxH [--scale S] [--hd] [--reedit] -o OUT.png");

std::optional<Options> parse(const QStringList &args, QString *error)
{
    Options options;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString &arg = args.at(i);
        const bool hasValue = i + 1 < args.size();
        if (arg == QLatin1String("--hd")) {
            options.hd = true;
        } else if (arg == QLatin1String("--reedit")) {
            options.reEdit = true;
        } else if (arg == QLatin1String("-o") && hasValue) {
            options.output = args.at(++i);
        } else if (arg == QLatin1String("--area") && hasValue) {
            const std::optional<QSizeF> area = parseToolSize(args.at(++i));
            if (!area) {
                *error = QStringLiteral("--area takes WxH, e.g. 360x640");
                return std::nullopt;
            }
            options.area = *area;
        } else if (arg == QLatin1String("--scale") && hasValue) {
            bool ok = false;
            options.scale = args.at(++i).toDouble(&ok);
            if (!ok || options.scale <= 0) {
                *error = QStringLiteral("--scale takes a positive number");
                return std::nullopt;
            }
        } else if (options.path.isEmpty() && !arg.startsWith(QLatin1Char('-'))) {
            options.path = arg;
        } else {
            *error = usage;
            return std::nullopt;
        }
    }
    if (options.path.isEmpty() || options.output.isEmpty() || options.area.isEmpty()) {
        *error = usage;
        return std::nullopt;
    }
    return options;
}

int render(const QStringList &args)
{
    QString error;
    const std::optional<Options> options = parse(args, &error);
    if (!options)
        return toolFail(error);
    QFile file(options->path);
    if (!file.open(QIODevice::ReadOnly))
        return toolFail(QStringLiteral("cannot read %1: %2").arg(options->path, file.errorString()));
    const nlohmann::ordered_json dictionary = Mapper::parse(QString::fromUtf8(file.readAll()));
    if (!dictionary.is_object())
        return toolFail(QStringLiteral("%1 is not a JSON object").arg(options->path));

    EditImagePortraitMode session;
    session.screenScale = options->scale;
    session.setCanvasArea(QRectF(QPointF(0, 0), options->area));
    const bool loaded = options->reEdit ? session.loadReEdit(readStoredDesign(dictionary))
                                        : session.loadTemplate(Mapper::map<Json>(dictionary));
    if (!loaded)
        return toolFail(session.errorString());

    if (session.masterJson->width.value_or(0) <= 0 || session.masterJson->height.value_or(0) <= 0)
        return toolFail(QStringLiteral("%1 has no width and height to render at").arg(options->path));
    const QImage picture = session.saving().render(options->hd);
    if (picture.isNull())
        return toolFail(QStringLiteral("the canvas could not be drawn at the design's size"));

    // The same PNG as SAVE puts into the album.
    const QByteArray data = PictureEncoding::png(picture);
    QSaveFile out(options->output);
    if (data.isEmpty() || !out.open(QIODevice::WriteOnly) || out.write(data) != data.size() || !out.commit())
        return toolFail(QStringLiteral("cannot write %1: %2").arg(options->output, out.errorString()));
    std::fprintf(stdout, "%s %dx%d\n", qPrintable(options->output), picture.width(), picture.height());
    return 0;
}

const ToolCommand command("render", "render FILE --area WxH [--scale S] [--hd] [--reedit] -o OUT.png", render);

} // namespace
