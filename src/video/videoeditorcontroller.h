#pragma once

#include "viewcontroller.h"

#include <QFutureWatcher>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

class Filmstrip;
class QMediaPlayer;
class VideoEditorControllerDelegate;
class VideoFrameRelay;

/**
 * "Trim Video": the trimmer over a movie file, with its filmstrip, two handles that choose the part to
 * keep (at most `videoMaximumDuration` seconds, at least one), a play head, Cancel and Save. Save cuts
 * the part into a new movie in the temporary folder (VideoTrim: exact to the picture) and hands its path
 * to the delegate; a screen without a delegate closes itself.
 */
class VideoEditorController : public ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the storyboard.")
    /** The movie to trim; set by the opener. */
    Q_PROPERTY(QString videoPath READ videoPath WRITE setVideoPath NOTIFY videoChanged)
    /** The longest part that may be kept, in seconds; ten minutes unless the opener says less. */
    Q_PROPERTY(double videoMaximumDuration READ videoMaximumDuration WRITE setVideoMaximumDuration NOTIFY rangeChanged)
    /** The movie's length in seconds; 0 when it cannot be trimmed. */
    Q_PROPERTY(double duration READ duration NOTIFY videoChanged)
    Q_PROPERTY(double startTime READ startTime NOTIFY rangeChanged)
    Q_PROPERTY(double endTime READ endTime NOTIFY rangeChanged)
    /** The length of the part kept, as the bar shows it ("5.5 s"). */
    Q_PROPERTY(QString lengthText READ lengthText NOTIFY rangeChanged)
    Q_PROPERTY(double playheadTime READ playheadTime NOTIFY playheadTimeChanged)
    Q_PROPERTY(bool playing READ isPlaying NOTIFY playingChanged)
    Q_PROPERTY(Filmstrip *filmstrip READ filmstrip CONSTANT)
    /** The QML VideoOutput that shows the movie. */
    Q_PROPERTY(QObject *videoOutput READ videoOutput WRITE setVideoOutput NOTIFY videoOutputChanged)
    Q_PROPERTY(bool canSave READ canSave NOTIFY stateChanged)
    Q_PROPERTY(bool saving READ isSaving NOTIFY stateChanged)
    /** The fraction of the cut done while saving. */
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    /** Why the movie cannot be shown or cut; empty while all goes well. */
    Q_PROPERTY(QString errorString READ errorString NOTIFY errorStringChanged)
public:
    /** The quality of what the cut encodes again. */
    enum VideoQuality { TypeHigh = 0, TypeMedium = 1, TypeLow = 2 };
    Q_ENUM(VideoQuality)

    explicit VideoEditorController(QObject *parent = nullptr);
    ~VideoEditorController() override;

    /** Whether the file is a movie whose picture can be decoded, and so trimmed. */
    [[nodiscard]] static bool canEditVideoAtPath(const QString &path);

    /** Told of the outcome; not owned: the screen that presents the trimmer outlives it. */
    VideoEditorControllerDelegate *delegate = nullptr;
    VideoQuality videoQuality = TypeHigh;

    [[nodiscard]] QString videoPath() const { return m_videoPath; }
    void setVideoPath(const QString &path);
    [[nodiscard]] double videoMaximumDuration() const { return m_maximumDuration; }
    void setVideoMaximumDuration(double seconds);
    [[nodiscard]] double duration() const { return m_duration; }
    [[nodiscard]] double startTime() const { return m_start; }
    [[nodiscard]] double endTime() const { return m_end; }
    [[nodiscard]] QString lengthText() const;
    [[nodiscard]] double playheadTime() const { return m_playhead; }
    [[nodiscard]] bool isPlaying() const;
    [[nodiscard]] Filmstrip *filmstrip() const { return m_filmstrip; }
    [[nodiscard]] QObject *videoOutput() const;
    void setVideoOutput(QObject *output);
    [[nodiscard]] bool canSave() const { return m_duration > 0 && !isSaving(); }
    [[nodiscard]] bool isSaving() const { return m_cut != nullptr; }
    [[nodiscard]] double progress() const { return m_progress; }
    [[nodiscard]] QString errorString() const { return m_errorString; }

    /** Moves the left handle; the part keeps its shortest and longest lengths. The picture follows it. */
    Q_INVOKABLE void moveStartHandle(double seconds);
    /** Moves the right handle, likewise. */
    Q_INVOKABLE void moveEndHandle(double seconds);
    /** Moves the play head within the part kept. */
    Q_INVOKABLE void seek(double seconds);
    /** Plays the part kept from the play head, or pauses. */
    Q_INVOKABLE void togglePlay();
    Q_INVOKABLE void cancel();
    Q_INVOKABLE void save();

    void viewWillDisappear() override;

Q_SIGNALS:
    void videoChanged();
    void rangeChanged();
    void playheadTimeChanged();
    void playingChanged();
    void videoOutputChanged();
    void stateChanged();
    void progressChanged();
    void errorStringChanged();

private:
    void setRange(double start, double end);
    void showTime(double seconds);
    void setError(const QString &error);
    void cutFinished(const QString &path, const QString &error);
    void close();

    QString m_videoPath;
    double m_maximumDuration = 600.0;
    double m_duration = 0;
    double m_start = 0;
    double m_end = 0;
    double m_playhead = 0;
    double m_progress = 0;
    QString m_errorString;
    Filmstrip *const m_filmstrip;
    VideoFrameRelay *const m_relay;
    QMediaPlayer *const m_player;
    QPointer<QFutureWatcher<QString>> m_cut;
};
