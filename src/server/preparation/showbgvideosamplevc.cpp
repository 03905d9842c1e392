#include "showbgvideosamplevc.h"

#include "applog.h"
#include "editorsession.h"
#include "navigationcontroller.h"
#include "videocache.h"

#include <QVariant>

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
        pushEditor(QStringLiteral("EditVideoPortraitMode"), [](EditorSession &editor) { editor.isCreateOwn = true; });
        return;
    }
    // Reached from an open video editor: it sits three places from the top, below its pickers.
    NavigationController *stack = navigationController();
    const QList<ViewController *> screens = stack ? stack->viewControllers() : QList<ViewController *>();
    if (screens.size() < 3)
        return;
    ViewController *editor = screens.at(screens.size() - 3);
    if (editor->identifier() != QLatin1String("EditVideoPortraitMode"))
        return;
    editor->setProperty("newVideoURL", QUrl(resultJson->video_file.value_or(QString())));
    stack->popTo(editor);
}
