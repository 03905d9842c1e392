#include "videopickflow.h"

#include "applog.h"
#include "navigationcontroller.h"
#include "storyboard.h"
#include "videocache.h"
#include "videoeditorcontroller.h"

VideoPickFlow::VideoPickFlow(QObject *parent)
    : QObject(parent)
{ }

VideoPickFlow::~VideoPickFlow()
{
    // The trimmer may outlive this flow on the stack; it must not call back into it.
    if (m_trimmer)
        m_trimmer->delegate = nullptr;
}

void VideoPickFlow::start(const QString &path, ViewController *presenter, Completion completion)
{
    NavigationController *stack = presenter ? presenter->navigationController() : nullptr;
    if (!storyboard || !stack || !VideoEditorController::canEditVideoAtPath(path)) {
        cache(path, std::move(completion));
        return;
    }
    auto *trimmer
        = qobject_cast<VideoEditorController *>(storyboard->instantiate(QStringLiteral("VideoEditorController")));
    if (!trimmer) {
        cache(path, std::move(completion));
        return;
    }
    m_presenter = presenter;
    m_completion = std::move(completion);
    m_trimmer = trimmer;
    trimmer->delegate = this;
    trimmer->videoQuality = VideoEditorController::TypeHigh;
    if (videoMaximumDuration)
        trimmer->setVideoMaximumDuration(*videoMaximumDuration);
    trimmer->setVideoPath(path);
    stack->present(trimmer);
}

void VideoPickFlow::cache(const QString &path, Completion completion)
{
    VideoCache::shared().storeFile(
        path, this, [completion = std::move(completion)](const std::optional<QString> &file, const QString &error) {
            if (!file)
                AppLog::print(QStringLiteral("video cache error: ") + error);
            completion(file);
        });
}

void VideoPickFlow::videoEditorControllerDidSaveEditedVideoToPath(
    VideoEditorController *editor, const QString &editedVideoPath)
{
    Q_UNUSED(editor)
    Completion completion = std::exchange(m_completion, {});
    closeTrimmer();
    if (completion)
        cache(editedVideoPath, std::move(completion));
}

void VideoPickFlow::videoEditorControllerDidFailWithError(VideoEditorController *editor, const QString &error)
{
    AppLog::print(QStringLiteral("videoEditorController didFailWithError: ") + error);
    videoEditorControllerDidCancel(editor);
}

void VideoPickFlow::videoEditorControllerDidCancel(VideoEditorController *editor)
{
    Q_UNUSED(editor)
    AppLog::print(QStringLiteral("videoEditorControllerDidCancel"));
    Completion completion = std::exchange(m_completion, {});
    closeTrimmer();
    if (completion)
        completion(std::nullopt);
}

void VideoPickFlow::closeTrimmer()
{
    if (!m_trimmer)
        return;
    m_trimmer->delegate = nullptr;
    NavigationController *stack = m_trimmer->navigationController();
    if (stack && m_presenter)
        stack->popTo(m_presenter, false);
    m_trimmer = nullptr;
}
