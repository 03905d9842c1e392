#include "videoeditorcontroller.h"

#include "applog.h"
#include "apppaths.h"
#include "audiooutputs.h"
#include "filmstrip.h"
#include "filmstripdecoder.h"
#include "navigationcontroller.h"
#include "videoeditorcontrollerdelegate.h"
#include "videoframerelay.h"
#include "videotrim.h"

#include <QDateTime>
#include <QDir>
#include <QMediaPlayer>
#include <QUrl>
#include <QtConcurrent/QtConcurrentRun>

#include <algorithm>

namespace {

// The part kept is never shorter than this, nor than the whole movie when that is shorter.
constexpr double shortestPart = 1.0;
constexpr int filmstripPictures = 10;
constexpr int filmstripPixels = 120;

int rateFactor(VideoEditorController::VideoQuality quality)
{
    switch (quality) {
    case VideoEditorController::TypeHigh:
        return 18;
    case VideoEditorController::TypeMedium:
        return 23;
    case VideoEditorController::TypeLow:
        return 28;
    }
    return 18;
}

} // namespace

VideoEditorController::VideoEditorController(QObject *parent)
    : ViewController(parent)
    , m_filmstrip(new Filmstrip(this))
    , m_relay(new VideoFrameRelay(this))
    , m_player(new QMediaPlayer(this))
{
    setTitle(tr("Trim Video"));
    m_player->setVideoSink(m_relay->sink());
    connect(m_player, &QMediaPlayer::playbackStateChanged, this, &VideoEditorController::playingChanged);
    connect(m_player, &QMediaPlayer::positionChanged, this, [this](qint64 position) {
        const double seconds = double(position) / 1000.0;
        // Playing stops at the right handle and waits at the left one.
        if (isPlaying() && seconds >= m_end) {
            m_player->pause();
            m_player->setPosition(qint64(m_start * 1000.0));
            showTime(m_start);
            return;
        }
        showTime(seconds);
    });
    connect(m_player, &QMediaPlayer::errorOccurred, this, [this](QMediaPlayer::Error, const QString &error) {
        AppLog::print(QStringLiteral("Trim Video cannot play %1: %2").arg(m_videoPath, error));
        setError(tr("The video cannot be played: %1").arg(error));
    });
}

VideoEditorController::~VideoEditorController()
{
    if (m_cut)
        m_cut->cancel();
}

bool VideoEditorController::canEditVideoAtPath(const QString &path)
{
    return FilmstripDecoder::probe(path).duration > 0;
}

void VideoEditorController::setVideoPath(const QString &path)
{
    if (m_videoPath == path)
        return;
    m_videoPath = path;
    m_duration = FilmstripDecoder::probe(path).duration;
    if (m_duration > 0) {
        setError({});
        m_player->setSource(QUrl::fromLocalFile(path));
        m_player->pause(); // shows the first picture
        m_filmstrip->load(path, filmstripPictures, filmstripPixels);
    } else {
        setError(tr("This video cannot be trimmed."));
    }
    Q_EMIT videoChanged();
    setRange(0, std::min(m_duration, m_maximumDuration));
    showTime(0);
}

void VideoEditorController::setVideoMaximumDuration(double seconds)
{
    if (m_maximumDuration == seconds || seconds <= 0)
        return;
    m_maximumDuration = seconds;
    setRange(m_start, std::min(m_end, m_start + seconds));
    Q_EMIT rangeChanged();
}

void VideoEditorController::setRange(double start, double end)
{
    if (m_start == start && m_end == end)
        return;
    m_start = start;
    m_end = end;
    Q_EMIT rangeChanged();
}

QString VideoEditorController::lengthText() const
{
    return tr("%1 s").arg(m_end - m_start, 0, 'f', 1);
}

bool VideoEditorController::isPlaying() const
{
    return m_player->playbackState() == QMediaPlayer::PlayingState;
}

QObject *VideoEditorController::videoOutput() const
{
    return m_relay->output();
}

void VideoEditorController::setVideoOutput(QObject *output)
{
    if (m_relay->output() == output)
        return;
    m_relay->setOutput(output);
    Q_EMIT videoOutputChanged();
}

