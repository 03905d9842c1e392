#pragma once

#include "backgroundjson.h"

#include <QAudioOutput>
#include <QMediaPlayer>
#include <QObject>
#include <QPointer>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class VideoFrameRelay;
class VideoViewDelegate;

/**
 * The looping background movie of a video design, under its canvas, with the design's music in place of
 * the movie's own sound when one is chosen. The editors own one; VideoViewItem.qml shows its pictures.
 * `player` plays the picture and, unless a music replaces it, the sound; `audioPlayer` plays the music.
 * Playback errors are logged and kept in `errorString` for the view; without a sound device both play
 * silently. GUI thread only.
 */
class VideoView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the editor that owns it.")
    /** A video is loaded (the player's layer is there). */
    Q_PROPERTY(bool hasVideo READ hasPlayerLayer NOTIFY videoChanged)
    /** The QML VideoOutput that shows the pictures; set by VideoViewItem. */
    Q_PROPERTY(QObject *videoOutput READ videoOutput WRITE setVideoOutput NOTIFY videoOutputChanged)
    /** How the movie fills the view: fit inside, fill and crop, or stretch. */
    Q_PROPERTY(Qt::AspectRatioMode videoGravity READ videoGravity WRITE setVideoGravity NOTIFY videoGravityChanged)
    /** The sound button's state. */
    Q_PROPERTY(bool isMuted READ isMuted NOTIFY mutedChanged)
    /** The last playback error, empty while playback goes well. */
    Q_PROPERTY(QString errorString READ errorString NOTIFY errorStringChanged)
public:
    /** The local movie, or nothing when there is none to give. */
    using CacheCompletion = std::function<void(const std::optional<QUrl> &videoURL)>;

    explicit VideoView(QObject *parent = nullptr);
    ~VideoView() override;

    /** Told when the video source has changed; not owned, and cleared by its owner before it goes. */
    VideoViewDelegate *delegate = nullptr;
    /** The document's background record; its `background_image` holds the video's address. */
    std::shared_ptr<BackgroundJson> backgroundJson;
    /** Repeat at the end; the editors set it. */
    bool isLoop = false;
    /** The chosen music, a local file; empty while the video's own sound plays. setAudio() takes it as it is. */
    std::optional<QUrl> audioURL;

    /** The video source as the document names it, local or remote. */
    [[nodiscard]] const std::optional<QUrl> &url() const { return m_url; }
    /** The local copy that cacheVideo() made. */
    [[nodiscard]] const std::optional<QUrl> &videoURL() const { return m_videoURL; }
    [[nodiscard]] bool hasPlayerLayer() const { return m_hasPlayerLayer; }
    [[nodiscard]] bool isMuted() const { return m_isMuted; }
    [[nodiscard]] QString errorString() const { return m_errorString; }
    [[nodiscard]] QMediaPlayer *player() const { return m_player; }
    [[nodiscard]] QMediaPlayer *audioPlayer() const { return m_audioPlayer; }
    /** Whether the movie's own sound is silenced; kept even while no output device exists. */
    [[nodiscard]] bool isPlayerMuted() const { return m_playerMuted; }
    /** The music's volume, 0 or 1. */
    [[nodiscard]] float audioVolume() const { return m_audioVolume; }
    [[nodiscard]] QObject *videoOutput() const;
    void setVideoOutput(QObject *output);
    [[nodiscard]] Qt::AspectRatioMode videoGravity() const { return m_videoGravity; }
    void setVideoGravity(Qt::AspectRatioMode gravity);

    /**
     * Loads the movie at `urlText` in a new player, silenced while a music is chosen or the button is off,
     * and starts the chosen music. Not a URL: only the local copy is forgotten.
     */
    void setVideo(const QString &urlText);
    /** Back to no video: players stopped and dropped, sources and music forgotten. */
    void removeVideo();
    /** Starts the movie from the beginning unless it is moving, and the music likewise. */
    void play();
    /** The sound button: the movie stays silent while a music is chosen; the music's volume follows. */
    void setMuted(bool flag);
    /** Plays `audioURL` from its start in place of the movie's sound; nothing without one. */
    void setAudio();
    /** Forgets the music and gives the movie its sound back. */
    void removeAudio();
    /**
     * The movie as a local file: the earlier copy, the source itself when it is a file, else a copy
     * exported once into the temporary folder (its packets, never re-encoded). The answer is at once
     * for the first two; the copy's comes later on the GUI thread, unless this view has gone.
     */
    void cacheVideo(CacheCompletion completion);

    /** The end of the movie: with `isLoop`, the movie and the music start again together. */
    void reachTheEndOfTheVideo();
    /** The end of the music: with `isLoop` it starts again by itself. */
    void audioPlayerDidFinishPlaying(bool successfully);

Q_SIGNALS:
    void videoChanged();
    void videoOutputChanged();
    void videoGravityChanged();
    void mutedChanged();
    void errorStringChanged();

private:
    void dropPlayer();
    void dropAudioPlayer();
    void setPlayerMuted(bool muted);
    void setAudioVolume(float volume);
    void playbackFailed(const QString &what, const QString &error);

    VideoFrameRelay *const m_relay;
    QPointer<QMediaPlayer> m_player;
    QPointer<QAudioOutput> m_playerOutput;
    QPointer<QMediaPlayer> m_audioPlayer;
    QPointer<QAudioOutput> m_audioOutput;
    std::optional<QUrl> m_url;
    std::optional<QUrl> m_videoURL;
    bool m_hasPlayerLayer = false;
    bool m_isMuted = false;
    bool m_playerMuted = false;
    float m_audioVolume = 1.0F;
    Qt::AspectRatioMode m_videoGravity = Qt::KeepAspectRatio;
    QString m_errorString;

    // The export of cacheVideo() in flight, and who waits for it.
    QPointer<QObject> m_export;
    std::shared_ptr<std::atomic_bool> m_exportCancelled;
    std::vector<CacheCompletion> m_cacheWaiting;
};
