#include "layerbuilder.h"

#include "designpictures.h"
#include "editorsession.h"
#include "hexcolor.h"
#include "layerevents.h"
#include "layerflash.h"
#include "stickersize.h"

LayerBuilder::LayerBuilder(EditorSession &session)
    : m_session(session)
{ }

void LayerBuilder::insert(View *layer)
{
    View *canvas = m_session.viewMain;
    canvas->insertSubview(layer, canvas->subviews().indexOf(m_session.fgImageView));
}

QImage LayerBuilder::pictureFor(const std::optional<QString> &name) const
{
    return name && !name->isEmpty() ? DesignPictures::pictureFor(m_session.masterJson.get(), *name) : QImage();
}

template<class Kind>
typename Kind::Layer *LayerBuilder::addSlot(
    const QRectF &frame, const std::shared_ptr<typename Kind::Record> &record, bool isLoading)
{
    m_session.deselectAll();
    auto *slot = new typename Kind::Layer(frame);
    slot->delegate = m_session.layerEvents();
    Kind::recordOf(*slot) = record;
    // An outlined slot's own picture is its mask; the user's photo in it is named by `pip_image`.
    std::optional<QString> pictureName = record->image_sticker_image;
    if constexpr (Kind::kind == LayerKind::OutlinedSlot) {
        pictureName = record->pip_image;
        if (DesignPictures::nonEmpty(record->image_sticker_image))
            DesignPictures::show(m_session.masterJson.get(), *record->image_sticker_image, slot,
                [slot](const QImage &mask) { slot->setMask(mask); });
    }
    const auto showPicture = [slot](const QImage &picture) {
        slot->setPicture(picture);
        slot->applyRecordGeometry();
    };
    if (record->image_sticker_selected_image)
        showPicture(*record->image_sticker_selected_image);
    else if (DesignPictures::nonEmpty(pictureName))
        DesignPictures::show(m_session.masterJson.get(), *pictureName, slot, showPicture);
    insert(slot);
    if (record->angle)
        slot->applyAngle(*record->angle);
    if (record->is_round.value_or(false))
        slot->setRound(true);
    if (isLoading)
        LayerFlash::flash(slot);
    slot->setTag(counters.of<Kind>()++);
    return slot;
}

StaticResizableImageView *LayerBuilder::addLayer(
    const QRectF &frame, const std::shared_ptr<ImageStickerJson> &record, bool isLoading)
{
    return addSlot<SlotKind>(frame, record, isLoading);
}

BorderedResizableImageView *LayerBuilder::addLayer(
    const QRectF &frame, const std::shared_ptr<FrameImageStickerJson> &record, bool isLoading)
{
    return addSlot<OutlinedSlotKind>(frame, record, isLoading);
}

ResizableImageView *LayerBuilder::addLayer(
    const QRectF &frame, const std::shared_ptr<StickerJson> &record, bool isLoading)
{
    m_session.deselectAll();
    auto *sticker = new ResizableImageView(frame);
    sticker->delegate = m_session.layerEvents();
    const QImage picture = pictureFor(record->sticker_image);
    sticker->contentImageView->tintedImage = picture;
    sticker->contentImageView->setImage(picture);
    insert(sticker);
    sticker->setControlsHidden(true);
    if (record->angle)
        sticker->applyLoadedAngle(*record->angle);
    sticker->stickerJson = record;
    if (const QColor tint = HexColor::fromString(record->color.value_or(QString())); tint.isValid())
        sticker->setStickerColor(tint);
    if (record->opacity)
        sticker->contentImageView->setAlpha(*record->opacity / 100.0);
    if (isLoading)
        LayerFlash::flash(sticker);
    sticker->setTag(counters.stickerJsonIndex++);
    return sticker;
}

ResizableView *LayerBuilder::addLayer(const QRectF &frame, const std::shared_ptr<TextJson> &record, bool isLoading)
{
    m_session.deselectAll();
    auto *text = new ResizableView(frame);
    text->delegate = m_session.layerEvents();
    insert(text);
    text->loadFromJson(record, m_session.viewMain->bounds().width(), counters.textJsonIndex++, isLoading);
    return text;
}

ResizableImageView *LayerBuilder::addNewSticker(const QImage &picture)
{
    const QSizeF size
        = StickerSize::forNewSticker(picture.size(), m_session.screenSize, m_session.viewMain->bounds().size());
    auto *sticker = new ResizableImageView(QRectF(QPointF(0, 44.0), size));
    sticker->delegate = m_session.layerEvents();
    sticker->contentImageView->tintedImage = picture;
    sticker->contentImageView->setImage(picture);
    sticker->setStickerColor(Qt::white);
    PickedSticker &picked = m_session.picked;
    picked.newStickerHasColor = false;
    sticker->stickerJson->selected_sticker_id = picked.selected_sticker_id.value_or(47);
    sticker->stickerJson->selected_sticker_catalog_id = picked.selected_sticker_catalog_id;
    insert(sticker);
    sticker->showControls();
    sticker->setCenter(m_session.viewMain->bounds().center());
    sticker->setTag(counters.stickerJsonIndex++);
    return sticker;
}

ResizableView *LayerBuilder::addNewText(
    const QString &text, const QString &fontName, const std::optional<QColor> &color)
{
    auto *layer = new ResizableView(QRectF(QPointF(0, 44.0), ResizableView::buildSize));
    layer->delegate = m_session.layerEvents();
    if (color) {
        layer->textView->foregroundColor = *color;
        layer->textView->applyForegroundColor();
    }
    insert(layer);
    layer->textView->setText(text);
    layer->textView->fontName = fontName;
    layer->textView->applyFontName();
    layer->textView->fontSize = 28.0;
    layer->textView->applyFontSize();
    layer->maxWidth = m_session.viewMain->bounds().width();
    layer->resizeToFitText();
    layer->textView->editable = false;
    layer->textView->selectable = false;
    layer->showControls();
    layer->setCenter(m_session.viewMain->bounds().center());
    layer->setTag(counters.textJsonIndex++);
    return layer;
}

void LayerBuilder::duplicateSelected()
{
    const QSizeF canvas = m_session.viewMain->bounds().size();
    // The copy steps aside when there is room; otherwise it lands exactly on its source.
    auto copyOf = [canvas](const auto &record) {
        auto copy = record->copy();
        copy->index.reset();
        const double x = copy->xPos.value_or(0);
        const double y = copy->yPos.value_or(0);
        if (y <= canvas.height() - 50.0 && x <= canvas.width() - 50.0) {
            copy->xPos = x + 10.0;
            copy->yPos = y + 10.0;
        }
        return copy;
    };
    const LayerSelection &selection = m_session.selection;
    if (selection.selectedView && selection.selectedView->textJson)
        addStored(copyOf(selection.selectedView->textJson), false);
    else if (selection.selectedIconImgView && selection.selectedIconImgView->stickerJson)
        addStored(copyOf(selection.selectedIconImgView->stickerJson), false);
}
