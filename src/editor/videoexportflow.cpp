#include "videoexportflow.h"

#include "applog.h"
#include "canvasrenderer.h"
#include "editorsession.h"
#include "exportview.h"
#include "navigationcontroller.h"
#include "panelmodel.h"
#include "saveflow.h"
#include "savevideovc.h"
#include "storyboard.h"
#include "videoview.h"

#include <QTimer>

#include <cmath>

namespace {

// The longer side of a canvas without its own size, in output pixels.
constexpr double renderSide = 1080;

} // namespace

VideoExportFlow::VideoExportFlow(EditorSession &session, VideoView &videoView, QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_videoView(videoView)
{ }

QSizeF VideoExportFlow::renderSize(const Json &document, const QRectF &canvasFrame)
{
    if (document.width && document.height)
        return { *document.width, *document.height };
    const double width = canvasFrame.width();
    const double height = canvasFrame.height();
    if (width <= 0 || height <= 0)
        return {};
    if (height < width)
        return { renderSide, height * renderSide / width };
    return { width * renderSide / height, renderSide };
}

ExportView *VideoExportFlow::makeExportView()
{
    auto *view
        = m_storyboard ? qobject_cast<ExportView *>(m_storyboard->instantiate(QStringLiteral("ExportView"))) : nullptr;
    if (!view)
        return nullptr;
    view->titleText = tr("One last step.\nCreate your exclusive Video OR GIF");
    view->itemText1 = tr("VIDEO");
    view->img1 = QStringLiteral("export_video");
    view->itemText2 = tr("GIF");
    view->img2 = QStringLiteral("export_gif");
    view->delegate = [flow = QPointer(this)](ExportMediaType type) {
        if (flow)
            flow->exportAs(type);
    };
    return view;
}

void VideoExportFlow::savePressed()
{
    NavigationController *navigation = m_session.navigationController();
    ExportView *view = navigation ? makeExportView() : nullptr;
    if (view)
        navigation->present(view);
}

void VideoExportFlow::exportAs(ExportMediaType type)
{
    if (m_notice)
        return; // a hand-over is already under way
    m_mediaType = type;
    if (NavigationController *navigation = m_session.navigationController()) {
        if (qobject_cast<ExportView *>(navigation->topViewController()))
            navigation->dismiss();
        m_notice = new PanelModel(tr("Please Wait..."), PanelModel::Style::Accent);
        navigation->presentPanel(m_notice);
    }
    QTimer::singleShot(m_noticeDelay, this, &VideoExportFlow::handOver);
}

QImage VideoExportFlow::snapshot(const QSizeF &size)
{
    m_session.saving().prepareCanvas(false);
    // Drawn at the render size, as a phone's screen scale would draw it, so that the text stays sharp.
    QImage overlay = CanvasRenderer::renderImage(
        *m_session.viewMain, QSize(int(std::ceil(size.width())), int(std::ceil(size.height()))));
    m_session.saving().restoreCanvas();
    return overlay;
}

void VideoExportFlow::handOver()
{
    NavigationController *navigation = m_session.navigationController();
    if (m_notice && navigation)
        navigation->dismissPanel(m_notice);
    m_notice = nullptr;
    if (!m_session.masterJson)
        return;
    const QSizeF size = renderSize(*m_session.masterJson, m_session.viewMain->frame());
    auto *screen = m_storyboard ? qobject_cast<SaveVideoVC *>(m_storyboard->instantiate(QStringLiteral("SaveVideoVC")))
                                : nullptr;
    if (!screen) {
        AppLog::print(QStringLiteral("SaveVideoVC is not registered"));
        return;
    }
    screen->mediaType = m_mediaType;
    if (!size.isEmpty())
        screen->ratioSize = size;
    screen->overlayImage = snapshot(size);
    screen->videoView = &m_videoView;
    screen->masterJson = m_session.masterJson;
    screen->superVC = &m_session;
    Q_EMIT handedOver(screen);
    if (navigation)
        navigation->push(screen);
    else
        screen->deleteLater();
}
