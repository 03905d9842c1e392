#pragma once

#include "exportmediatype.h"

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QRectF>
#include <QSizeF>

#include <chrono>
#include <optional>

class EditorSession;
class ExportView;
struct Json;
class PanelModel;
class SaveVideoVC;
class Storyboard;
class VideoView;

/**
 * SAVE of a video design: the movie or GIF choice (ExportView), then the hand-over to "SaveVideoVC": a
 * waiting notice, the canvas drawn without its selection chrome over a clear background at the render
 * size, and the result screen pushed with it. quillet-tool runs the same flow without screens.
 */
class VideoExportFlow : public QObject
{
    Q_OBJECT
public:
    VideoExportFlow(EditorSession &session, VideoView &videoView, QObject *parent = nullptr);

    /** Where "ExportView" and "SaveVideoVC" come from. */
    void setStoryboard(const Storyboard *storyboard) { m_storyboard = storyboard; }
    /** The pause between the waiting notice and the drawing, so that the notice is on screen first. */
    void setNoticeDelay(std::chrono::milliseconds delay) { m_noticeDelay = delay; }

    /**
     * The size the export renders at: the document's width and height when it has both, else 1080 on
     * the longer side of the canvas frame and the other in proportion.
     */
    [[nodiscard]] static QSizeF renderSize(const Json &document, const QRectF &canvasFrame);

    /** The choice as SAVE presents it; null without a storyboard. */
    [[nodiscard]] ExportView *makeExportView();
    /** SAVE: presents the choice; its answer exports. */
    void savePressed();
    /** The choice made: the notice, then the snapshot and the result screen. */
    void exportAs(ExportMediaType type);
    /** The last choice; the editor keeps it. */
    [[nodiscard]] std::optional<ExportMediaType> mediaType() const { return m_mediaType; }

    /**
     * The canvas as the export lays it over the video, on the calling thread: nothing selected, no
     * handles, transparent where the video shows, drawn at `size`.
     */
    [[nodiscard]] QImage snapshot(const QSizeF &size);

Q_SIGNALS:
    /** The result screen is made and pushed (when there is a navigation stack). */
    void handedOver(SaveVideoVC *screen);

private:
    void handOver();

    EditorSession &m_session;
    VideoView &m_videoView;
    const Storyboard *m_storyboard = nullptr;
    std::chrono::milliseconds m_noticeDelay { 2000 };
    std::optional<ExportMediaType> m_mediaType;
    QPointer<PanelModel> m_notice;
};
