// quillet-tool filter: a picture through one filter row or one adjustment, with the editor's own kernels.
#include "toolcommand.h"

#include "feathermask.h"
#include "filtersource.h"
#include "photofilters.h"
#include "pixelkernels.h"

#include <QImageReader>
#include <QSaveFile>

#include <cstdio>
#include <optional>

namespace {

const char *const usageText = "filter IN.png (--filter NAME | --opacity V | --brightness V | --contrast V | "
                              "--saturation V | --feather R) -o OUT.png";

struct Options
{
    QString input;
    QString output;
    QString operation; // the flag without its dashes
    QString argument;
};

std::optional<Options> parse(const QStringList &args, QString *error)
{
    static const QStringList operations { QStringLiteral("filter"), QStringLiteral("opacity"),
        QStringLiteral("brightness"), QStringLiteral("contrast"), QStringLiteral("saturation"),
        QStringLiteral("feather") };
    Options options;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString &arg = args.at(i);
        const bool hasValue = i + 1 < args.size();
        if (arg == QLatin1String("-o") && hasValue) {
            options.output = args.at(++i);
        } else if (arg.startsWith(QLatin1String("--")) && operations.contains(arg.mid(2)) && hasValue
            && options.operation.isEmpty()) {
            options.operation = arg.mid(2);
            options.argument = args.at(++i);
        } else if (options.input.isEmpty() && !arg.startsWith(QLatin1Char('-'))) {
            options.input = arg;
        } else {
            *error = QStringLiteral("usage: ") + QLatin1String(usageText);
            return std::nullopt;
        }
    }
    if (options.input.isEmpty() || options.output.isEmpty() || options.operation.isEmpty()) {
        *error = QStringLiteral("usage: ") + QLatin1String(usageText);
        return std::nullopt;
    }
    return options;
}

/** The row of the filter menu named by its word ("Sepia") or by its filter ("CISepiaTone"). */
std::optional<int> filterRow(const QString &name)
{
    const auto &items = PhotoFilters::filterItemsArray();
    for (int row = 0; row < items.size(); ++row) {
        if (name.compare(items.at(row).name, Qt::CaseInsensitive) == 0
            || (!name.isEmpty() && name == items.at(row).filter))
            return row;
    }
    return std::nullopt;
}

QString filterNames()
{
    QStringList names;
    for (const FilterItem &item : PhotoFilters::filterItemsArray())
        names.append(item.name);
    return names.join(QStringLiteral(", "));
}

int filter(const QStringList &args)
{
    QString error;
    const std::optional<Options> options = parse(args, &error);
    if (!options)
        return toolFail(error);
    QImageReader reader(options->input);
    const QImage picture = reader.read();
    if (picture.isNull())
        return toolFail(QStringLiteral("cannot read %1: %2").arg(options->input, reader.errorString()));

    FilterSource source;
    source.setupCoreImage(picture);
    QImage result;
    if (options->operation == QLatin1String("filter")) {
        const std::optional<int> row = filterRow(options->argument);
        if (!row)
            return toolFail(
                QStringLiteral("unknown filter '%1'; the filters are %2").arg(options->argument, filterNames()));
        result = source.applyFilter(*row);
    } else {
        bool ok = false;
        const qreal value = options->argument.toDouble(&ok);
        if (!ok)
            return toolFail(QStringLiteral("--%1 takes a number").arg(options->operation));
        if (options->operation == QLatin1String("opacity"))
            result = source.opacity(value);
        else if (options->operation == QLatin1String("brightness"))
            result = source.brightness(value);
        else if (options->operation == QLatin1String("contrast"))
            result = source.contrast(value);
        else if (options->operation == QLatin1String("saturation"))
            result = source.saturation(value);
        else // the mask of a view of the picture's own size, applied as the view applies it
            result = PixelKernels::maskedBy(
                picture, FeatherMask::compute(source.aCIImage(), value, source.aCIImage().size()));
    }

    QSaveFile out(options->output);
    if (result.isNull() || !out.open(QIODevice::WriteOnly) || !result.save(&out, "PNG") || !out.commit())
        return toolFail(QStringLiteral("cannot write %1: %2").arg(options->output, out.errorString()));
    std::fprintf(stdout, "%s %dx%d\n", qPrintable(options->output), result.width(), result.height());
    return 0;
}

const ToolCommand command("filter", usageText, filter);

} // namespace
