#include "saveflow.h"

#include "borderedresizableimageview.h"
#include "canvasrenderer.h"
#include "designsaver.h"
#include "designstore.h"
#include "editorsession.h"
#include "layerview.h"
#include "previewwriter.h"
#include "staticresizableimageview.h"

#include <QFutureWatcher>
#include <QtConcurrent/QtConcurrentRun>

#include <cmath>

namespace {

// The preview of a design in the lists: the rendered picture at a list cell's size.
constexpr int thumbnailSide = 480;

struct PreviewNames
{
    QString sample;
    QString thumbnail;
};

PreviewNames writePreviews(const QImage &image)
{
    const QImage thumbnail = image.width() > thumbnailSide || image.height() > thumbnailSide
        ? image.scaled(thumbnailSide, thumbnailSide, Qt::KeepAspectRatio, Qt::SmoothTransformation)
        : image;
    return { PreviewWriter::write(image), PreviewWriter::write(thumbnail) };
}

} // namespace

SaveFlow::SaveFlow(EditorSession &session)
    : QObject(&session)
    , m_session(session)
{ }

SaveFlow::~SaveFlow()
{
    m_previewWrite.waitForFinished();
}

void SaveFlow::setDesignStore(DesignStore *store)
{
    m_store = store;
}

DesignStore &SaveFlow::store()
{
    if (!m_store) {
        m_ownStore = std::make_unique<DesignStore>();
        m_store = m_ownStore.get();
    }
    return *m_store;
}

QSize SaveFlow::prepareCanvas(bool isHD)
{
    m_session.deselectAll(false);
    for (View *view : m_session.viewMain->subviews()) {
        if (auto *layer = qobject_cast<LayerView *>(view)) {
            layer->setControlsHidden(true);
        } else if (auto *slot = qobject_cast<StaticResizableImageView *>(view)) {
            slot->borderView->setHidden(true);
        } else if (auto *outlined = qobject_cast<BorderedResizableImageView *>(view)) {
            outlined->setActive(false);
            // An empty outlined slot shows a placeholder that is no part of the design.
            if (outlined->isNotImage() && !outlined->isHidden()) {
                outlined->setHidden(true);
                m_hiddenSlots.append(outlined);
            }
        }
    }
    m_session.viewMain->setBackgroundColor(Qt::transparent);
    const Json *document = m_session.masterJson.get();
    if (!document)
        return {};
    const double factor = isHD ? 2 : 1;
    return { int(std::ceil(document->width.value_or(0) * factor)),
        int(std::ceil(document->height.value_or(0) * factor)) };
}

void SaveFlow::restoreCanvas()
{
    for (const QPointer<BorderedResizableImageView> &slot : std::as_const(m_hiddenSlots)) {
        if (slot)
            slot->setHidden(false);
    }
    m_hiddenSlots.clear();
}

QImage SaveFlow::render(bool isHD)
{
    const QSize target = prepareCanvas(isHD);
    QImage picture = CanvasRenderer::renderImage(*m_session.viewMain, target);
    restoreCanvas();
    return picture;
}

void SaveFlow::saveDesign(const QImage &image, std::function<void()> done)
{
    auto *watcher = new QFutureWatcher<PreviewNames>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, done = std::move(done)] {
        const PreviewNames names = watcher->result();
        watcher->deleteLater();
        if (m_session.masterJson) {
            // The store carries the stickers in the order the user stacked them.
            RecordList<StickerJson> stickers(std::in_place);
            for (View *view : m_session.viewMain->subviews()) {
                if (auto *sticker = qobject_cast<ResizableImageView *>(view); sticker && sticker->stickerJson)
                    stickers->append(sticker->stickerJson);
            }
            DesignSaver saver(store(), m_session.objectId);
            saver.saveFinal(*m_session.masterJson, names.sample, names.thumbnail, std::move(stickers));
            m_session.objectId = saver.objectId();
        }
        if (done)
            done();
    });
    auto write = QtConcurrent::run(writePreviews, image);
    m_previewWrite = write;
    watcher->setFuture(write);
}

void SaveFlow::automaticSave()
{
    if (!m_session.masterJson)
        return;
    DesignSaver saver(store(), m_session.objectId);
    saver.saveEdit(*m_session.masterJson);
    m_session.objectId = saver.objectId();
    // An edit counts even when the store failed: leaving tries to store it again.
    m_session.setChanges(true);
}
