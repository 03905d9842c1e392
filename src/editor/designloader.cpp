#include "designloader.h"

#include "backgroundimageview.h"
#include "canvasbackground.h"
#include "designpictures.h"
#include "editorsession.h"
#include "layerbuilder.h"
#include "picturefile.h"
#include "previewwriter.h"
#include "saveflow.h"
#include "undorecorder.h"

#include "appassets.h"

#include <QtMath>

using DesignPictures::nonEmpty;

namespace {

// A template's angles are degrees; from the load on the record holds radians.
void toRadians(std::optional<double> &angle)
{
    if (angle)
        angle = *angle * M_PI / 180.0;
}

} // namespace

DesignLoader::DesignLoader(EditorSession &session)
    : m_session(session)
{ }

std::shared_ptr<Json> DesignLoader::documentForPicture(const QImage &picture)
{
    auto document = std::make_shared<Json>();
    LayerKinds::forEach([&document](auto kind) { (*document.*decltype(kind)::array).emplace(); });
    document->frame_json = std::make_shared<FrameJson>();
    if (picture.isNull())
        return document;
    document->width = picture.width();
    document->height = picture.height();
    document->is_portrait = picture.width() <= picture.height();
    // The picture lives in a file of the design, so that a stored design shows it again.
    const QString file = PictureFile::write(picture);
    document->background_json = std::make_shared<BackgroundJson>();
    document->background_json->background_image = file;
    document->sample_image = file;
    return document;
}

bool DesignLoader::refuseNullFlags(const Json &document)
{
    const bool hasSlots = (document.image_sticker_json && !document.image_sticker_json->isEmpty())
        || (document.frame_image_sticker_json && !document.frame_image_sticker_json->isEmpty());
    for (const QString &flag : document.nullRequiredFlags) {
        if (flag != QLatin1String("is_pip") || hasSlots) {
            m_session.fail(QObject::tr("The design is damaged: \"%1\" has no value.").arg(flag));
            return true;
        }
    }
    return false;
}

void DesignLoader::fitCanvas(std::optional<double> width, std::optional<double> height)
{
    View *canvas = m_session.viewMain;
    const QSizeF area = m_session.mainViewFrame ? m_session.mainViewFrame->size() : canvas->bounds().size();
    const qreal W = width.value_or(canvas->bounds().width());
    const qreal H = height.value_or(canvas->bounds().height());
    const qreal A = area.width();
    const qreal B = area.height();
    qreal w = 0;
    qreal h = 0;
    if (H > W) {
        h = B;
        w = W * B / H;
        if (w > A) {
            w = A;
            h = H * A / W;
        }
    } else {
        w = A;
        h = H * A / W;
        if (h > B) {
            h = B;
            w = W * B / H;
        }
    }
    canvas->setBounds(QRectF(0, 0, w, h));
    if (m_session.mainViewCenter)
        canvas->setCenter(*m_session.mainViewCenter);
    m_session.backgroundImageView->setFrame(canvas->bounds());
    m_session.fgImageView->setFrame(canvas->bounds());
    m_session.gridView->setFrame(canvas->bounds());
    m_session.mainView->setFrame(canvas->frame());
    m_session.imageViewFrame = m_session.backgroundImageView->frame();
    m_session.background().bgOriginalFrame = m_session.backgroundImageView->frame();
    Q_EMIT m_session.canvasChanged();
}

QRectF DesignLoader::convertRect(
    std::optional<double> x, std::optional<double> y, std::optional<double> width, std::optional<double> height) const
{
    const QRectF canvas = m_session.backgroundImageView->frame();
    const qreal scale = m_session.screenScale;
    const Json *document = m_session.masterJson.get();
    const qreal Wd = document && document->width ? *document->width / scale : canvas.width();
    return { x.value_or(0) / scale * canvas.width() / Wd + canvas.x(), convertHeight(y) + canvas.y(),
        width.value_or(0) / scale * canvas.width() / Wd, convertHeight(height) };
}

qreal DesignLoader::convertHeight(std::optional<double> height) const
{
    const QRectF canvas = m_session.backgroundImageView->frame();
    const qreal scale = m_session.screenScale;
    const Json *document = m_session.masterJson.get();
    const qreal Hd = document && document->height ? *document->height / scale : canvas.height();
    return height.value_or(0) / scale * canvas.height() / Hd;
}

QString DesignLoader::resolveName(const QString &name) const
{
    return DesignPictures::resolveName(m_session.masterJson.get(), name);
}

bool DesignLoader::loadTemplate(const std::shared_ptr<Json> &document)
{
    return load(document, false);
}

bool DesignLoader::loadReEdit(const std::shared_ptr<Json> &document)
{
    return load(document, true);
}

