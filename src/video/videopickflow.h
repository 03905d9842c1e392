#pragma once

#include "videoeditorcontrollerdelegate.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <optional>

class Storyboard;
class VideoEditorController;
class ViewController;

/**
 * The way from a movie the user picked to its copy in the video cache: through the trimmer "Trim Video"
 * when the movie can be trimmed, straight into the cache when it cannot. A cancelled or failed trim, or a
 * failed copy, ends with nothing, and whoever started it stays as it was. One movie at a time.
 */
class VideoPickFlow : public QObject, public VideoEditorControllerDelegate
{
    Q_OBJECT
public:
    /** The cached file, or nothing. */
    using Completion = std::function<void(const std::optional<QString> &file)>;

    explicit VideoPickFlow(QObject *parent = nullptr);
    ~VideoPickFlow() override;

    /** Where the trimmer comes from; without one, every movie goes into the cache as it is. */
    const Storyboard *storyboard = nullptr;
    /** The longest part the trimmer keeps, in seconds; its own limit when unset. */
    std::optional<double> videoMaximumDuration;

    /** Starts with the picked movie; the trimmer is presented over `presenter`, which it returns to. */
    void start(const QString &path, ViewController *presenter, Completion completion);
    /** The movie into the cache as it is. */
    void cache(const QString &path, Completion completion);

    void videoEditorControllerDidSaveEditedVideoToPath(
        VideoEditorController *editor, const QString &editedVideoPath) override;
    void videoEditorControllerDidFailWithError(VideoEditorController *editor, const QString &error) override;
    void videoEditorControllerDidCancel(VideoEditorController *editor) override;

private:
    void closeTrimmer();

    QPointer<ViewController> m_presenter;
    QPointer<VideoEditorController> m_trimmer;
    Completion m_completion;
};