void VideoEditorController::moveStartHandle(double seconds)
{
    if (m_duration <= 0)
        return;
    const double shortest = std::min(shortestPart, m_duration);
    const double start = std::max(std::clamp(seconds, 0.0, m_end - shortest), m_end - m_maximumDuration);
    setRange(start, m_end);
    m_player->pause();
    seek(start);
}

void VideoEditorController::moveEndHandle(double seconds)
{
    if (m_duration <= 0)
        return;
    const double shortest = std::min(shortestPart, m_duration);
    const double end = std::min(std::clamp(seconds, m_start + shortest, m_duration), m_start + m_maximumDuration);
    setRange(m_start, end);
    m_player->pause();
    seek(end);
}

void VideoEditorController::seek(double seconds)
{
    const double time = std::clamp(seconds, m_start, m_end);
    m_player->setPosition(qint64(time * 1000.0));
    showTime(time);
}

void VideoEditorController::showTime(double seconds)
{
    if (m_playhead == seconds)
        return;
    m_playhead = seconds;
    Q_EMIT playheadTimeChanged();
}

void VideoEditorController::togglePlay()
{
    if (isPlaying()) {
        m_player->pause();
        return;
    }
    if (m_duration <= 0)
        return;
    if (m_playhead < m_start || m_playhead >= m_end - 0.05)
        seek(m_start);
    // The sound device is looked for when there is something to hear, not when the screen opens.
    if (!m_player->audioOutput())
        AudioOutputs::attach(m_player);
    m_player->play();
}

void VideoEditorController::setError(const QString &error)
{
    if (m_errorString == error)
        return;
    m_errorString = error;
    Q_EMIT errorStringChanged();
}

void VideoEditorController::save()
{
    if (!canSave())
        return;
    m_player->pause();
    setError({});
    QDir().mkpath(AppPaths::tmp());
    const QString path = AppPaths::tmp() + QLatin1Char('/') + QString::number(QDateTime::currentMSecsSinceEpoch())
        + QStringLiteral(".mov");
    const VideoTrim::Request request { m_videoPath, m_start, m_end, path, rateFactor(videoQuality) };
    auto *watcher = new QFutureWatcher<QString>(this);
    m_cut = watcher;
    connect(watcher, &QFutureWatcherBase::progressValueChanged, this, [this, watcher](int value) {
        if (m_cut != watcher)
            return;
        m_progress = value / 1000.0;
        Q_EMIT progressChanged();
    });
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, path] {
        watcher->deleteLater();
        if (m_cut != watcher)
            return; // cancelled
        m_cut = nullptr;
        Q_EMIT stateChanged();
        cutFinished(path, watcher->future().resultCount() > 0 ? watcher->result() : tr("The cut stopped."));
    });
    m_progress = 0;
    Q_EMIT progressChanged();
    watcher->setFuture(QtConcurrent::run(
        [](QPromise<QString> &promise, const VideoTrim::Request &cut) {
            promise.setProgressRange(0, 1000);
            promise.addResult(VideoTrim::cut(cut, [&promise](double fraction) {
                promise.setProgressValue(int(fraction * 1000));
                return !promise.isCanceled();
            }));
        },
        request));
    Q_EMIT stateChanged();
}

void VideoEditorController::cutFinished(const QString &path, const QString &error)
{
    if (!error.isEmpty()) {
        AppLog::print(QStringLiteral("Trim Video could not cut %1: %2").arg(m_videoPath, error));
        setError(tr("The video could not be trimmed: %1").arg(error));
        if (delegate)
            delegate->videoEditorControllerDidFailWithError(this, error);
        return;
    }
    if (delegate)
        delegate->videoEditorControllerDidSaveEditedVideoToPath(this, path);
    else
        close();
}

void VideoEditorController::cancel()
{
    if (m_cut) {
        m_cut->cancel();
        m_cut = nullptr;
        Q_EMIT stateChanged();
    }
    m_player->pause();
    if (delegate)
        delegate->videoEditorControllerDidCancel(this);
    else
        close();
}

void VideoEditorController::close()
{
    if (NavigationController *navigation = navigationController())
        navigation->dismiss();
}

void VideoEditorController::viewWillDisappear()
{
    m_player->pause();
}