bool DesignLoader::load(const std::shared_ptr<Json> &document, bool reEdit)
{
    if (!document || refuseNullFlags(*document))
        return false;
    m_session.builder().counters = {};
    m_session.masterJson = document;
    m_session.is_pip = document->is_pip.value_or(false);
    if (auto background = document->background_json) {
        // A video design's background_image is its movie's address, which the video view plays.
        if (!reEdit && nonEmpty(background->background_image) && !m_session.video())
            background->background_image = resolveName(*background->background_image);
        m_session.background().apply(background);
        document->changed_background_json = background;
    }
    fitCanvas(document->width, document->height);
    m_session.viewMain->addSubview(m_session.gridView);
    loadSlots<SlotKind>(reEdit);
    m_session.builder().imageLimit = 0;
    if (m_session.hasOutlinedSlots())
        loadSlots<OutlinedSlotKind>(reEdit);
    loadFrame(reEdit);
    loadStickers(reEdit);
    loadTexts(reEdit);
    if (m_session.isCreateOwn)
        document->sample_image = PreviewWriter::write(m_session.saving().render(false));
    m_session.recorder().start();
    if (!reEdit && document->is_offline.value_or(false) && nonEmpty(document->sample_image)) {
        const QString file = PictureFile::write(AppAssets::image(*document->sample_image));
        if (!file.isEmpty())
            document->sample_image = file;
    }
    Q_EMIT m_session.layersChanged();
    return true;
}

template<class Kind> void DesignLoader::loadSlots(bool reEdit)
{
    const auto &records = *m_session.masterJson.*Kind::array;
    if (!records)
        return;
    for (const auto &record : *records) {
        if (!record || (!record->image_sticker_selected_image && !nonEmpty(record->image_sticker_image)))
            continue;
        if constexpr (Kind::kind == LayerKind::OutlinedSlot) {
            record->angleImage = 0.0;
            // A template's sample photo there is the catalog preview's; the slot opens empty.
            if (!reEdit)
                record->pip_image.reset();
        }
        QRectF frame = Kind::storedFrame(*record);
        if (!reEdit) {
            if (!record->image_sticker_selected_image)
                record->image_sticker_image = resolveName(*record->image_sticker_image);
            frame = Kind::templateFrame(convertRect(record->xPos, record->yPos, record->width, record->height));
            toRadians(record->angle);
        }
        m_session.builder().addLayer(frame, record, true);
        if constexpr (Kind::kind == LayerKind::OutlinedSlot) {
            ++m_session.builder().imageLimit;
            useSlotPicture(record->image_sticker_selected_image, record->pip_image);
        } else {
            useSlotPicture(record->image_sticker_selected_image, record->image_sticker_image);
        }
    }
}

void DesignLoader::useSlotPicture(const std::optional<QImage> &selected, const std::optional<QString> &name)
{
    if (!m_session.is_pip)
        return;
    CanvasBackground &background = m_session.background();
    if (selected && !selected->isNull())
        background.usePicture(*selected);
    else if (!selected && nonEmpty(name))
        DesignPictures::show(m_session.masterJson.get(), *name, m_session.backgroundImageView,
            [&background](const QImage &picture) { background.usePicture(picture); });
}

void DesignLoader::loadFrame(bool reEdit)
{
    auto frame = m_session.masterJson->frame_json;
    if (!frame || !nonEmpty(frame->frame_image))
        return;
    if (!reEdit)
        frame->frame_image = resolveName(*frame->frame_image);
    ImageView *overlay = m_session.fgImageView;
    DesignPictures::show(m_session.masterJson.get(), *frame->frame_image, overlay,
        [overlay](const QImage &picture) { overlay->setImage(picture); });
}

void DesignLoader::loadStickers(bool reEdit)
{
    const auto &records = m_session.masterJson->sticker_json;
    if (!records)
        return;
    for (const auto &record : *records) {
        if (!record || !nonEmpty(record->sticker_image))
            continue;
        QRectF frame = StickerKind::storedFrame(*record);
        if (!reEdit) {
            frame = StickerKind::templateFrame(convertRect(record->xPos, record->yPos, record->width, record->height));
            record->sticker_image = resolveName(*record->sticker_image);
            toRadians(record->angle);
        }
        if (!record->color)
            record->color = QStringLiteral("FFFFFF");
        m_session.builder().addLayer(frame, record, true);
    }
}

void DesignLoader::loadTexts(bool reEdit)
{
    const auto &records = m_session.masterJson->text_json;
    if (!records)
        return;
    for (const auto &record : *records) {
        if (!record)
            continue;
        QRectF frame = TextKind::storedFrame(*record);
        if (!reEdit) {
            frame = TextKind::templateFrame(convertRect(record->xPos, record->yPos, std::nullopt, std::nullopt));
            record->size = convertHeight(record->size);
            for (std::optional<QString> *name : { &record->bg_image, &record->texture_image }) {
                if (nonEmpty(*name))
                    **name = resolveName(**name);
            }
            toRadians(record->angle);
        }
        m_session.builder().addLayer(frame, record, true);
    }
}
