#pragma once

#include <QByteArray>
#include <QFutureWatcher>
#include <QImage>
#include <QObject>
#include <QPointer>

#include <chrono>

class AlertModel;
class EditorSession;
class PanelModel;
class Storyboard;

/**
 * SAVE of an image design: the size choice, the drawing of the canvas at the document's own size
 * (twice that for HD) into the session's `saveImg`, the session's save of the design with its preview
 * and thumbnail, and the result screen "SaveImageVC". It works on an open editor through the session's
 * public interface; the drawing and the encoding run off the GUI thread behind a notice that shows
 * their progress. quillet-tool runs the same flow without screens.
 */
class ImageSaveFlow : public QObject
{
    Q_OBJECT
public:
    /** What SAVE drew: the picture and its PNG data, as the album receives it. */
    struct Rendered
    {
        QImage picture;
        QByteArray pngData;
    };

    explicit ImageSaveFlow(EditorSession &session, QObject *parent = nullptr);
    ~ImageSaveFlow() override;

    /** Where "SaveImageVC" comes from; without one a save ends at `saved`. */
    void setStoryboard(const Storyboard *storyboard) { m_storyboard = storyboard; }
    /** The pause between the notice and the drawing, so that the notice is on screen first. */
    void setNoticeDelay(std::chrono::milliseconds delay) { m_noticeDelay = delay; }

    /** A side of the design as the size choice prints it: "%.0f" when whole, its full decimal form otherwise. */
    [[nodiscard]] static QString sizeText(double value);
    /**
     * The size question for the document's W and H: the "Select option" sheet, or above 2048 on a
     * side the alert without HD. Null when either side is absent.
     */
    [[nodiscard]] AlertModel *makeSizeChoice();
    /** SAVE: presents the size question; its answer saves. */
    void savePressed();
    /** Saves at the chosen scale: notice, drawing, the user's save of the design, result screen. */
    void save(bool isHD);
    [[nodiscard]] bool isSaving() const { return m_saving; }

    /** The canvas drawn as SAVE draws it, on the calling thread. */
    [[nodiscard]] QImage render(bool isHD);

Q_SIGNALS:
    /** The design is stored with its preview (and the result screen pushed, when there is a storyboard). */
    void saved(const ImageSaveFlow::Rendered &rendered);

private:
    void startRender(bool isHD);
    void finishSave(const Rendered &rendered);
    void showResult(const Rendered &rendered);

    EditorSession &m_session;
    const Storyboard *m_storyboard = nullptr;
    std::chrono::milliseconds m_noticeDelay { 2000 };
    bool m_saving = false;
    QPointer<PanelModel> m_notice;
    QFutureWatcher<Rendered> m_render;
};
