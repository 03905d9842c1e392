// The trimmer's exact cut (whole groups copied, the partial ones encoded again) against the ffmpeg
// command's exact cut (all encoded again), the filmstrip of a 30 s movie, and the local copy of a movie
// against `ffmpeg -c copy`. Each peer runs in the same process run, so the ratios compare like with like.
#include "filmstripdecoder.h"
#include "videocacheexport.h"
#include "videotrim.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>

namespace {

QTemporaryDir &folder()
{
    static QTemporaryDir dir;
    return dir;
}

bool ffmpeg(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral("ffmpeg"),
        QStringList {
            QStringLiteral("-hide_banner"), QStringLiteral("-loglevel"), QStringLiteral("error"), QStringLiteral("-y") }
            + arguments);
    return process.waitForFinished(600000) && process.exitCode() == 0;
}

// A phone-like movie: 1080x1920 at 30 pictures a second with AAC sound, a key frame every `keyInterval`.
QString movie(double seconds, int keyInterval)
{
    const QString path = folder().filePath(QStringLiteral("movie-%1-%2.mp4").arg(seconds).arg(keyInterval));
    if (!QFile::exists(path)
        && !ffmpeg({ QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
            QStringLiteral("testsrc2=size=1080x1920:rate=30"), QStringLiteral("-f"), QStringLiteral("lavfi"),
            QStringLiteral("-i"), QStringLiteral("sine=frequency=440"), QStringLiteral("-t"), QString::number(seconds),
            QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-preset"), QStringLiteral("veryfast"),
            QStringLiteral("-g"), QString::number(keyInterval), QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p"),
            QStringLiteral("-c:a"), QStringLiteral("aac"), path }))
        std::fprintf(stderr, "could not make %s\n", qPrintable(path));
    return path;
}

void TrimExact(benchmark::State &state)
{
    const QString input = movie(10, int(state.range(0)));
    const QString output = folder().filePath(QStringLiteral("cut.mov"));
    for (auto _ : state) {
        const QString error = VideoTrim::cut({ input, 2.0, 7.5, output, 18 });
        if (!error.isEmpty())
            state.SkipWithError(qPrintable(error));
    }
}
// Key frames every 2 s (whole groups to copy), and only at the start (all encoded again).
BENCHMARK(TrimExact)->Arg(60)->Arg(300)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

void TrimExactByFfmpegCommand(benchmark::State &state)
{
    const QString input = movie(10, int(state.range(0)));
    const QString output = folder().filePath(QStringLiteral("peer.mov"));
    for (auto _ : state) {
        if (!ffmpeg({ QStringLiteral("-ss"), QStringLiteral("2.0"), QStringLiteral("-to"), QStringLiteral("7.5"),
                QStringLiteral("-i"), input, QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-crf"),
                QStringLiteral("18"), QStringLiteral("-preset"), QStringLiteral("fast"), QStringLiteral("-c:a"),
                QStringLiteral("copy"), output }))
            state.SkipWithError("ffmpeg failed");
    }
}
BENCHMARK(TrimExactByFfmpegCommand)->Arg(60)->Arg(300)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

void Filmstrip(benchmark::State &state)
{
    const QString input = movie(30, int(state.range(0)));
    for (auto _ : state) {
        int pictures = 0;
        FilmstripDecoder::decode(input, 10, 120, [&pictures](int, const QImage &) {
            ++pictures;
            return true;
        });
        if (pictures != 10)
            state.SkipWithError("pictures missing");
    }
}
BENCHMARK(Filmstrip)->Arg(60)->Arg(300)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

void LocalCopy(benchmark::State &state)
{
    const QString input = movie(30, 60);
    const QString output = folder().filePath(QStringLiteral("copy.mov"));
    const std::atomic_bool cancelled = false;
    for (auto _ : state) {
        if (VideoCacheExport::exportMovie(input, output, cancelled).status != VideoCacheExport::Status::Completed)
            state.SkipWithError("export failed");
    }
}
BENCHMARK(LocalCopy)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

void LocalCopyByFfmpegCommand(benchmark::State &state)
{
    const QString input = movie(30, 60);
    const QString output = folder().filePath(QStringLiteral("peer-copy.mp4"));
    for (auto _ : state) {
        if (!ffmpeg({ QStringLiteral("-i"), input, QStringLiteral("-c"), QStringLiteral("copy"), output }))
            state.SkipWithError("ffmpeg failed");
    }
}
BENCHMARK(LocalCopyByFfmpegCommand)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
