#include "showbgvideosamplevc.h"

#include "applog.h"
#include "editorsession.h"
#include "navigationcontroller.h"
#include "videobackground.h"
#include "videocache.h"

ShowBGVideoSampleVC::ShowBGVideoSampleVC(QObject *parent)
    : TemplateSample(parent)
{ }

void ShowBGVideoSampleVC::load()
{
    beginRun();
    const QUrl url(resultJson ? resultJson->video_file.value_or(QString()) : QString());
    if (!url.isValid() || url.scheme().isEmpty()) {
        setState(State::Failed);
        return;
    }
    const quint64 current = run();
    VideoCache::shared().fetch(url, this, [this, current](const std::optional<QString> &file, const QString &error) {
        if (!isCurrent(current))
            return;
        if (!file) {
            AppLog::print(QStringLiteral("video cache error: ") + error);
            setState(State::Failed);
            return;
        }
        m_videoFile = QUrl::fromLocalFile(*file);
        Q_EMIT videoFileChanged();
        setState(State::Ready);
    });
}

void ShowBGVideoSampleVC::open()
{
    resultJson->is_Video = true;
    if (isCreateOwn) {
        contentJson = resultJson;
        deviceOrientation = orientationFor(*resultJson);
        // The new design plays the movie this screen has cached.
        pushEditor(QStringLiteral("EditVideoPortraitMode"), [this](EditorSession &editor) {
            editor.isCreateOwn = true;
            if (VideoBackground *video = editor.video())
                video->newVideoURL = m_videoFile;
        });
        return;
    }
    // Reached from an open video editor: it sits three places from the top, below its pickers.
    NavigationController *stack = navigationController();
    const QList<ViewController *> screens = stack ? stack->viewControllers() : QList<ViewController *>();
    if (screens.size() < 3)
        return;
    ViewController *screen = screens.at(screens.size() - 3);
    auto *editor = qobject_cast<EditorSession *>(screen);
    if (screen->identifier() != QLatin1String("EditVideoPortraitMode") || !editor || !editor->video())
        return;
    // The cached copy rather than the remote address: the design keeps a file that outlives the server's address.
    editor->video()->newVideoURL = m_videoFile;
    stack->popTo(editor);
}
