#include "exporter.h"

#include "audiotrackrenderer.h"
#include "moviewriter.h"
#include "videotrackrenderer.h"

#include <exception>

std::unique_ptr<Exporter> Exporter::make(Composition composition, VideoComposition videoComposition, QSize naturalSize,
    QString outputPath, EncoderSetting setting)
{
    if (!MovieWriter::encodersAvailable() || !composition.videoTrack)
        return nullptr;
    return std::unique_ptr<Exporter>(
        new Exporter(std::move(composition), std::move(videoComposition), naturalSize, std::move(outputPath), setting));
}

Exporter::Exporter(Composition composition, VideoComposition videoComposition, QSize naturalSize, QString outputPath,
    EncoderSetting setting)
    : m_composition(std::move(composition))
    , m_videoComposition(std::move(videoComposition))
    , m_naturalSize(naturalSize)
    , m_outputPath(std::move(outputPath))
    , m_setting(setting)
{ }

Exporter::~Exporter()
{
    join();
}

void Exporter::exportAsynchronously(std::function<void()> completionHandler)
{
    m_completionHandler = std::move(completionHandler);
    m_status = Status::waiting;
    m_thread = std::thread([this] { run(); });
}

bool Exporter::waitForEnd(std::chrono::milliseconds timeout)
{
    std::unique_lock lock(m_mutex);
    return m_ended.wait_for(
        lock, timeout, [this] { return m_status != Status::waiting && m_status != Status::exporting; });
}

void Exporter::join()
{
    if (m_thread.joinable() && m_thread.get_id() != std::this_thread::get_id())
        m_thread.join();
}

float Exporter::progress() const
{
    if (m_status == Status::completed)
        return 1.0f;
    const int frames = m_frameCount;
    return frames > 0 ? float(m_written) / float(frames) : 0.0f;
}

std::optional<ExportError> Exporter::error() const
{
    const std::lock_guard lock(m_mutex);
    return m_error;
}

void Exporter::end(Status status, std::optional<ExportError> error)
{
    {
        const std::lock_guard lock(m_mutex);
        m_error = std::move(error);
        m_status = status;
    }
    m_ended.notify_all();
    if (m_completionHandler)
        m_completionHandler();
}

// The picture runs on this thread and one decoding thread; the sound beside them on a third. Either
// side failing stops the other.
void Exporter::run()
{
    m_status = Status::exporting;
    try {
        MovieWriter writer(m_outputPath);
        VideoTrackRenderer video(*m_composition.videoTrack, m_videoComposition, m_naturalSize);
        m_frameCount = video.frameCount();
        AVCodecContext &videoEncoder = writer.addVideo(VideoComposition::frameSize(m_videoComposition.renderSize),
            int(1.0 / m_videoComposition.frameDuration.seconds() + 0.5), video.matrix(), m_setting);
        std::optional<AudioTrackRenderer> audio;
        AVCodecContext *audioEncoder = nullptr;
        if (m_composition.audioTrack && !m_composition.audioTrack->segments.empty()) {
            audio.emplace(*m_composition.audioTrack);
            audioEncoder = &writer.addAudio(audio->sampleRate(), audio->layout(), m_setting);
        }
        writer.begin();

        std::atomic<bool> stop = false;
        std::exception_ptr soundFailure;
        std::thread sound;
        if (audio) {
            sound = std::thread([&] {
                try {
                    audio->run(*audioEncoder, writer, stop);
                } catch (...) {
                    soundFailure = std::current_exception();
                    stop = true;
                }
            });
        }
        try {
            video.run(videoEncoder, writer, frameTap, stop, m_written);
        } catch (...) {
            stop = true;
            if (sound.joinable())
                sound.join();
            throw;
        }
        if (sound.joinable())
            sound.join();
        if (soundFailure)
            std::rethrow_exception(soundFailure);
        writer.finish();
    } catch (const ExportFailure &failure) {
        end(Status::failed, failure.error);
        return;
    } catch (const std::exception &exception) {
        end(Status::failed, ExportError { false, QString::fromUtf8(exception.what()) });
        return;
    }
    end(Status::completed, std::nullopt);
}
