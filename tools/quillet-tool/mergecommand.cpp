// quillet-tool merge: an overlay laid over a video with its sound, as the video export does it.
#include "toolcommand.h"

#include "mediaasset.h"
#include "merge.h"

#include <QEventLoop>
#include <QImage>

#include <cstdio>
#include <optional>

namespace {

const char *const usage
    = "merge VIDEO --overlay PNG [--audio FILE] [--size WxH] [--muted] [--quality low|medium|high] --dir DIR";

struct Options
{
    QString video;
    QString overlay;
    std::optional<QString> audio;
    std::optional<QSizeF> size;
    bool muted = false;
    Quality quality = Quality::high;
    QString directory;
};

std::optional<Options> parse(const QStringList &args, QString *error)
{
    Options options;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString &arg = args.at(i);
        const bool hasValue = i + 1 < args.size();
        if (arg == QLatin1String("--muted")) {
            options.muted = true;
        } else if (arg == QLatin1String("--overlay") && hasValue) {
            options.overlay = args.at(++i);
        } else if (arg == QLatin1String("--audio") && hasValue) {
            options.audio = args.at(++i);
        } else if (arg == QLatin1String("--dir") && hasValue) {
            options.directory = args.at(++i);
        } else if (arg == QLatin1String("--size") && hasValue) {
            options.size = parseToolSize(args.at(++i));
            if (!options.size) {
                *error = QStringLiteral("--size takes WxH, e.g. 1080x1920");
                return std::nullopt;
            }
        } else if (arg == QLatin1String("--quality") && hasValue) {
            const std::optional<Quality> quality = qualityFromRawValue(args.at(++i));
            if (!quality) {
                *error = QStringLiteral("--quality takes low, medium or high");
                return std::nullopt;
            }
            options.quality = *quality;
        } else if (options.video.isEmpty() && !arg.startsWith(QLatin1Char('-'))) {
            options.video = arg;
        } else {
            *error = QStringLiteral("usage: ") + QLatin1String(usage);
            return std::nullopt;
        }
    }
    if (options.video.isEmpty() || options.overlay.isEmpty() || options.directory.isEmpty()) {
        *error = QStringLiteral("usage: ") + QLatin1String(usage);
        return std::nullopt;
    }
    return options;
}

// Prints the movie's path, or the completion's shape ("no-url", "retry-muted") with exit code 1.
int merge(const QStringList &args)
{
    QString error;
    const std::optional<Options> options = parse(args, &error);
    if (!options)
        return toolFail(error);
    const QImage overlay(options->overlay);
    if (overlay.isNull())
        return toolFail(QStringLiteral("cannot read the overlay %1").arg(options->overlay));

    const Merge merge({ 30, options->directory, options->quality, Placement::stretchFit() });
    std::optional<MediaAsset> audio;
    if (options->audio)
        audio.emplace(*options->audio);
    QEventLoop loop;
    bool done = false;
    std::optional<QUrl> movie;
    std::optional<bool> retryMuted;
    merge.overlayVideo(
        MediaAsset(options->video), options->size, options->muted, audio, overlay,
        [&](const std::optional<QUrl> &url, std::optional<bool> retry) {
            movie = url;
            retryMuted = retry;
            done = true;
            loop.quit();
        },
        [](float progress) { std::fprintf(stderr, "progress %.2f\n", double(progress)); });
    if (!done)
        loop.exec();

    if (movie) {
        std::fprintf(stdout, "%s\n", qPrintable(movie->toLocalFile()));
        return 0;
    }
    std::fprintf(stdout, "%s\n", retryMuted.value_or(false) ? "retry-muted" : "no-url");
    return 1;
}

const ToolCommand command("merge", usage, merge);

} // namespace
