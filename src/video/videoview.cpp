#include "videoview.h"

#include "applog.h"
#include "apppaths.h"
#include "audiooutputs.h"
#include "videocacheexport.h"
#include "videoframerelay.h"

#include <QAudioOutput>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QFutureWatcher>
#include <QMediaPlayer>
#include <QtConcurrent/QtConcurrentRun>

namespace {

// A document names its video by a URL; a bare absolute path is taken as the file it names.
std::optional<QUrl> urlFromText(const QString &text)
{
    if (text.startsWith(QLatin1Char('/')))
        return QUrl::fromLocalFile(text);
    const QUrl url(text, QUrl::StrictMode);
    if (!url.isValid() || url.scheme().isEmpty())
        return std::nullopt;
    return url;
}

} // namespace

VideoView::VideoView(QObject *parent)
    : QObject(parent)
    , m_relay(new VideoFrameRelay(this))
{ }

VideoView::~VideoView()
{
    // The export in flight stops; its answer would find nobody.
    if (m_exportCancelled)
        *m_exportCancelled = true;
}

QObject *VideoView::videoOutput() const
{
    return m_relay->output();
}

void VideoView::setVideoOutput(QObject *output)
{
    if (m_relay->output() == output)
        return;
    m_relay->setOutput(output);
    Q_EMIT videoOutputChanged();
}

void VideoView::setVideoGravity(Qt::AspectRatioMode gravity)
{
    if (m_videoGravity == gravity)
        return;
    m_videoGravity = gravity;
    Q_EMIT videoGravityChanged();
}

void VideoView::setVideo(const QString &urlText)
{
    m_videoURL.reset();
    const std::optional<QUrl> source = urlFromText(urlText);
    if (!source)
        return;
    dropPlayer();
    if (!m_errorString.isEmpty()) {
        m_errorString.clear();
        Q_EMIT errorStringChanged();
    }
    m_url = source;
    m_player = new QMediaPlayer(this);
    m_player->setVideoSink(m_relay->sink());
    m_playerOutput = AudioOutputs::attach(m_player);
    connect(m_player, &QMediaPlayer::mediaStatusChanged, this,
        [this, player = m_player.data()](QMediaPlayer::MediaStatus status) {
            if (status == QMediaPlayer::EndOfMedia && player == m_player)
                reachTheEndOfTheVideo();
        });
    connect(m_player, &QMediaPlayer::errorOccurred, this,
        [this, player = m_player.data()](QMediaPlayer::Error, const QString &error) {
            if (player == m_player)
                playbackFailed(tr("The video cannot be played"), error);
        });
    m_player->setSource(*m_url);
    setPlayerMuted(audioURL.has_value() || m_isMuted);
    m_hasPlayerLayer = true;
    Q_EMIT videoChanged();
    setAudio();
}

void VideoView::removeVideo()
{
    m_videoURL.reset();
    audioURL.reset();
    m_url.reset();
    dropPlayer();
    dropAudioPlayer();
    if (m_hasPlayerLayer) {
        m_hasPlayerLayer = false;
        m_relay->clear();
        Q_EMIT videoChanged();
    }
}

void VideoView::dropPlayer()
{
    // An export for the earlier source must not become this one's copy.
    if (m_exportCancelled)
        *m_exportCancelled = true;
    m_exportCancelled.reset();
    m_export = nullptr;
    for (const CacheCompletion &waiting : std::exchange(m_cacheWaiting, {}))
        waiting(std::nullopt);
    if (!m_player)
        return;
    m_player->pause();
    m_player->setPosition(0);
    m_player->deleteLater();
    m_player = nullptr;
}

void VideoView::dropAudioPlayer()
{
    if (!m_audioPlayer)
        return;
    m_audioPlayer->stop();
    m_audioPlayer->deleteLater();
    m_audioPlayer = nullptr;
}

void VideoView::play()
{
    if (m_player
        && (m_player->playbackState() != QMediaPlayer::PlayingState || m_player->error() != QMediaPlayer::NoError)) {
        m_player->setPosition(0);
        m_player->play();
    }
    if (m_audioPlayer && m_audioPlayer->playbackState() != QMediaPlayer::PlayingState) {
        m_audioPlayer->setPosition(0);
        m_audioPlayer->play();
    }
}

void VideoView::reachTheEndOfTheVideo()
{
    if (!isLoop || !m_player)
        return;
    m_player->pause();
    m_player->setPosition(0);
    m_player->play();
    // The music starts again with the movie, however far it had come.
    if (m_audioPlayer) {
        m_audioPlayer->stop();
        m_audioPlayer->setPosition(0);
        m_audioPlayer->play();
    }
}

