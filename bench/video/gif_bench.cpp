// The GIF step on the merge benchmark's movie, timed against the ffmpeg command in one run, with the SSIM of
// each GIF's frames against the movie's frames at the same times; then the GIF export of a design (the merge
// handing its frames to the GIF as they pass) against the ffmpeg pair (merge command, then GIF command).
//   bench_gif [--rounds N]
#include "benchmedia.h"
#include "processstats.h"

#include "gifmaker.h"
#include "merge.h"
#include "moviestills.h"

#include <QDir>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>

namespace {

std::vector<std::string> strings(const QStringList &list)
{
    std::vector<std::string> result;
    for (const QString &item : list)
        result.push_back(item.toStdString());
    return result;
}

QStringList ffmpegGif(const QString &movie, const QString &gif)
{
    return { QStringLiteral("ffmpeg"), QStringLiteral("-nostdin"), QStringLiteral("-y"), QStringLiteral("-i"), movie,
        QStringLiteral("-vf"),
        QStringLiteral("fps=16/15,scale=576:1024:flags=lanczos,split[a][b];[a]palettegen[p];[b][p]paletteuse"),
        QStringLiteral("-frames:v"), QStringLiteral("16"), QStringLiteral("-loop"), QStringLiteral("0"), gif };
}

QStringList ffmpegMerge(const MergeWorkload &workload, const QString &movie)
{
    return { QStringLiteral("ffmpeg"), QStringLiteral("-nostdin"), QStringLiteral("-y"), QStringLiteral("-i"),
        workload.video, QStringLiteral("-stream_loop"), QStringLiteral("-1"), QStringLiteral("-i"), workload.music,
        QStringLiteral("-loop"), QStringLiteral("1"), QStringLiteral("-i"), workload.overlay,
        QStringLiteral("-filter_complex"),
        QStringLiteral("[0:v][2:v]overlay=0:0:shortest=1:format=auto,format=yuv420p[v]"), QStringLiteral("-map"),
        QStringLiteral("[v]"), QStringLiteral("-map"), QStringLiteral("1:a"), QStringLiteral("-t"),
        QStringLiteral("15"), QStringLiteral("-r"), QStringLiteral("30"), QStringLiteral("-c:v"),
        QStringLiteral("libx264"), QStringLiteral("-preset"), QStringLiteral("veryfast"), QStringLiteral("-crf"),
        QStringLiteral("18"), QStringLiteral("-c:a"), QStringLiteral("aac"), QStringLiteral("-b:a"),
        QStringLiteral("192k"), movie };
}

// The child process of the design's GIF export: the merge with its tap, then the GIF of the frames taken.
int tapExport(const QStringList &args)
{
    const MergeWorkload workload { args.at(0), args.at(1), args.at(2) };
    const QString folder = args.at(3);
    const Merge merge({ 30, folder, Quality::high, Placement::stretchFit() });
    const GifMaker maker(folder + QStringLiteral("/export.gif"), GifMaker::sizeFor(QSizeF(1080, 1920)));
    auto frames = std::make_shared<GifFrames>();
    QEventLoop loop;
    bool made = false;
    merge.overlayVideo(
        MediaAsset(workload.video), QSizeF(1080, 1920), false, MediaAsset(workload.music), QImage(workload.overlay),
        [&](const std::optional<QUrl> &movie, std::optional<bool>) {
            made = movie && maker.createGif(*frames);
            loop.quit();
        },
        {}, maker.frameTap(frames));
    loop.exec();
    return made ? 0 : 1;
}

double meanSsim(const std::vector<QImage> &frames, const std::vector<QImage> &references)
{
    if (frames.size() != references.size() || frames.empty())
        return 0;
    double total = 0;
    for (std::size_t i = 0; i < frames.size(); ++i)
        total += lumaSsim(frames[i], references[i]);
    return total / double(frames.size());
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const QStringList args = QGuiApplication::arguments();
    if (args.size() == 6 && args.at(1) == QLatin1String("--tap-export"))
        return tapExport(args.mid(2));
    int rounds = 3;
    if (const qsizetype at = args.indexOf(QStringLiteral("--rounds")); at > 0 && at + 1 < args.size())
        rounds = std::max(1, args.at(at + 1).toInt());

    QTemporaryDir folder;
    std::printf("making the workload in %s ...\n", qPrintable(folder.path()));
    const MergeWorkload workload = makeMergeWorkload(folder.path());
    const QString tool = QGuiApplication::applicationDirPath() + QStringLiteral("/quillet-tool");
    qputenv("QUILLET_HOME", folder.filePath(QStringLiteral("home")).toUtf8());
    const QString merged = folder.filePath(QStringLiteral("merged"));
    QDir().mkpath(merged);
    const ProcessStats merging = runMeasured(strings({ tool, QStringLiteral("merge"), workload.video,
        QStringLiteral("--overlay"), workload.overlay, QStringLiteral("--audio"), workload.music,
        QStringLiteral("--size"), QStringLiteral("1080x1920"), QStringLiteral("--dir"), merged }));
    const QString movie = merged + QLatin1Char('/') + QDir(merged).entryList(QDir::Files).value(0);
    if (merging.exitCode != 0) {
        std::fprintf(stderr, "the merge of the workload failed\n");
        return 1;
    }

    const QString ourGif = folder.filePath(QStringLiteral("ours.gif"));
    const QString theirGif = folder.filePath(QStringLiteral("ffmpeg.gif"));
    const QStringList ours { tool, QStringLiteral("gif"), movie, QStringLiteral("--size"), QStringLiteral("1080x1920"),
        QStringLiteral("-o"), ourGif };
    const QString exportFolder = folder.filePath(QStringLiteral("export"));
    QDir().mkpath(exportFolder);
    const QStringList ourExport { QGuiApplication::applicationFilePath(), QStringLiteral("--tap-export"),
        workload.video, workload.overlay, workload.music, exportFolder };
    const QString pairMovie = folder.filePath(QStringLiteral("pair.mov"));
    const QString pairGif = folder.filePath(QStringLiteral("pair.gif"));

    std::vector<ProcessStats> ourSteps, theirSteps, ourExports, pairs;
    for (int round = 0; round < rounds; ++round) {
        const bool oursFirst = round % 2 == 0;
        for (int turn = 0; turn < 2; ++turn) {
            if ((turn == 0) == oursFirst) {
                ourSteps.push_back(runMeasured(strings(ours)));
                ourExports.push_back(runMeasured(strings(ourExport)));
            } else {
                theirSteps.push_back(runMeasured(strings(ffmpegGif(movie, theirGif))));
                const ProcessStats mergeStep = runMeasured(strings(ffmpegMerge(workload, pairMovie)));
                const ProcessStats gifStep = runMeasured(strings(ffmpegGif(pairMovie, pairGif)));
                pairs.push_back(
                    { mergeStep.wallSeconds + gifStep.wallSeconds, mergeStep.cpuSeconds + gifStep.cpuSeconds,
                        std::max(mergeStep.maxRssMegabytes, gifStep.maxRssMegabytes),
                        mergeStep.exitCode | gifStep.exitCode });
            }
        }
        std::printf("  round %d: gif ours %.2f s, ffmpeg %.2f s; export ours %.2f s, ffmpeg pair %.2f s\n", round + 1,
            ourSteps.back().wallSeconds, theirSteps.back().wallSeconds, ourExports.back().wallSeconds,
            pairs.back().wallSeconds);
    }

    std::printf("\nGIF step, medians of %d rounds:\n", rounds);
    printStats("ours (quillet-tool gif)", median(ourSteps));
    printStats("ffmpeg gif command", median(theirSteps));
    std::printf(
        "ours / ffmpeg: wall %.2f (target <= 0.50)\n", median(ourSteps).wallSeconds / median(theirSteps).wallSeconds);

    const QSize size = GifMaker::sizeFor(QSizeF(1080, 1920));
    std::vector<QImage> references;
    for (const double time : evenlySpreadTimes(MovieStills(movie).duration(), GifMaker::frameCount))
        references.push_back(movieFrame(movie, time, size));
    std::printf("SSIM against the movie's frames at the GIF's times: ours %.4f, ffmpeg %.4f\n",
        meanSsim(gifFrames(ourGif, size), references), meanSsim(gifFrames(theirGif, size), references));

    // The same step on a movie made elsewhere (the ffmpeg pair's), whose key frames are where its
    // encoder put them.
    std::vector<ProcessStats> ourOther, theirOther;
    for (int round = 0; round < rounds; ++round) {
        ourOther.push_back(runMeasured(strings({ tool, QStringLiteral("gif"), pairMovie, QStringLiteral("--size"),
            QStringLiteral("1080x1920"), QStringLiteral("-o"), folder.filePath(QStringLiteral("other.gif")) })));
        theirOther.push_back(runMeasured(strings(ffmpegGif(pairMovie, theirGif))));
    }
    std::printf("\nGIF step on the ffmpeg pair's movie (key frames every 250 frames), medians of %d rounds:\n", rounds);
    printStats("ours (quillet-tool gif)", median(ourOther));
    printStats("ffmpeg gif command", median(theirOther));
    std::printf("ours / ffmpeg: wall %.2f\n", median(ourOther).wallSeconds / median(theirOther).wallSeconds);

    std::printf("\nGIF export of a design (merge and GIF), medians of %d rounds:\n", rounds);
    printStats("ours (merge with tap + gif)", median(ourExports));
    printStats("ffmpeg merge + gif commands", median(pairs));
    std::printf(
        "ours / ffmpeg pair: wall %.2f (target <= 0.55)\n", median(ourExports).wallSeconds / median(pairs).wallSeconds);
    return 0;
}
