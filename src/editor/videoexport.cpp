#include "videoexport.h"

#include "applog.h"
#include "designsaver.h"
#include "designstore.h"
#include "editorsession.h"
#include "frameimage.h"
#include "gifmaker.h"
#include "mediaasset.h"
#include "merge.h"
#include "moviestills.h"
#include "previewwriter.h"
#include "reviewprompt.h"
#include "saveflow.h"
#include "saveresultvc.h"

#include <QDateTime>
#include <QFutureWatcher>
#include <QGuiApplication>
#include <QtConcurrent>

#include <cmath>
#include <utility>

namespace {

struct Preview
{
    QImage picture;
    QString fileName;
};

/** The picture shown at the half of a movie's duration, truncated to a whole second. */
QImage thumbnailOf(const QString &movie)
{
    MovieStills stills(movie);
    if (!stills.isOpen() || std::isnan(stills.duration())) {
        AppLog::print(QStringLiteral("error: cannot read the movie %1 for its thumbnail").arg(movie));
        return {};
    }
    QImage thumbnail;
    const double time = std::trunc(stills.duration() / 2);
    stills.picturesAt({ time },
        [&thumbnail](int, av::Frame frame) { thumbnail = frameToImage(*frame, QSize(frame->width, frame->height)); });
    if (thumbnail.isNull())
        AppLog::print(QStringLiteral("error: no picture at %1 s of %2").arg(time).arg(movie));
    return thumbnail;
}

} // namespace

VideoExport::VideoExport(Request request, EditorSession *session, QObject *parent)
    : QObject(parent)
    , m_request(std::move(request))
    , m_session(session)
    , m_notifications(&LocalNotificationCenter::current())
    , m_isActive([] { return QGuiApplication::applicationState() == Qt::ApplicationActive; })
{
    if (session)
        m_objectId = session->objectId;
}

VideoExport::~VideoExport() = default;

QString VideoExport::noticeBody(bool isVideo)
{
    return isVideo ? tr("Exported your Video successfully.") : tr("Exported your Gif successfully.");
}

void VideoExport::start()
{
    runMerge(false);
}

void VideoExport::setStage(Stage stage)
{
    m_stage = stage;
    Q_EMIT stageChanged(stage);
}

void VideoExport::requestReview()
{
    ReviewPrompt::requestReview(m_navigation);
}

void VideoExport::runMerge(bool muted)
{
    setStage(muted ? Stage::Retrying : Stage::Exporting);
    const Merge merge({ 30, m_request.directory, Quality::high, Placement::stretchFit() });
    std::optional<MediaAsset> audio;
    if (m_request.audioURL)
        audio.emplace(m_request.audioURL->toLocalFile());
    std::optional<FrameTap> tap;
    if (m_request.mediaType == ExportMediaType::GIF && m_request.ratioSize) {
        // The GIF's frames are taken as the merge composites them, before the movie's encoding loses detail.
        m_gifFrames = std::make_shared<GifFrames>();
        tap = GifMaker(QString(), GifMaker::sizeFor(*m_request.ratioSize)).frameTap(m_gifFrames);
    }
    // Queued to this export, which lives until the merge has completed.
    auto report = [this](float value) {
        QMetaObject::invokeMethod(
            this, [this, value] { Q_EMIT progress(value); }, Qt::QueuedConnection);
    };
    merge.overlayVideo(
        MediaAsset(m_request.videoURL.toLocalFile()), m_request.ratioSize, muted, audio, m_request.overlayImage,
        // Queued, so that it runs on this export's thread even when the merge's call comes from elsewhere
        // (as it does once the application is shutting down).
        [this](const std::optional<QUrl> &url, std::optional<bool> retryMuted) {
            QMetaObject::invokeMethod(
                this, [this, url, retryMuted] { mergeEnded(url, retryMuted); }, Qt::QueuedConnection);
        },
        report, tap);
}

void VideoExport::mergeEnded(const std::optional<QUrl> &url, std::optional<bool> retryMuted)
{
    Q_EMIT workEnded();
    if (retryMuted.value_or(false)) {
        // No count bounds the repeats: the merge advises one only while sound is part of it.
        runMerge(true);
        return;
    }
    if (!url) {
        requestReview();
        finish();
        return;
    }
    m_movieURL = url;
    if (m_request.mediaType == ExportMediaType::GIF) {
        makeGif();
        return;
    }
    m_videoURL = url;
    requestReview();
    storeWith([movie = url->toLocalFile()] { return thumbnailOf(movie); }, m_videoURL);
}

