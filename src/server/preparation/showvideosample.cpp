#include "showvideosample.h"

#include "applog.h"
#include "prefixurl.h"
#include "templateresources.h"
#include "videocache.h"

ShowVideoSample::ShowVideoSample(QObject *parent)
    : TemplateSample(parent)
{ }

void ShowVideoSample::prepare()
{
    m_videoArrived = false;
    m_imagesArrived = false;
    if (resultJson->is_sample.value_or(false)) {
        finish();
        return;
    }
    const QStringList names = TemplateResources::names(*resultJson, false);
    const auto &background = resultJson->background_json;
    const QString video = background ? background->background_image.value_or(QString()) : QString();
    const quint64 current = run();
    resolveFonts([this, current, names, video] {
        if (isCurrent(current))
            preloadWithVideo(names, video);
    });
}

void ShowVideoSample::preloadWithVideo(const QStringList &names, const QString &video)
{
    const bool withVideo = !video.isEmpty();
    if (names.isEmpty() && !withVideo) {
        finish();
        return;
    }
    m_imagesArrived = names.isEmpty();
    if (!names.isEmpty())
        preload(names, [this, withVideo] {
            m_imagesArrived = true;
            finishWhenComplete(withVideo);
        });
    if (!withVideo)
        return;
    const quint64 current = run();
    VideoCache::shared().fetch(PrefixUrl::videoAddress(video), this,
        [this, current](const std::optional<QString> &file, const QString &error) {
            if (!isCurrent(current))
                return;
            if (!file) {
                AppLog::print(QStringLiteral("video cache error: ") + error);
                setState(State::Failed);
                return;
            }
            resultJson->background_json->background_image = QUrl::fromLocalFile(*file).toString();
            m_videoArrived = true;
            finishWhenComplete(true);
        });
}

void ShowVideoSample::finishWhenComplete(bool withVideo)
{
    if (state() == State::Failed || !m_imagesArrived || (withVideo && !m_videoArrived))
        return;
    finish();
}

void ShowVideoSample::finish()
{
    const std::optional<QString> cardImage = contentJson->sample_image;
    contentJson = resultJson;
    contentJson->sample_image = cardImage;
    setState(State::Ready);
}

void ShowVideoSample::open()
{
    // A stored design opened again comes as reEditJson alone.
    if (contentJson)
        contentJson->is_Video = true;
    setTitle(QString());
    pushEditor(QStringLiteral("EditVideoPortraitMode"));
}
