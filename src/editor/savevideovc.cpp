#include "savevideovc.h"

#include "applog.h"
#include "apppaths.h"
#include "editorsession.h"
#include "fullvideoscreenvc.h"
#include "navigationcontroller.h"
#include "reviewprompt.h"
#include "sharesheet.h"
#include "videoview.h"

SaveVideoVC::SaveVideoVC(QObject *parent)
    : SaveResultVC(parent)
{
    setTitle(tr("Success"));
}

SaveVideoVC::~SaveVideoVC()
{
    AppLog::print(QStringLiteral("SaveVideoVC is being dismissed"));
}

VideoExport *SaveVideoVC::makeExport(const QUrl &videoURL)
{
    VideoExport::Request request;
    request.mediaType = mediaType.value_or(ExportMediaType::Video);
    request.ratioSize = ratioSize;
    request.overlayImage = overlayImage;
    request.videoURL = videoURL;
    if (videoView)
        request.audioURL = videoView->audioURL;
    request.masterJson = masterJson;
    request.directory = directory.isEmpty() ? AppPaths::documents() : directory;
    // Not a child of this screen: the export outlives it when the user leaves.
    m_export = new VideoExport(std::move(request), superVC);
    m_export->setNavigationController(navigationController());
    m_export->setPhotoAlbum(photoAlbum());
    if (m_notifications)
        m_export->setNotificationCenter(m_notifications);
    if (m_isActive)
        m_export->setApplicationActive(m_isActive);
    connect(m_export, &VideoExport::stageChanged, this, &SaveVideoVC::stageChanged);
    connect(m_export, &VideoExport::progress, this, [this](float value) {
        if (!m_panel)
            return;
        m_panel->setProgress(value);
        m_panel->setDetailText(tr("%1% Complete").arg(int(value * 100)));
    });
    connect(m_export, &VideoExport::workEnded, this, [this] { showPanel(nullptr); });
    connect(m_export, &VideoExport::stored, this, &SaveVideoVC::showResult);
    connect(m_export, &VideoExport::albumDenied, this, [this] {
        showPermissionAlert(tr("Enable Access To Save Videos "),
            tr("App does not have access to your photos. To enable access, tap settings and turn on Photo Library "
               "Access."),
            tr("Open Settings"), false);
        Q_EMIT albumSaveFinished();
    });
    connect(m_export, &VideoExport::albumCopied, this, [this](const QString &file) {
        setAlbumFile(file);
        Q_EMIT albumSaveFinished();
    });
    connect(m_export, &VideoExport::finished, this, [this] {
        // The result stays reachable for share and delete even when the design could not be stored.
        if (!m_videoURL && !m_gifURL && m_export && (m_export->videoURL() || m_export->gifURL())) {
            m_videoURL = m_export->videoURL();
            m_gifURL = m_export->gifURL();
            Q_EMIT resultChanged();
        }
        Q_EMIT exportFinished();
    });
    return m_export;
}

void SaveVideoVC::viewDidLoad()
{
    m_picture = overlayImage;
    Q_EMIT resultChanged();
    if (!videoView || !videoView->hasPlayerLayer()) {
        makeExport(QUrl())->storeWithoutVideo(overlayImage);
        return;
    }
    videoView->cacheVideo([screen = QPointer(this)](const std::optional<QUrl> &videoURL) {
        if (!screen)
            return;
        if (!videoURL) {
            ReviewPrompt::requestReview(screen->navigationController());
            Q_EMIT screen->exportFinished();
            return;
        }
        screen->makeExport(*videoURL)->start();
    });
}

void SaveVideoVC::stageChanged(VideoExport::Stage stage)
{
    switch (stage) {
    case VideoExport::Stage::Exporting:
    case VideoExport::Stage::Retrying: {
        auto *panel = new PanelModel(
            stage == VideoExport::Stage::Retrying ? tr("Retrying...") : tr("Exporting..."), PanelModel::Style::Accent);
        panel->setDetailText(tr("0% Complete"));
        panel->setProgress(0);
        showPanel(panel);
        break;
    }
    case VideoExport::Stage::Converting:
        showPanel(new PanelModel(tr("Just a moment...")));
        break;
    default:
        break;
    }
}

void SaveVideoVC::showPanel(PanelModel *panel)
{
    if (m_panel == panel)
        return;
    if (m_panel)
        m_panel->deleteLater();
    m_panel = panel;
    if (m_panel)
        m_panel->setParent(this);
    Q_EMIT progressPanelChanged();
}

void SaveVideoVC::showResult(const QImage &picture)
{
    m_picture = picture;
    m_videoURL = m_export ? m_export->videoURL() : std::nullopt;
    m_gifURL = m_export ? m_export->gifURL() : std::nullopt;
    m_playButtonVisible = m_videoURL || m_gifURL;
    Q_EMIT resultChanged();
}

std::optional<QUrl> SaveVideoVC::resultURL() const
{
    return mediaType == ExportMediaType::GIF ? m_gifURL : m_videoURL;
}

void SaveVideoVC::playClicked()
{
    if (!m_playButtonVisible || m_playing)
        return;
    m_playing = true;
    Q_EMIT playingChanged();
}

void SaveVideoVC::btnFullScreenClicked()
{
    if (const std::optional<QUrl> file = m_videoURL ? m_videoURL : m_gifURL)
        FullVideoScreenVC::show(navigationController(), storyboard(), *file);
}

void SaveVideoVC::shareClicked()
{
    const std::optional<QUrl> file = resultURL();
    NavigationController *navigation = navigationController();
    if (!file || !navigation)
        return;
    navigation->presentAlert(ShareSheet::make(file->toLocalFile(), m_picture));
}

void SaveVideoVC::deleteClicked()
{
    if (!m_videoURL && !m_gifURL)
        return;
    confirmDelete(tr("Are you sure you want to delete this card"), tr("NO"), [screen = QPointer(this)] {
        NavigationController *navigation = screen ? screen->navigationController() : nullptr;
        if (!navigation)
            return;
        auto *loading = new PanelModel(tr("Loading..."), PanelModel::Style::Accent);
        navigation->presentPanel(loading);
        // The album's newest asset counts as the one just exported; the design and Documents stay.
        QString error;
        if (!screen->photoAlbum().deleteLastAsset(&error))
            AppLog::print(QStringLiteral("Could not delete the export: ") + error);
        screen->setAlbumFile(QString());
        navigation->dismissPanel(loading);
        navigation->pop();
    });
}
