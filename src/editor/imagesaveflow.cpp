#include "imagesaveflow.h"

#include "alertmodel.h"
#include "applog.h"
#include "canvasrenderer.h"
#include "editorsession.h"
#include "navigationcontroller.h"
#include "pictureencoding.h"
#include "saveflow.h"
#include "saveimagevc.h"
#include "storyboard.h"

#include <QTimer>
#include <QtConcurrent>

#include <charconv>
#include <cmath>

namespace {

// HD is offered up to this many template units on a side, so that the result stays within 4096 pixels.
constexpr double largestForHD = 2048;

} // namespace

ImageSaveFlow::ImageSaveFlow(EditorSession &session, QObject *parent)
    : QObject(parent)
    , m_session(session)
{
    connect(&m_render, &QFutureWatcherBase::finished, this, [this] { finishSave(m_render.result()); });
}

ImageSaveFlow::~ImageSaveFlow()
{
    // The drawing reads the session's views, which go after this.
    m_render.waitForFinished();
}

QString ImageSaveFlow::sizeText(double value)
{
    if (value == std::floor(value))
        return QString::asprintf("%.0f", value);
    char text[32];
    const auto printed = std::to_chars(text, text + sizeof text, value);
    return QString::fromLatin1(text, printed.ptr - text);
}

AlertModel *ImageSaveFlow::makeSizeChoice()
{
    const std::shared_ptr<Json> &json = m_session.masterJson;
    if (!json || !json->width || !json->height)
        return nullptr;
    const double width = *json->width;
    const double height = *json->height;
    auto saveAt = [flow = QPointer(this)](bool isHD) {
        return [flow, isHD] {
            if (flow)
                flow->save(isHD);
        };
    };
    if (width > largestForHD || height > largestForHD) {
        auto *alert = new AlertModel(QString(), tr("Do you want to save changes?"));
        alert->addAction(tr("Yes"), AlertModel::Style::Default, saveAt(false));
        alert->addAction(tr("No"), AlertModel::Style::Cancel);
        return alert;
    }
    auto *sheet = new AlertModel(tr("Select option"), QString(), true);
    sheet->setAnchoredAtTop(true);
    sheet->addAction(
        tr("Original (%1 × %2)").arg(sizeText(width), sizeText(height)), AlertModel::Style::Default, saveAt(false));
    sheet->addAction(
        tr("HD (%1 × %2)").arg(sizeText(2 * width), sizeText(2 * height)), AlertModel::Style::Default, saveAt(true));
    sheet->addAction(tr("Cancel"), AlertModel::Style::Cancel);
    return sheet;
}

void ImageSaveFlow::savePressed()
{
    AlertModel *question = makeSizeChoice();
    if (!question)
        return;
    if (NavigationController *navigation = m_session.navigationController())
        navigation->presentAlert(question);
    else
        delete question;
}

void ImageSaveFlow::save(bool isHD)
{
    if (m_saving || !m_session.masterJson)
        return;
    m_saving = true;
    m_session.issavePressed = true;
    if (NavigationController *navigation = m_session.navigationController()) {
        m_notice = new PanelModel(
            isHD ? tr("Please wait while we prepare HD Image.") : tr("Please wait while we prepare your image."));
        navigation->presentPanel(m_notice);
    }
    QTimer::singleShot(m_noticeDelay, this, [this, isHD] { startRender(isHD); });
}

QImage ImageSaveFlow::render(bool isHD)
{
    return m_session.saving().render(isHD);
}

void ImageSaveFlow::startRender(bool isHD)
{
    if (!m_session.masterJson) {
        m_saving = false;
        return;
    }
    const QSize target = m_session.saving().prepareCanvas(isHD);
    // The drawing takes most of the time, the encoding the rest.
    auto report = [this, notice = m_notice](qreal done) {
        QMetaObject::invokeMethod(
            this,
            [notice, done] {
                if (notice)
                    notice->setProgress(done);
            },
            Qt::QueuedConnection);
    };
    const View *canvas = m_session.viewMain;
    m_render.setFuture(QtConcurrent::run([canvas, target, report] {
        Rendered rendered;
        rendered.picture = CanvasRenderer::renderImage(*canvas, target, [&report](qreal done) { report(done * 0.7); });
        // Encoded as the preview writer encodes it, so that the album and the preview hold the same file.
        rendered.pngData = PictureEncoding::png(rendered.picture);
        report(0.8);
        return rendered;
    }));
}

void ImageSaveFlow::finishSave(const Rendered &rendered)
{
    m_session.saving().restoreCanvas();
    m_session.saveImg = rendered.picture;
    if (rendered.picture.isNull())
        AppLog::print(QStringLiteral("The canvas could not be drawn; the design is saved without a picture"));
    // The notice stays until the previews are written and the design is stored.
    m_session.saving().saveDesign(rendered.picture, [flow = QPointer(this), rendered] {
        if (!flow)
            return;
        if (flow->m_notice) {
            if (NavigationController *navigation = flow->m_session.navigationController())
                navigation->dismissPanel(flow->m_notice);
        }
        flow->showResult(rendered);
        flow->m_saving = false;
        Q_EMIT flow->saved(rendered);
    });
}

void ImageSaveFlow::showResult(const Rendered &rendered)
{
    NavigationController *navigation = m_session.navigationController();
    if (!navigation || !m_storyboard)
        return;
    auto *screen = qobject_cast<SaveImageVC *>(m_storyboard->instantiate(QStringLiteral("SaveImageVC")));
    if (!screen) {
        AppLog::print(QStringLiteral("SaveImageVC is not registered"));
        return;
    }
    screen->editedImage = rendered.picture;
    screen->editedImageData = rendered.pngData;
    screen->contentJson = m_session.masterJson;
    navigation->push(screen);
}
