#pragma once

#include "exportmediatype.h"
#include "json.h"
#include "localnotificationcenter.h"
#include "panelmodel.h"
#include "saveresultvc.h"
#include "videoexport.h"

#include <QImage>
#include <QPointer>
#include <QSizeF>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

class EditorSession;
class VideoView;

/**
 * The export of a video design and its result, titled "Success": the export starts as the screen
 * loads, with its progress over the media area; then the preview, which plays in place, full screen,
 * share, delete of the album's newest asset, rate and home. The export itself (VideoExport) goes on
 * when the user leaves this screen.
 */
class SaveVideoVC : public SaveResultVC
{
    Q_OBJECT
    /** The design's preview, once stored; before, the canvas snapshot. */
    Q_PROPERTY(QImage picture READ picture NOTIFY resultChanged)
    Q_PROPERTY(bool playButtonVisible READ playButtonVisible NOTIFY resultChanged)
    Q_PROPERTY(QUrl videoURL READ videoURLValue NOTIFY resultChanged)
    Q_PROPERTY(QUrl gifURL READ gifURLValue NOTIFY resultChanged)
    /** The movie or GIF plays in place of the picture. */
    Q_PROPERTY(bool playing READ isPlaying NOTIFY playingChanged)
    /** The export's progress or the GIF's waiting panel, drawn over the media area; null when none. */
    Q_PROPERTY(PanelModel *progressPanel READ progressPanel NOTIFY progressPanelChanged)
public:
    explicit SaveVideoVC(QObject *parent = nullptr);
    ~SaveVideoVC() override;

    std::optional<ExportMediaType> mediaType;
    /** The render size. */
    std::optional<QSizeF> ratioSize;
    QImage overlayImage;
    /** The editor's video view, with the source video and the chosen music. */
    QPointer<VideoView> videoView;
    std::shared_ptr<Json> masterJson;
    /** The editor that opened this screen; the design's row is written back into it. */
    QPointer<EditorSession> superVC;
    /** Where the movie, the GIF and the preview go; Documents unless set. */
    QString directory;

    void setNotificationCenter(LocalNotificationCenter *center) { m_notifications = center; }
    /** Whether the application is in front; the GUI application's state unless set. */
    void setApplicationActive(std::function<bool()> isActive) { m_isActive = std::move(isActive); }

    [[nodiscard]] QImage picture() const { return m_picture; }
    [[nodiscard]] bool playButtonVisible() const { return m_playButtonVisible; }
    [[nodiscard]] const std::optional<QUrl> &videoURL() const { return m_videoURL; }
    [[nodiscard]] const std::optional<QUrl> &gifURL() const { return m_gifURL; }
    [[nodiscard]] bool isPlaying() const { return m_playing; }
    [[nodiscard]] PanelModel *progressPanel() const { return m_panel; }
    /** The export still running for this screen, or null. */
    [[nodiscard]] VideoExport *videoExport() const { return m_export; }

    /** Starts the export with the sound on. */
    void viewDidLoad() override;

    Q_INVOKABLE void playClicked();
    Q_INVOKABLE void btnFullScreenClicked();
    void shareClicked() override;
    Q_INVOKABLE void deleteClicked();

Q_SIGNALS:
    void resultChanged();
    void playingChanged();
    void progressPanelChanged();
    /** The export has taken its last step (stored and in the album, or stopped short). */
    void exportFinished();

private:
    [[nodiscard]] QUrl videoURLValue() const { return m_videoURL.value_or(QUrl()); }
    [[nodiscard]] QUrl gifURLValue() const { return m_gifURL.value_or(QUrl()); }
    [[nodiscard]] VideoExport *makeExport(const QUrl &videoURL);
    void stageChanged(VideoExport::Stage stage);
    void showPanel(PanelModel *panel);
    void showResult(const QImage &picture);
    [[nodiscard]] std::optional<QUrl> resultURL() const;

    LocalNotificationCenter *m_notifications = nullptr;
    std::function<bool()> m_isActive;
    QPointer<VideoExport> m_export;
    QImage m_picture;
    bool m_playButtonVisible = false;
    std::optional<QUrl> m_videoURL;
    std::optional<QUrl> m_gifURL;
    bool m_playing = false;
    PanelModel *m_panel = nullptr;
};
