// The merge of a design over a 15 s story video with a looped music, timed against the ffmpeg command that
// does the same and against the floor (the same encoder on the plain video, without overlay or sound), in
// one run: wall, CPU and peak memory of each process. Then the picture quality of `high` as SSIM against
// the same composite made without loss. Our pipeline also runs at the peer's encoder setting, so that
// what the pipeline saves shows apart from what the quality table's cheaper preset saves.
//   bench_merge [--rounds N]
#include "benchmedia.h"
#include "processstats.h"

#include "merge.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <map>

namespace {

std::vector<std::string> strings(const QStringList &list)
{
    std::vector<std::string> result;
    for (const QString &item : list)
        result.push_back(item.toStdString());
    return result;
}

QString onlyFileIn(const QString &folder)
{
    const QStringList files = QDir(folder).entryList(QDir::Files);
    return files.isEmpty() ? QString() : folder + QLatin1Char('/') + files.constFirst();
}

// The composite of the benchmark without loss, through the same pipeline.
QString losslessComposite(const MergeWorkload &workload, const QString &folder)
{
    QDir().mkpath(folder);
    const Merge merge({ 30, folder, Quality::high, Placement::stretchFit() });
    std::unique_ptr<Exporter> exporter = merge.prepareExport(MediaAsset(workload.video), QSizeF(1080, 1920), true,
        std::nullopt, QImage(workload.overlay), EncoderSetting::lossless());
    if (!exporter)
        return {};
    exporter->exportAsynchronously({});
    exporter->join();
    return exporter->status() == Exporter::Status::completed ? exporter->outputPath() : QString();
}

// The child process of "ours at the peer's setting": the merge the tool runs, with x264 told `preset`
// and `crf` instead of the quality table's entry.
//   bench_merge --encode PRESET CRF VIDEO OVERLAY MUSIC DIR
int encodeAtSetting(const QStringList &args)
{
    const QByteArray preset = args.at(0).toLatin1();
    const EncoderSetting setting { preset.constData(), args.at(1).toInt(), 192000 };
    const Merge merge({ 30, args.at(5), Quality::high, Placement::stretchFit() });
    std::unique_ptr<Exporter> exporter = merge.prepareExport(
        MediaAsset(args.at(2)), QSizeF(1080, 1920), false, MediaAsset(args.at(4)), QImage(args.at(3)), setting);
    if (!exporter)
        return 1;
    exporter->exportAsynchronously({});
    exporter->join();
    return exporter->status() == Exporter::Status::completed ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    int rounds = 3;
    const QStringList args = QGuiApplication::arguments();
    if (const qsizetype at = args.indexOf(QStringLiteral("--encode")); at > 0 && at + 6 < args.size())
        return encodeAtSetting(args.mid(at + 1, 6));
    if (const qsizetype at = args.indexOf(QStringLiteral("--rounds")); at > 0 && at + 1 < args.size())
        rounds = std::max(1, args.at(at + 1).toInt());

    QTemporaryDir folder;
    std::printf("making the workload in %s ...\n", qPrintable(folder.path()));
    const MergeWorkload workload = makeMergeWorkload(folder.path());
    const QString tool = QGuiApplication::applicationDirPath() + QStringLiteral("/quillet-tool");
    const QString ours = folder.filePath(QStringLiteral("ours"));
    const QString oursAtPeer = folder.filePath(QStringLiteral("ours-veryfast"));
    qputenv("QUILLET_HOME", folder.filePath(QStringLiteral("home")).toUtf8());

    const std::map<std::string, QStringList> commands {
        { "ours (quillet-tool merge)",
            { tool, QStringLiteral("merge"), workload.video, QStringLiteral("--overlay"), workload.overlay,
                QStringLiteral("--audio"), workload.music, QStringLiteral("--size"), QStringLiteral("1080x1920"),
                QStringLiteral("--quality"), QStringLiteral("high"), QStringLiteral("--dir"), ours } },
        { "ours at veryfast crf 18",
            { QGuiApplication::applicationFilePath(), QStringLiteral("--encode"), QStringLiteral("veryfast"),
                QStringLiteral("18"), workload.video, workload.overlay, workload.music, oursAtPeer } },
        { "peer (ffmpeg overlay)",
            { QStringLiteral("ffmpeg"), QStringLiteral("-nostdin"), QStringLiteral("-y"), QStringLiteral("-i"),
                workload.video, QStringLiteral("-stream_loop"), QStringLiteral("-1"), QStringLiteral("-i"),
                workload.music, QStringLiteral("-loop"), QStringLiteral("1"), QStringLiteral("-i"), workload.overlay,
                QStringLiteral("-filter_complex"),
                QStringLiteral("[0:v][2:v]overlay=0:0:shortest=1:format=auto,format=yuv420p[v]"),
                QStringLiteral("-map"), QStringLiteral("[v]"), QStringLiteral("-map"), QStringLiteral("1:a"),
                QStringLiteral("-t"), QStringLiteral("15"), QStringLiteral("-r"), QStringLiteral("30"),
                QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-preset"),
                QStringLiteral("veryfast"), QStringLiteral("-crf"), QStringLiteral("18"), QStringLiteral("-c:a"),
                QStringLiteral("aac"), QStringLiteral("-b:a"), QStringLiteral("192k"),
                folder.filePath(QStringLiteral("peer.mov")) } },
        { "floor (ffmpeg encode only)",
            { QStringLiteral("ffmpeg"), QStringLiteral("-nostdin"), QStringLiteral("-y"), QStringLiteral("-i"),
                workload.video, QStringLiteral("-an"), QStringLiteral("-t"), QStringLiteral("15"), QStringLiteral("-r"),
                QStringLiteral("30"), QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-preset"),
                QStringLiteral("veryfast"), QStringLiteral("-crf"), QStringLiteral("18"),
                folder.filePath(QStringLiteral("floor.mov")) } },
    };

    std::map<std::string, std::vector<ProcessStats>> runs;
    for (int round = 0; round < rounds; ++round) {
        // Each round starts with another command, so that a busy moment of the machine does not always
        // fall on the same one.
        std::vector<std::string> order;
        for (const auto &[name, command] : commands)
            order.push_back(name);
        std::rotate(order.begin(), order.begin() + round % order.size(), order.end());
        for (const std::string &name : order) {
            for (const QString &output : { ours, oursAtPeer }) {
                QDir(output).removeRecursively();
                QDir().mkpath(output);
            }
            runs[name].push_back(runMeasured(strings(commands.at(name))));
            const ProcessStats &last = runs[name].back();
            std::printf("  round %d %-28s %6.2f s wall %6.2f s cpu %6.1f MB\n", round + 1, name.c_str(),
                last.wallSeconds, last.cpuSeconds, last.maxRssMegabytes);
        }
    }

    std::printf("\nmedians of %d rounds:\n", rounds);
    for (const auto &[name, stats] : runs)
        printStats(name.c_str(), median(stats));
    const ProcessStats us = median(runs["ours (quillet-tool merge)"]);
    const ProcessStats peer = median(runs["peer (ffmpeg overlay)"]);
    const ProcessStats floor = median(runs["floor (ffmpeg encode only)"]);
    const ProcessStats usAtPeer = median(runs["ours at veryfast crf 18"]);
    std::printf("ours / peer: wall %.2f (target <= 0.70), max rss %.2f (target <= 1.00); ours / floor: wall %.2f\n",
        us.wallSeconds / peer.wallSeconds, us.maxRssMegabytes / peer.maxRssMegabytes,
        us.wallSeconds / floor.wallSeconds);
    std::printf("ours at the peer's setting / peer: wall %.2f, max rss %.2f\n", usAtPeer.wallSeconds / peer.wallSeconds,
        usAtPeer.maxRssMegabytes / peer.maxRssMegabytes);

    const QString ourMovie = onlyFileIn(ours);
    std::printf("sizes: ours %.1f MB, peer %.1f MB, floor %.1f MB\n", QFileInfo(ourMovie).size() / 1e6,
        QFileInfo(folder.filePath(QStringLiteral("peer.mov"))).size() / 1e6,
        QFileInfo(folder.filePath(QStringLiteral("floor.mov"))).size() / 1e6);
    const QString lossless = losslessComposite(workload, folder.filePath(QStringLiteral("lossless")));
    std::printf("SSIM of high against the lossless composite: %.4f (target >= 0.98)\n", movieSsim(ourMovie, lossless));
    return 0;
}
