#include "imagesaveflow.h"

#include "alertmodel.h"
#include "applog.h"
#include "borderedresizableimageview.h"
#include "canvasrenderer.h"
#include "designsaver.h"
#include "designstore.h"
#include "editorsession.h"
#include "layerview.h"
#include "navigationcontroller.h"
#include "previewwriter.h"
#include "resizableimageview.h"
#include "saveimagevc.h"
#include "staticresizableimageview.h"
#include "storyboard.h"

#include <QTimer>
#include <QtConcurrent>

#include <charconv>
#include <cmath>

namespace {

// HD is offered up to this many template units on a side, so that the result stays within 4096 pixels.
constexpr double largestForHD = 2048;
// The thumbnail's box, in pixels: a list cell's picture at three pixels per point.
const QSize thumbnailBox(540, 960);

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
    if (m_ownStore && m_session.designStore() == m_ownStore.get())
        m_session.setDesignStore(nullptr);
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

QSize ImageSaveFlow::prepareCanvas(bool isHD)
{
    m_session.deselectAll(false);
    for (View *view : m_session.viewMain->subviews()) {
        if (auto *layer = qobject_cast<LayerView *>(view)) {
            layer->setControlsHidden(true);
        } else if (auto *slot = qobject_cast<StaticResizableImageView *>(view)) {
            slot->borderView->setHidden(true);
        } else if (auto *outlined = qobject_cast<BorderedResizableImageView *>(view)) {
            outlined->isActive = false;
            // An empty outlined slot shows a placeholder that is no part of the design.
            if (outlined->isNotImage() && !outlined->isHidden()) {
                outlined->setHidden(true);
                m_hiddenSlots.append(outlined);
            }
        }
    }
    m_session.viewMain->setBackgroundColor(Qt::transparent);
    const double factor = isHD ? 2 : 1;
    const Json &json = *m_session.masterJson;
    return { int(std::ceil(json.width.value_or(0) * factor)), int(std::ceil(json.height.value_or(0) * factor)) };
}

void ImageSaveFlow::restoreCanvas()
{
    for (const QPointer<BorderedResizableImageView> &slot : std::as_const(m_hiddenSlots)) {
        if (slot)
            slot->setHidden(false);
    }
    m_hiddenSlots.clear();
}

QImage ImageSaveFlow::render(bool isHD)
{
    const QSize target = prepareCanvas(isHD);
    QImage picture = CanvasRenderer::renderImage(*m_session.viewMain, target);
    restoreCanvas();
    return picture;
}

void ImageSaveFlow::startRender(bool isHD)
{
    if (!m_session.masterJson) {
        m_saving = false;
        return;
    }
    const QSize target = prepareCanvas(isHD);
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
        rendered.picture = CanvasRenderer::renderImage(*canvas, target, [&report](qreal done) { report(done * 0.6); });
        const PreviewWriter::Encoded sample = PreviewWriter::encode(rendered.picture);
        report(0.85);
        const QImage thumbnail = rendered.picture.isNull()
            ? QImage()
            : rendered.picture.scaled(
                thumbnailBox.boundedTo(rendered.picture.size()), Qt::KeepAspectRatio, Qt::SmoothTransformation);
        rendered.pngData = sample.data;
        rendered.sampleImage = PreviewWriter::store(sample);
        rendered.thumbnailImage = PreviewWriter::write(thumbnail);
        report(1.0);
        return rendered;
    }));
}

void ImageSaveFlow::finishSave(Rendered rendered)
{
    restoreCanvas();
    saveImg = rendered.picture;
    if (rendered.picture.isNull())
        AppLog::print(QStringLiteral("The canvas could not be drawn; the design is saved without a picture"));
    if (m_notice) {
        if (NavigationController *navigation = m_session.navigationController())
            navigation->dismissPanel(m_notice);
    }
    saveDesign(rendered);
    showResult(rendered);
    m_saving = false;
    Q_EMIT saved(rendered);
}

void ImageSaveFlow::saveDesign(const Rendered &rendered)
{
    if (!m_session.masterJson)
        return;
    // The stickers as they are stacked on the canvas, back to front.
    RecordList<StickerJson> stickers;
    stickers.emplace();
    for (View *view : m_session.viewMain->subviews()) {
        if (auto *sticker = qobject_cast<ResizableImageView *>(view); sticker && sticker->stickerJson)
            stickers->append(sticker->stickerJson);
    }
    DesignSaver saver(store(), m_session.objectId);
    saver.saveFinal(*m_session.masterJson, rendered.sampleImage, rendered.thumbnailImage, std::move(stickers));
    m_session.objectId = saver.objectId();
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

DesignStore &ImageSaveFlow::store()
{
    if (DesignStore *store = m_session.designStore())
        return *store;
    // The editor has not stored anything yet; from now on its automatic saves go to the same store.
    m_ownStore = std::make_unique<DesignStore>();
    m_session.setDesignStore(m_ownStore.get());
    return *m_ownStore;
}
