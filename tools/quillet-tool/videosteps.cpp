// quillet-tool edit on a video design: the music that the audio library hands over, and a movie in place
// of the background movie.
#include "editsteps.h"

#include "editorsession.h"
#include "videobackground.h"
#include "videoview.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QUrl>

namespace VideoSteps {

namespace {

using ordered_json = nlohmann::ordered_json;

// A step's file: a path on this machine, or a URL as a document would hold it.
QUrl fileUrl(const std::string &text)
{
    const QString value = QString::fromStdString(text);
    if (value.contains(QLatin1String("://")))
        return QUrl(value);
    return QUrl::fromLocalFile(QFileInfo(value).absoluteFilePath());
}

VideoBackground &videoOf(EditorSession &session, const QString &op)
{
    if (!session.video())
        throw EditStepError { QStringLiteral("\"%1\" takes a video design (\"is_Video\": true)").arg(op) };
    return *session.video();
}

// {"op":"music","url":PATH}: the library's chosen sound; {"op":"music","url":null}: the video's own sound.
void music(VideoBackground &video, const ordered_json &step)
{
    const auto url = step.find("url");
    if (url == step.end() || (!url->is_null() && !url->is_string()))
        throw EditStepError { QStringLiteral("\"music\" needs \"url\": a file, or null for the video's own sound") };
    video.audioLibraryDidPick(url->is_null() ? std::nullopt : std::optional<QUrl>(fileUrl(url->get<std::string>())));
}

// {"op":"replaceVideo","path":PATH}: the movie is cached and played in place of the old one.
void replaceVideo(VideoBackground &video, const ordered_json &step)
{
    const auto path = step.find("path");
    if (path == step.end() || !path->is_string())
        throw EditStepError { QStringLiteral("\"replaceVideo\" needs a text \"path\"") };
    const QString file = QFileInfo(QString::fromStdString(path->get<std::string>())).absoluteFilePath();
    if (!QFileInfo(file).isFile())
        throw EditStepError { QStringLiteral("no movie at %1").arg(file) };
    bool replaced = false;
    QEventLoop loop;
    QObject::connect(&video, &VideoBackground::replaceFinished, &loop, [&](bool done) {
        replaced = done;
        loop.quit();
    });
    video.replaceWithFile(file);
    loop.exec();
    if (!replaced)
        throw EditStepError { QStringLiteral("the movie could not be copied into the video cache") };
}

ordered_json urlText(const std::optional<QUrl> &url)
{
    return url ? ordered_json(url->toString(QUrl::FullyEncoded).toStdString()) : ordered_json(nullptr);
}

} // namespace

bool run(EditorSession &session, const QString &op, const ordered_json &step)
{
    if (op == QLatin1String("music"))
        music(videoOf(session, op), step);
    else if (op == QLatin1String("replaceVideo"))
        replaceVideo(videoOf(session, op), step);
    else
        return false;
    return true;
}

ordered_json state(const EditorSession &session)
{
    const VideoView *view = session.videoView();
    if (!view)
        return nullptr;
    ordered_json video = ordered_json::object();
    video["url"] = urlText(view->url());
    video["audioURL"] = urlText(view->audioURL);
    video["playerMuted"] = view->isPlayerMuted();
    video["soundEnabled"] = session.soundEnabled();
    video["soundMuted"] = session.soundMuted();
    return video;
}

} // namespace VideoSteps
