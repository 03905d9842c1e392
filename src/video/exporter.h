#pragma once

#include "composition.h"
#include "exporterror.h"
#include "frametap.h"
#include "quality.h"
#include "videocomposition.h"

#include <QSize>
#include <QString>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

/**
 * One export of a composition to a movie file, on a thread of its own: its status, its progress from
 * 0 to 1 (the share of frames written), and its error once it has failed. Whoever starts it joins it.
 */
class Exporter
{
public:
    enum class Status { unknown = 0, waiting = 1, exporting = 2, completed = 3, failed = 4, cancelled = 5 };

    /** Nothing when the encoders are missing, so that no export can be made. */
    [[nodiscard]] static std::unique_ptr<Exporter> make(Composition composition, VideoComposition videoComposition,
        QSize naturalSize, QString outputPath, EncoderSetting setting);
    ~Exporter();
    Exporter(const Exporter &) = delete;
    Exporter &operator=(const Exporter &) = delete;

    /** Set before the export starts. */
    std::optional<FrameTap> frameTap;

    /** Starts the export; `completionHandler` runs on the export's thread when it has ended. */
    void exportAsynchronously(std::function<void()> completionHandler);
    /** Waits at most `timeout` for the export to end; whether it has. */
    bool waitForEnd(std::chrono::milliseconds timeout);
    /** Waits for the export's thread to finish. */
    void join();

    [[nodiscard]] Status status() const { return m_status; }
    [[nodiscard]] float progress() const;
    [[nodiscard]] std::optional<ExportError> error() const;
    [[nodiscard]] const QString &outputPath() const { return m_outputPath; }

private:
    Exporter(Composition composition, VideoComposition videoComposition, QSize naturalSize, QString outputPath,
        EncoderSetting setting);

    void run();
    void end(Status status, std::optional<ExportError> error);

    Composition m_composition;
    VideoComposition m_videoComposition;
    QSize m_naturalSize;
    QString m_outputPath;
    EncoderSetting m_setting;

    std::atomic<Status> m_status = Status::unknown;
    std::atomic<int> m_written = 0;
    std::atomic<int> m_frameCount = 0;
    mutable std::mutex m_mutex;
    std::condition_variable m_ended;
    std::optional<ExportError> m_error;
    std::function<void()> m_completionHandler;
    std::thread m_thread;
};
