#pragma once

#include "audiolibraryreceiver.h"
#include "videoviewdelegate.h"

#include <QObject>
#include <QString>
#include <QUrl>

#include <optional>

class EditorSession;
class Storyboard;
class VideoPickFlow;
class VideoView;

/**
 * What the video editors have on top of the image editor: the looping background movie under the canvas
 * (its address is the document's `background_image`), the sound button, the music handed over by the
 * audio library (kept in `audio_json`), and the replacement of the movie by one the user picked, trimmed
 * and cached. Part of one EditorSession; GUI thread only.
 */
class VideoBackground : public QObject, public VideoViewDelegate, public AudioLibraryReceiver
{
    Q_OBJECT
public:
    explicit VideoBackground(EditorSession &session);
    ~VideoBackground() override;

    VideoView *const videoView;
    /** A movie picked elsewhere (a stock video, the new-design picker), played when the editor appears. */
    std::optional<QUrl> newVideoURL;

    void setStoryboard(const Storyboard *storyboard);

    /** The document's movie and music, once the document is open; no movie in it removes the video. */
    void loadDocument();
    /**
     * Plays `newVideoURL` in place of the movie, writes it into the document, and forgets it; kept until
     * the document is open.
     */
    void applyNewVideo();

    /** The sound button is enabled while a movie is loaded. */
    [[nodiscard]] bool soundEnabled() const;
    [[nodiscard]] bool soundMuted() const;
    /** The sound button: the movie's sound, or the music's volume while a music is chosen, on or off. */
    void soundPressed();

    /** The gallery's movie: trimmed when it can be, cached, then played in place of the movie. */
    void videoPicked(const QString &path);
    /** A movie that needs no trimming: cached, then played in place of the movie. */
    void replaceWithFile(const QString &path);

    void audioLibraryDidPick(const std::optional<QUrl> &audioURL) override;
    void videoViewDidChangeVideo(VideoView *view) override;

Q_SIGNALS:
    /** The sound button's state may have changed. */
    void soundChanged();
    /** A picked movie has reached its end: played in place of the old one, or dropped. */
    void replaceFinished(bool replaced);

private:
    void takeCachedFile(const std::optional<QString> &file);

    EditorSession &m_session;
    VideoPickFlow *const m_pickFlow;
};
