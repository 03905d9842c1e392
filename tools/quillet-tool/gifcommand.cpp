// quillet-tool gif: the GIF step of the export alone, on a movie.
#include "toolcommand.h"

#include "gifmaker.h"

#include <cstdio>

namespace {

const char *const usage = "gif MOVIE --size WxH -o OUT.gif";

// Prints the GIF's path and its size; --size is the render size, which the GIF's size follows.
int gif(const QStringList &args)
{
    QString movie;
    QString output;
    std::optional<QSizeF> size;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString &arg = args.at(i);
        const bool hasValue = i + 1 < args.size();
        if (arg == QLatin1String("--size") && hasValue) {
            size = parseToolSize(args.at(++i));
            if (!size)
                return toolFail(QStringLiteral("--size takes WxH, e.g. 1080x1920"));
        } else if (arg == QLatin1String("-o") && hasValue) {
            output = args.at(++i);
        } else if (movie.isEmpty() && !arg.startsWith(QLatin1Char('-'))) {
            movie = arg;
        } else {
            return toolFail(QStringLiteral("usage: ") + QLatin1String(usage));
        }
    }
    if (movie.isEmpty() || output.isEmpty() || !size)
        return toolFail(QStringLiteral("usage: ") + QLatin1String(usage));

    const GifMaker maker(output, GifMaker::sizeFor(*size));
    if (!maker.createGif(movie))
        return toolFail(QStringLiteral("cannot make a GIF of %1").arg(movie));
    std::fprintf(stdout, "%s %dx%d\n", qPrintable(output), maker.size().width(), maker.size().height());
    return 0;
}

const ToolCommand command("gif", usage, gif);

} // namespace