void VideoExport::makeGif()
{
    if (!m_request.ratioSize || !m_gifFrames) {
        AppLog::print(QStringLiteral("A GIF needs the render size"));
        finish();
        return;
    }
    setStage(Stage::Converting);
    const QString destination = m_request.directory + QLatin1Char('/')
        + QString::number(QDateTime::currentMSecsSinceEpoch()) + QStringLiteral(".gif");
    const GifMaker maker(destination, GifMaker::sizeFor(*m_request.ratioSize));
    maker.createGifInBackground(std::exchange(m_gifFrames, nullptr), [this](const std::optional<QUrl> &gif) {
        QMetaObject::invokeMethod(
            this, [this, gif] { gifEnded(gif); }, Qt::QueuedConnection);
    });
}

void VideoExport::gifEnded(const std::optional<QUrl> &gif)
{
    Q_EMIT workEnded();
    requestReview();
    if (!gif) {
        finish();
        return;
    }
    m_gifURL = gif;
    storeWith([file = gif->toLocalFile()] { return QImage(file); }, m_gifURL);
}

void VideoExport::storeWithoutVideo(const QImage &picture)
{
    requestReview();
    storeWith([picture] { return picture; }, std::nullopt);
}

void VideoExport::storeWith(std::function<QImage()> picture, const std::optional<QUrl> &resultURL)
{
    auto *watcher = new QFutureWatcher<Preview>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, resultURL] {
        const Preview preview = watcher->result();
        watcher->deleteLater();
        // Without a preview the design stays as it was; the result stays in Documents.
        if (preview.picture.isNull()) {
            finish();
            return;
        }
        store(preview.picture, preview.fileName, resultURL);
    });
    watcher->setFuture(QtConcurrent::run([picture = std::move(picture)] {
        Preview preview { picture(), QString() };
        if (!preview.picture.isNull())
            preview.fileName = PreviewWriter::write(preview.picture);
        return preview;
    }));
}

void VideoExport::store(const QImage &picture, const QString &sampleImage, const std::optional<QUrl> &resultURL)
{
    if (m_request.masterJson) {
        std::optional<QString> source;
        if (!m_request.videoURL.isEmpty())
            source = m_request.videoURL.toString(QUrl::FullyEncoded);
        std::optional<QString> result;
        if (resultURL)
            result = resultURL->toString(QUrl::FullyEncoded);
        // The editor's store while it is open, so that a second export overwrites the same row.
        std::unique_ptr<DesignStore> ownStore;
        DesignStore *store = m_session ? &m_session->saving().store() : nullptr;
        if (!store) {
            ownStore = std::make_unique<DesignStore>();
            store = ownStore.get();
        }
        if (m_session)
            m_objectId = m_session->objectId;
        DesignSaver saver(*store, m_objectId);
        saver.saveExport(*m_request.masterJson, sampleImage, source, result);
        m_objectId = saver.objectId();
        if (m_session)
            m_session->objectId = m_objectId;
    }
    setStage(Stage::Stored);
    Q_EMIT stored(picture);
    if (resultURL)
        copyToAlbum();
    else
        finish();
}

void VideoExport::copyToAlbum()
{
    if (m_album.requestAuthorization() != PhotoAlbum::AuthorizationStatus::Authorized) {
        Q_EMIT albumDenied();
        finish();
        return;
    }
    const QString file = (m_videoURL ? *m_videoURL : *m_gifURL).toLocalFile();
    auto *watcher = new QFutureWatcher<SaveResultVC::AlbumResult>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher] {
        const SaveResultVC::AlbumResult result = watcher->result();
        watcher->deleteLater();
        if (result.file.isEmpty()) {
            AppLog::print(QStringLiteral("image save error: ") + result.error);
        } else {
            AppLog::print(QStringLiteral("image saved"));
            setStage(Stage::InAlbum);
            Q_EMIT albumCopied(result.file);
        }
        finishBackgroundWork();
    });
    // A GIF goes in as its own data, so that it stays animated.
    const SaveResultVC::AddAsset add
        = [file](PhotoAlbum &album, QString *error) { return album.addAssetFromFile(file, error); };
    watcher->setFuture(QtConcurrent::run(SaveResultVC::addToAlbum, m_album, add));
}

void VideoExport::finishBackgroundWork()
{
    if (!m_isActive() && m_notifications) {
        m_notifications->removePendingNotificationRequests({ QLatin1String(noticeIdentifier) });
        m_notifications->add({ QLatin1String(noticeIdentifier), noticeBody(m_videoURL.has_value()),
            QDateTime::currentDateTime().addSecs(2) });
    }
    finish();
}

void VideoExport::finish()
{
    setStage(Stage::Finished);
    Q_EMIT finished();
    deleteLater();
}
