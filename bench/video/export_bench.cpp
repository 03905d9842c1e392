// The whole export of a video design without screens (quillet-tool export: the editor opens the template,
// the canvas is drawn at the render size, the merge, the thumbnail, the store, the album copy), for a movie
// and for a GIF, next to the merge alone on the same video; wall time, CPU and max RSS, medians of rounds.
//   bench_export [--rounds N]
#include "benchmedia.h"
#include "processstats.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QUrl>

#include <cstdio>

namespace {

std::vector<std::string> strings(const QStringList &list)
{
    std::vector<std::string> result;
    for (const QString &item : list)
        result.push_back(item.toStdString());
    return result;
}

// A story template over the workload's video: a title, a text panel and a caption, as the catalog's have.
QByteArray designOver(const QString &video)
{
    return QStringLiteral(R"({"width": 1080, "height": 1920, "is_Video": true,
        "background_json": {"background_image": "%1"},
        "text_json": [
          {"text": "SUMMER SALE", "xPos": 90, "yPos": 160, "size": 110, "color": "FFFFFF"},
          {"text": "Up to 50% off everything this weekend", "xPos": 120, "yPos": 1280, "size": 64, "color": "FFE066"},
          {"text": "@quillet", "xPos": 340, "yPos": 1700, "size": 48, "color": "FFFFFF"}]})")
        .arg(QUrl::fromLocalFile(video).toString())
        .toUtf8();
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const QStringList args = QGuiApplication::arguments();
    int rounds = 3;
    if (const qsizetype at = args.indexOf(QStringLiteral("--rounds")); at > 0 && at + 1 < args.size())
        rounds = std::max(1, args.at(at + 1).toInt());

    QTemporaryDir folder;
    std::printf("making the workload in %s ...\n", qPrintable(folder.path()));
    const MergeWorkload workload = makeMergeWorkload(folder.path());
    const QString design = folder.filePath(QStringLiteral("design.json"));
    QFile file(design);
    if (!file.open(QIODevice::WriteOnly) || file.write(designOver(workload.video)) < 0) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(design));
        return 1;
    }
    file.close();
    const QString tool = QGuiApplication::applicationDirPath() + QStringLiteral("/quillet-tool");
    const QString album = folder.filePath(QStringLiteral("album"));
    const QString merged = folder.filePath(QStringLiteral("merged"));
    QDir().mkpath(merged);
    qputenv("QUILLET_HOME", folder.filePath(QStringLiteral("home")).toUtf8());

    const QStringList mergeAlone { tool, QStringLiteral("merge"), workload.video, QStringLiteral("--overlay"),
        workload.overlay, QStringLiteral("--size"), QStringLiteral("1080x1920"), QStringLiteral("--dir"), merged };
    const QStringList movieExport { tool, QStringLiteral("export"), design, QStringLiteral("--area"),
        QStringLiteral("360x640"), QStringLiteral("--video"), QStringLiteral("--album"), album };
    QStringList gifExport = movieExport;
    gifExport.replace(gifExport.indexOf(QStringLiteral("--video")), QStringLiteral("--gif"));

    std::vector<ProcessStats> merges, movies, gifs;
    for (int round = 0; round < rounds; ++round) {
        merges.push_back(runMeasured(strings(mergeAlone)));
        movies.push_back(runMeasured(strings(movieExport)));
        gifs.push_back(runMeasured(strings(gifExport)));
        if (merges.back().exitCode != 0 || movies.back().exitCode != 0 || gifs.back().exitCode != 0) {
            std::fprintf(stderr, "a run failed: merge %d, movie export %d, GIF export %d\n", merges.back().exitCode,
                movies.back().exitCode, gifs.back().exitCode);
            return 1;
        }
        std::printf("  round %d: merge %.2f s, movie export %.2f s, GIF export %.2f s\n", round + 1,
            merges.back().wallSeconds, movies.back().wallSeconds, gifs.back().wallSeconds);
    }

    std::printf("\nmedians of %d rounds (15 s 1080 x 1920 video, design of three texts):\n", rounds);
    printStats("merge alone (quillet-tool merge)", median(merges));
    printStats("movie export (quillet-tool export --video)", median(movies));
    printStats("GIF export (quillet-tool export --gif)", median(gifs));
    std::printf("movie export / merge alone: wall %.2f\n", median(movies).wallSeconds / median(merges).wallSeconds);
    return 0;
}
