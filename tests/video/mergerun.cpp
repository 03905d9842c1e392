#include "mergerun.h"

#include <QCoreApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <mutex>

namespace {

bool onGuiThread()
{
    return QThread::currentThread() == QCoreApplication::instance()->thread();
}

} // namespace

MergeRun MergeRun::start(const MergeConfiguration &configuration, const QString &video, std::optional<QSizeF> size,
    bool muted, const std::optional<QString> &audio, const QImage &overlay, std::optional<FrameTap> tap)
{
    // Shared with the callbacks, which may outlive a test that gave up waiting.
    struct State
    {
        std::mutex mutex;
        MergeRun run;
        bool inCall = true;
        bool done = false;
    };
    auto state = std::make_shared<State>();
    std::optional<MediaAsset> music;
    if (audio)
        music.emplace(*audio);
    Merge(configuration)
        .overlayVideo(
            MediaAsset(video), size, muted, music, overlay,
            [state](const std::optional<QUrl> &url, std::optional<bool> retry) {
                const std::lock_guard lock(state->mutex);
                state->run.completedInCall = state->inCall;
                state->run.completedOnGuiThread = onGuiThread();
                state->run.url = url;
                state->run.retryMuted = retry;
                state->done = true;
            },
            [state](float value) {
                const std::lock_guard lock(state->mutex);
                state->run.progress.push_back(value);
                state->run.progressOffGuiThread = state->run.progressOffGuiThread && !onGuiThread();
            },
            std::move(tap));
    {
        const std::lock_guard lock(state->mutex);
        state->inCall = false;
    }
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            const std::lock_guard lock(state->mutex);
            return state->done;
        },
        120000));
    const std::lock_guard lock(state->mutex);
    return state->run;
}
