#include "merge.h"

#include "applog.h"
#include "composition.h"
#include "exporter.h"
#include "guithread.h"
#include "nonfatalreporter.h"
#include "videocomposition.h"

#include <QThreadPool>

#include <chrono>

namespace {

constexpr std::chrono::milliseconds pollInterval(500);

bool isRotated(const QTransform &transform)
{
    return transform.m11() == 0 && transform.m22() == 0
        && ((transform.m12() == 1 && transform.m21() == -1) || (transform.m12() == -1 && transform.m21() == 1));
}

QString millisecondsSince1970()
{
    using namespace std::chrono;
    const double seconds = duration<double>(system_clock::now().time_since_epoch()).count();
    return QString::number(qint64(seconds * 1000.0));
}

// The export's end, on its own thread. A sound that failed is the one failure a muted export avoids.
void finish(const Exporter &exporter, const Merge::Completion &completion)
{
    const std::optional<ExportError> error = exporter.error();
    if (!error) {
        runOnGuiThread(
            [completion, url = QUrl::fromLocalFile(exporter.outputPath())] { completion(url, std::nullopt); });
        return;
    }
    AppLog::print(QStringLiteral("error: ") + error->description);
    runOnGuiThread([completion, error = *error] {
        if (error.soundFailed) {
            NonFatalReporter::record(QStringLiteral("Retrying video with muted audio export issue"), error.description);
            completion(std::nullopt, true);
        } else {
            NonFatalReporter::record(QStringLiteral("Failed video export"), error.description);
            completion(std::nullopt, std::nullopt);
        }
    });
}

// The watch task: starts the export and reports its progress every poll interval until it ends.
void watch(std::shared_ptr<Exporter> exporter, Merge::Completion completion, Merge::Progress progress)
{
    QThreadPool *pool = QThreadPool::globalInstance();
    // This task mostly sleeps; the pool may run other work in its place meanwhile.
    pool->releaseThread();
    exporter->exportAsynchronously([exporter = exporter.get(), completion] { finish(*exporter, completion); });
    for (;;) {
        const Exporter::Status status = exporter->status();
        if (status != Exporter::Status::waiting && status != Exporter::Status::exporting)
            break;
        if (progress)
            progress(exporter->progress());
        exporter->waitForEnd(pollInterval);
    }
    exporter->join();
    pool->reserveThread();
}

} // namespace

void Merge::overlayVideo(const MediaAsset &video, std::optional<QSizeF> size, bool muted,
    const std::optional<MediaAsset> &audio, const QImage &overlay, Completion completion, Progress progress,
    std::optional<FrameTap> tap) const
{
    std::unique_ptr<Exporter> exporter
        = prepareExport(video, size, muted, audio, overlay, EncoderSetting::forQuality(configuration.quality));
    if (!exporter) {
        completion(std::nullopt, std::nullopt);
        return;
    }
    exporter->frameTap = std::move(tap);
    QThreadPool::globalInstance()->start(
        [exporter = std::shared_ptr<Exporter>(std::move(exporter)), completion = std::move(completion),
            progress = std::move(progress)]() mutable {
            watch(std::move(exporter), std::move(completion), std::move(progress));
        });
}

std::unique_ptr<Exporter> Merge::prepareExport(const MediaAsset &video, std::optional<QSizeF> size, bool muted,
    const std::optional<MediaAsset> &audio, const QImage &overlay, const EncoderSetting &setting) const
{
    const std::vector<MediaTrack> videoTracks = video.tracksWithMediaType(MediaTrack::Type::video);
    if (videoTracks.empty())
        return nullptr;
    const MediaTrack &picture = videoTracks.front();
    // A separate music replaces the video's sound entirely, even when it has none itself.
    const std::vector<MediaTrack> audioTracks = (audio ? *audio : video).tracksWithMediaType(MediaTrack::Type::audio);
    std::optional<TrackSource> sound;
    if (!audioTracks.empty() && !muted)
        sound = TrackSource { (audio ? *audio : video).path(), audioTracks.front().streamIndex };
    const MediaTime videoDuration = video.duration();
    const MediaTime audioDuration = audio ? audio->duration() : MediaTime::zero();

    std::optional<Composition> composition;
    try {
        composition = Composition::make(
            videoDuration, audioDuration, !audio, TrackSource { video.path(), picture.streamIndex }, sound);
    } catch (const CompositionError &) {
        return nullptr;
    }

    const QTransform &preferredTransform = picture.preferredTransform;
    const QSize naturalSize = picture.naturalSize;
    LayerInstruction layerInstruction { preferredTransform, videoDuration };
    QSizeF renderSize(naturalSize);
    if (size) {
        // A quarter-turned recording is scaled with its axes swapped; any other is scaled to fill, and
        // its own transform is left out, so a recording turned upside down is drawn unturned.
        const QTransform scale = isRotated(preferredTransform)
            ? QTransform::fromScale(size->width() / naturalSize.height(), size->height() / naturalSize.width())
            : QTransform::fromTranslate(0, 0).scale(
                size->width() / naturalSize.width(), size->height() / naturalSize.height());
        layerInstruction = { isRotated(preferredTransform) ? preferredTransform * scale : scale, videoDuration };
        renderSize = *size;
    }
    const Instruction instruction { MediaTime::zero(), videoDuration, layerInstruction };
    VideoComposition videoComposition { renderSize, instruction, MediaTime::make(1, configuration.frameRate),
        Layer(overlay, VideoComposition::frameSize(renderSize), configuration.placement) };

    const QString outputPath
        = configuration.directory + QLatin1Char('/') + millisecondsSince1970() + QStringLiteral(".mov");
    return Exporter::make(std::move(*composition), std::move(videoComposition), naturalSize, outputPath, setting);
}