void VideoView::audioPlayerDidFinishPlaying(bool successfully)
{
    Q_UNUSED(successfully)
    if (!isLoop || !m_audioPlayer)
        return;
    m_audioPlayer->stop();
    m_audioPlayer->setPosition(0);
    m_audioPlayer->play();
}

void VideoView::setMuted(bool flag)
{
    setPlayerMuted(flag || audioURL.has_value());
    if (m_audioPlayer)
        setAudioVolume(flag ? 0.0F : 1.0F);
    if (m_isMuted != flag) {
        m_isMuted = flag;
        Q_EMIT mutedChanged();
    }
}

void VideoView::setPlayerMuted(bool muted)
{
    m_playerMuted = muted;
    if (m_playerOutput)
        m_playerOutput->setMuted(muted);
}

void VideoView::setAudioVolume(float volume)
{
    m_audioVolume = volume;
    if (m_audioOutput)
        m_audioOutput->setVolume(volume);
}

void VideoView::setAudio()
{
    if (!audioURL)
        return;
    dropAudioPlayer();
    const QUrl music = *audioURL;
    if (music.isLocalFile() && !QFileInfo(music.toLocalFile()).isReadable()) {
        playbackFailed(tr("The music cannot be played"), tr("%1 cannot be read").arg(music.toLocalFile()));
        return;
    }
    m_audioPlayer = new QMediaPlayer(this);
    m_audioOutput = AudioOutputs::attach(m_audioPlayer);
    setAudioVolume(m_isMuted ? 0.0F : 1.0F);
    connect(m_audioPlayer, &QMediaPlayer::mediaStatusChanged, this,
        [this, player = m_audioPlayer.data()](QMediaPlayer::MediaStatus status) {
            if (status == QMediaPlayer::EndOfMedia && player == m_audioPlayer)
                audioPlayerDidFinishPlaying(true);
        });
    // A music that turns out unreadable plays nothing, and the movie's sound is as it was before it.
    connect(m_audioPlayer, &QMediaPlayer::errorOccurred, this,
        [this, player = m_audioPlayer.data(), wasMuted = m_playerMuted](QMediaPlayer::Error, const QString &error) {
            if (player != m_audioPlayer)
                return;
            playbackFailed(tr("The music cannot be played"), error);
            dropAudioPlayer();
            setPlayerMuted(wasMuted);
        });
    m_audioPlayer->setSource(music);
    setPlayerMuted(true);
    m_audioPlayer->setPosition(0);
    m_audioPlayer->play();
}

void VideoView::removeAudio()
{
    audioURL.reset();
    dropAudioPlayer();
    setPlayerMuted(false);
}

void VideoView::playbackFailed(const QString &what, const QString &error)
{
    AppLog::print(what + QStringLiteral(": ") + error);
    m_errorString = what + QStringLiteral(": ") + error;
    Q_EMIT errorStringChanged();
}

void VideoView::cacheVideo(CacheCompletion completion)
{
    if (m_videoURL) {
        completion(m_videoURL);
        return;
    }
    if (m_url && m_url->toString().startsWith(QLatin1String("file"))) {
        completion(m_url);
        return;
    }
    if (!m_url) {
        completion(std::nullopt);
        return;
    }
    // A call while the copy is being made is answered by that copy.
    m_cacheWaiting.push_back(std::move(completion));
    if (m_export)
        return;
    QDir().mkpath(AppPaths::tmp());
    const QString path = AppPaths::tmp() + QLatin1Char('/') + QString::number(QDateTime::currentMSecsSinceEpoch())
        + QStringLiteral(".mov");
    m_exportCancelled = std::make_shared<std::atomic_bool>(false);
    auto *watcher = new QFutureWatcher<VideoCacheExport::Result>(this);
    m_export = watcher;
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, path] {
        watcher->deleteLater();
        if (m_export != watcher)
            return; // dropped with the source it was for
        m_export = nullptr;
        m_exportCancelled.reset();
        const VideoCacheExport::Result result = watcher->result();
        AppLog::print(QStringLiteral("cacheVideo result status: %1").arg(int(result.status)));
        AppLog::print(QStringLiteral("cacheVideo result error: %1")
                          .arg(result.error.isEmpty() ? QStringLiteral("nil") : result.error));
        if (result.status == VideoCacheExport::Status::Completed)
            m_videoURL = QUrl::fromLocalFile(path);
        for (const CacheCompletion &waiting : std::exchange(m_cacheWaiting, {}))
            waiting(m_videoURL);
    });
    watcher->setFuture(QtConcurrent::run([source = m_url->toString(), path, cancelled = m_exportCancelled] {
        return VideoCacheExport::exportMovie(source, path, *cancelled);
    }));
}
