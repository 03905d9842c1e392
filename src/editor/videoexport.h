#pragma once

#include "exportmediatype.h"
#include "json.h"
#include "localnotificationcenter.h"
#include "navigationcontroller.h"
#include "objectid.h"
#include "photoalbum.h"

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QSizeF>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

class EditorSession;
class GifFrames;

/**
 * One export of a video design after the movie or GIF choice: the merge of the canvas over the video
 * (again without sound when the merge advises it), the GIF made from the frames the merge passes on,
 * the preview, the store of the design, the copy into the album and the notice when the application
 * is in the background. It goes on when its screen has gone, as the platform's background task lets
 * an export go on, and deletes itself after its last step. GUI thread.
 */
class VideoExport : public QObject
{
    Q_OBJECT
public:
    enum class Stage { Started, Exporting, Retrying, Converting, Stored, InAlbum, Finished };
    Q_ENUM(Stage)

    struct Request
    {
        ExportMediaType mediaType = ExportMediaType::Video;
        /** The render size; required for a GIF. */
        std::optional<QSizeF> ratioSize;
        /** The canvas without its video, transparent where the video shows. */
        QImage overlayImage;
        /** The video as a local file. */
        QUrl videoURL;
        /** The music that replaces the video's sound. */
        std::optional<QUrl> audioURL;
        std::shared_ptr<Json> masterJson;
        /** Where the movie, the GIF and the preview go. */
        QString directory;
    };

    /** The design is stored through `session`'s store and its row written back there, while it exists. */
    VideoExport(Request request, EditorSession *session, QObject *parent = nullptr);
    ~VideoExport() override;

    void setNavigationController(NavigationController *navigation) { m_navigation = navigation; }
    void setPhotoAlbum(const PhotoAlbum &album) { m_album = album; }
    void setNotificationCenter(LocalNotificationCenter *center) { m_notifications = center; }
    /** Whether the application is in front; its state on the GUI application unless set. */
    void setApplicationActive(std::function<bool()> isActive) { m_isActive = std::move(isActive); }

    /** Runs the export with the sound, then the rest of the steps. */
    void start();
    /** No video to work on: the design is stored with `picture` as its preview and no movie. */
    void storeWithoutVideo(const QImage &picture);

    [[nodiscard]] Stage stage() const { return m_stage; }
    [[nodiscard]] const std::optional<QUrl> &videoURL() const { return m_videoURL; }
    [[nodiscard]] const std::optional<QUrl> &gifURL() const { return m_gifURL; }
    [[nodiscard]] const std::optional<ObjectId> &objectId() const { return m_objectId; }

    /** The body of the notice when the export ends in the background. */
    [[nodiscard]] static QString noticeBody(bool isVideo);
    static constexpr const char *noticeIdentifier = "exportReminder";

Q_SIGNALS:
    void stageChanged(VideoExport::Stage stage);
    /** The merge's progress, 0 to 1, on the GUI thread. */
    void progress(float value);
    /** The merge or the GIF ended; the panel goes. */
    void workEnded();
    /** The design is stored; `picture` is its preview. */
    void stored(const QImage &picture);
    /** The album cannot be written. */
    void albumDenied();
    void albumCopied(const QString &file);
    /** Nothing more happens; the export deletes itself next. */
    void finished();

private:
    void runMerge(bool muted);
    void mergeEnded(const std::optional<QUrl> &url, std::optional<bool> retryMuted);
    void makeGif();
    void gifEnded(const std::optional<QUrl> &gif);
    /** Draws the preview off the GUI thread, writes it into Documents, then stores the design. */
    void storeWith(std::function<QImage()> picture, const std::optional<QUrl> &resultURL);
    void store(const QImage &picture, const QString &sampleImage, const std::optional<QUrl> &resultURL);
    void copyToAlbum();
    void finishBackgroundWork();
    void setStage(Stage stage);
    void requestReview();
    void finish();

    Request m_request;
    QPointer<EditorSession> m_session;
    QPointer<NavigationController> m_navigation;
    PhotoAlbum m_album { QStringLiteral("Quillet") };
    LocalNotificationCenter *m_notifications = nullptr;
    std::function<bool()> m_isActive;
    Stage m_stage = Stage::Started;
    std::shared_ptr<GifFrames> m_gifFrames;
    std::optional<QUrl> m_movieURL; // the merged movie, also for a GIF
    std::optional<QUrl> m_videoURL;
    std::optional<QUrl> m_gifURL;
    std::optional<ObjectId> m_objectId;
};
