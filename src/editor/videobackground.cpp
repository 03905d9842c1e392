#include "videobackground.h"

#include "editorsession.h"
#include "saveflow.h"
#include "videopickflow.h"
#include "videoview.h"

namespace {

// A document's address field when it holds a URL.
std::optional<QUrl> urlIn(const std::optional<QString> &text)
{
    if (!text || text->isEmpty())
        return std::nullopt;
    const QUrl url(*text, QUrl::StrictMode);
    if (!url.isValid() || url.scheme().isEmpty())
        return std::nullopt;
    return url;
}

} // namespace

VideoBackground::VideoBackground(EditorSession &session)
    : QObject(&session)
    , videoView(new VideoView(this))
    , m_session(session)
    , m_pickFlow(new VideoPickFlow(this))
{
    videoView->delegate = this;
    connect(videoView, &VideoView::videoChanged, this, &VideoBackground::soundChanged);
    connect(videoView, &VideoView::mutedChanged, this, &VideoBackground::soundChanged);
}

VideoBackground::~VideoBackground()
{
    videoView->delegate = nullptr;
}

void VideoBackground::setStoryboard(const Storyboard *storyboard)
{
    m_pickFlow->storyboard = storyboard;
}

void VideoBackground::loadDocument()
{
    const std::shared_ptr<Json> &document = m_session.masterJson;
    // The music is set before the movie, which starts it and stays silent under it.
    videoView->audioURL = document && document->audio_json ? urlIn(document->audio_json->audio_url) : std::nullopt;
    const std::shared_ptr<BackgroundJson> background = document ? document->background_json : nullptr;
    const std::optional<QUrl> movie = background ? urlIn(background->background_image) : std::nullopt;
    if (movie) {
        videoView->backgroundJson = background;
        videoView->setVideo(movie->toString());
        videoView->isLoop = true;
        videoView->play();
    } else {
        videoView->removeVideo();
    }
    // A movie handed over before the document was open replaces the document's.
    applyNewVideo();
}

void VideoBackground::applyNewVideo()
{
    if (!newVideoURL || !m_session.masterJson)
        return;
    videoView->setVideo(newVideoURL->toString());
    if (videoView->delegate)
        videoView->delegate->videoViewDidChangeVideo(videoView);
    videoView->isLoop = true;
    videoView->play();
    newVideoURL.reset();
}

bool VideoBackground::soundEnabled() const
{
    return videoView->url().has_value();
}

bool VideoBackground::soundMuted() const
{
    return videoView->isMuted();
}

void VideoBackground::soundPressed()
{
    if (soundEnabled())
        videoView->setMuted(!videoView->isMuted());
}

void VideoBackground::videoPicked(const QString &path)
{
    m_pickFlow->start(path, &m_session, [this](const std::optional<QString> &file) { takeCachedFile(file); });
}

void VideoBackground::replaceWithFile(const QString &path)
{
    m_pickFlow->cache(path, [this](const std::optional<QString> &file) { takeCachedFile(file); });
}

void VideoBackground::takeCachedFile(const std::optional<QString> &file)
{
    if (file) {
        newVideoURL = QUrl::fromLocalFile(*file);
        applyNewVideo();
    }
    Q_EMIT replaceFinished(file.has_value());
}

void VideoBackground::audioLibraryDidPick(const std::optional<QUrl> &audioURL)
{
    const std::shared_ptr<Json> &document = m_session.masterJson;
    if (audioURL) {
        videoView->audioURL = *audioURL;
        videoView->setAudio();
        if (document) {
            if (!document->audio_json)
                document->audio_json = std::make_shared<AudioJson>();
            document->audio_json->audio_url = audioURL->toString(QUrl::FullyEncoded);
        }
    } else {
        videoView->removeAudio();
        if (document)
            document->audio_json.reset();
    }
    m_session.saving().automaticSave();
}

void VideoBackground::videoViewDidChangeVideo(VideoView *view)
{
    const std::shared_ptr<Json> &document = m_session.masterJson;
    if (!document || !view->url())
        return;
    if (!document->background_json)
        document->background_json = std::make_shared<BackgroundJson>();
    document->background_json->background_image = view->url()->toString(QUrl::FullyEncoded);
    view->backgroundJson = document->background_json;
    m_session.saving().automaticSave();
}
