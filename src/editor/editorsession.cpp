#include "editorsession.h"

#include "alertmodel.h"
#include "appassets.h"
#include "applog.h"
#include "apppaths.h"
#include "backgroundimageview.h"
#include "borderedresizableimageview.h"
#include "hexcolor.h"
#include "layerview.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "picturefile.h"
#include "picturesource.h"
#include "resizableimageview.h"
#include "resizableview.h"
#include "staticresizableimageview.h"

#include <QDebug>
#include <QDir>
#include <QUrl>
#include <QtMath>

namespace {

// A sticker's picture sits this far inside its layer; a text's glyphs a further inner margin inside that.
constexpr qreal layerInset = 14.0;
constexpr qreal textMargin = 8.0;
constexpr qreal slotInset = 15.0;

// A downloaded template names its assets relative to resource/; a "file" address keeps its last component.
QString resolveDownloadedName(const QString &name)
{
    if (name.startsWith(QLatin1String("file")))
        return QUrl(name).fileName();
    return QDir(AppPaths::resource()).filePath(name);
}

bool nonEmpty(const std::optional<QString> &value)
{
    return value && !value->isEmpty();
}

template<class Record> void replaceByIndex(RecordList<Record> &list, const std::shared_ptr<Record> &record)
{
    if (!list || !record)
        return;
    for (auto &entry : *list) {
        if (entry && entry->index == record->index) {
            entry = record;
            return;
        }
    }
}

} // namespace

EditorSession::EditorSession(const char *className, QObject *parent)
    : ViewController(parent)
    , viewContent(new View(QRectF(), this))
    , mainView(new ImageView())
    , viewMain(new View())
    , backgroundImageView(new BackgroundImageView())
    , fgImageView(new ImageView())
    , gridView(new View())
    , m_className(QLatin1String(className))
{
    mainView->setImage(AppAssets::image(QStringLiteral("img_transperent_bg_bright")));
    mainView->setContentMode(ImageView::ContentMode::ScaleAspectFill);
    viewContent->addSubview(mainView);
    viewContent->addSubview(viewMain);
    viewMain->setClipsToBounds(true);
    viewMain->addSubview(backgroundImageView);
    fgImageView->setUserInteractionEnabled(false);
    viewMain->addSubview(fgImageView);
    gridView->setHidden(true);
    gridView->setUserInteractionEnabled(false);
}

EditorSession::~EditorSession()
{
    AppLog::print(m_className + QStringLiteral(" is being dismissed"));
}

void EditorSession::setCanvasArea(const QRectF &area)
{
    viewContent->setFrame(QRectF(QPointF(0, 0), area.bottomRight() + QPointF(canvasSpace, canvasSpace)));
    viewMain->setFrame(area);
    mainView->setFrame(area);
    mainViewFrame = area;
    mainViewCenter = area.center();
}

QRectF EditorSession::canvasFrame() const
{
    return viewMain->frame();
}

QObject *EditorSession::contentView() const
{
    return viewContent;
}

QList<QObject *> EditorSession::layerViews() const
{
    QList<QObject *> layers;
    for (View *view : viewMain->subviews()) {
        if (qobject_cast<LayerView *>(view))
            layers.append(view);
    }
    return layers;
}

void EditorSession::setWorkAreaSize(qreal width, qreal height)
{
    if (mainViewFrame || width <= 2 * canvasSpace || height <= 2 * canvasSpace)
        return;
    setCanvasArea(QRectF(canvasSpace, canvasSpace, width - 2 * canvasSpace, height - 2 * canvasSpace));
    if (m_openPending)
        openDocument();
}

void EditorSession::viewDidLoad()
{
    m_openPending = true;
    if (mainViewFrame)
        openDocument();
}

void EditorSession::openDocument()
{
    m_openPending = false;
    if (contentJson) {
        loadTemplate(contentJson);
    } else if (reEditJson) {
        loadReEdit(reEditJson);
    } else {
        masterJson = std::make_shared<Json>();
        usePictureAsBackground(croppedImage);
        fitCanvas(croppedImage.isNull() ? std::nullopt : std::optional<double>(croppedImage.width()),
            croppedImage.isNull() ? std::nullopt : std::optional<double>(croppedImage.height()));
    }
}

void EditorSession::fail(const QString &message)
{
    m_errorString = message;
    qWarning().noquote() << "cannot open the design:" << message;
    Q_EMIT loadFailed();
}

bool EditorSession::refuseNullFlags(const Json &document)
{
    const bool hasSlots = (document.image_sticker_json && !document.image_sticker_json->isEmpty())
        || (document.frame_image_sticker_json && !document.frame_image_sticker_json->isEmpty());
    for (const QString &flag : document.nullRequiredFlags) {
        if (flag != QLatin1String("is_pip") || hasSlots) {
            fail(tr("The design is damaged: \"%1\" has no value.").arg(flag));
            return true;
        }
    }
    return false;
}

void EditorSession::fitCanvas(std::optional<double> width, std::optional<double> height)
{
    const QSizeF area = mainViewFrame ? mainViewFrame->size() : viewMain->bounds().size();
    const qreal W = width.value_or(viewMain->bounds().width());
    const qreal H = height.value_or(viewMain->bounds().height());
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
    viewMain->setBounds(QRectF(0, 0, w, h));
    if (mainViewCenter)
        viewMain->setCenter(*mainViewCenter);
    backgroundImageView->setFrame(viewMain->bounds());
    fgImageView->setFrame(viewMain->bounds());
    gridView->setFrame(viewMain->bounds());
    mainView->setFrame(viewMain->frame());
    imageViewFrame = backgroundImageView->frame();
    Q_EMIT canvasChanged();
}

QRectF EditorSession::convertRect(
    std::optional<double> x, std::optional<double> y, std::optional<double> width, std::optional<double> height) const
{
    const QRectF canvas = backgroundImageView->frame();
    const qreal Wd = masterJson && masterJson->width ? *masterJson->width / screenScale : canvas.width();
    const qreal Hd = masterJson && masterJson->height ? *masterJson->height / screenScale : canvas.height();
    return { x.value_or(0) / screenScale * canvas.width() / Wd + canvas.x(),
        y.value_or(0) / screenScale * canvas.height() / Hd + canvas.y(),
        width.value_or(0) / screenScale * canvas.width() / Wd, convertHeight(height) };
}

qreal EditorSession::convertHeight(std::optional<double> height) const
{
    const QRectF canvas = backgroundImageView->frame();
    const qreal Hd = masterJson && masterJson->height ? *masterJson->height / screenScale : canvas.height();
    return height.value_or(0) / screenScale * canvas.height() / Hd;
}

QString EditorSession::resolveName(const QString &name) const
{
    if (masterJson && masterJson->is_offline.value_or(false)) {
        // An application asset becomes a file of the design, so that a stored design needs no asset.
        const QImage asset = AppAssets::image(name);
        if (asset.isNull())
            return name;
        const QString file = PictureFile::write(asset);
        return file.isEmpty() ? name : file;
    }
    return resolveDownloadedName(name);
}

QImage EditorSession::pictureFor(const QString &value) const
{
    if (masterJson && masterJson->is_offline.value_or(false)) {
        const QImage asset = AppAssets::image(value);
        if (!asset.isNull())
            return asset;
    }
    return PictureSource::load(value);
}

bool EditorSession::loadTemplate(const std::shared_ptr<Json> &document)
{
    if (!document || refuseNullFlags(*document))
        return false;
    textJsonIndex = stickerJsonIndex = imageStickerJsonIndex = frameImageStickerJsonIndex = 1;
    masterJson = document;
    is_pip = document->is_pip.value_or(false);

    if (auto background = document->background_json) {
        if (nonEmpty(background->background_image))
            background->background_image = resolveName(*background->background_image);
        applyBackground(background);
        document->changed_background_json = background;
    }
    fitCanvas(document->width, document->height);
    viewMain->addSubview(gridView);
    loadSlots(false);
    loadFrame(false);
    loadStickers(false);
    loadTexts(false);
    startUndoHistory();
    if (document->is_offline.value_or(false) && nonEmpty(document->sample_image)) {
        const QString file = PictureFile::write(AppAssets::image(*document->sample_image));
        if (!file.isEmpty())
            document->sample_image = file;
    }
    Q_EMIT layersChanged();
    return true;
}

bool EditorSession::loadReEdit(const std::shared_ptr<Json> &document)
{
    if (!document || refuseNullFlags(*document))
        return false;
    textJsonIndex = stickerJsonIndex = imageStickerJsonIndex = frameImageStickerJsonIndex = 1;
    masterJson = document;
    is_pip = document->is_pip.value_or(false);
    if (document->background_json) {
        applyBackground(document->background_json);
        document->changed_background_json = document->background_json;
    }
    fitCanvas(document->width, document->height);
    viewMain->addSubview(gridView);
    loadSlots(true);
    loadFrame(true);
    loadStickers(true);
    loadTexts(true);
    startUndoHistory();
    Q_EMIT layersChanged();
    return true;
}

void EditorSession::startUndoHistory()
{
    undoArray = { documentDictionary() };
    masterJson->changed_background_json = nullptr;
}

nlohmann::ordered_json EditorSession::documentDictionary() const
{
    return masterJson ? Mapper::toJSON(*masterJson) : nlohmann::ordered_json::object();
}

void EditorSession::loadSlots(bool reEdit)
{
    auto slotPicture
        = [this](const std::optional<QImage> &selected, const std::optional<QString> &name) -> std::optional<QImage> {
        if (selected)
            return selected;
        return nonEmpty(name) ? std::optional(pictureFor(*name)) : std::nullopt;
    };
    if (masterJson->image_sticker_json) {
        for (const auto &record : *masterJson->image_sticker_json) {
            if (!record)
                continue;
            if (!record->image_sticker_selected_image && !nonEmpty(record->image_sticker_image))
                continue;
            if (!reEdit && !record->image_sticker_selected_image)
                record->image_sticker_image = resolveName(*record->image_sticker_image);
            QRectF frame;
            if (reEdit) {
                frame = QRectF(record->xPos.value_or(0), record->yPos.value_or(0), record->width.value_or(0),
                    record->height.value_or(0));
            } else {
                const QRectF r = convertRect(record->xPos, record->yPos, record->width, record->height);
                frame = r.translated(-slotInset, -slotInset);
                if (record->angle)
                    record->angle = *record->angle * M_PI / 180.0;
            }
            const std::optional<QImage> picture
                = slotPicture(record->image_sticker_selected_image, record->image_sticker_image);
            addImageSticker(frame, record, true);
            if (is_pip && picture && !picture->isNull())
                usePictureAsBackground(*picture);
        }
    }
    imageLimit = 0;
    if (masterJson->frame_image_sticker_json) {
        for (const auto &record : *masterJson->frame_image_sticker_json) {
            if (!record)
                continue;
            if (!record->image_sticker_selected_image && !nonEmpty(record->image_sticker_image))
                continue;
            record->angleImage = 0.0;
            if (!reEdit && !record->image_sticker_selected_image)
                record->image_sticker_image = resolveName(*record->image_sticker_image);
            QRectF frame;
            if (reEdit) {
                frame = QRectF(record->xPos.value_or(0), record->yPos.value_or(0), record->width.value_or(0),
                    record->height.value_or(0));
            } else {
                const QRectF r = convertRect(record->xPos, record->yPos, record->width, record->height);
                frame = QRectF(r.x() - slotInset - 1, r.y() - slotInset - 1, r.width() + 2, r.height() + 2);
                if (record->angle)
                    record->angle = *record->angle * M_PI / 180.0;
            }
            const std::optional<QImage> picture
                = slotPicture(record->image_sticker_selected_image, record->image_sticker_image);
            addFrameImageSticker(frame, record, true);
            ++imageLimit;
            if (is_pip && picture && !picture->isNull())
                usePictureAsBackground(*picture);
        }
    }
}

void EditorSession::loadFrame(bool reEdit)
{
    auto frame = masterJson->frame_json;
    if (!frame || !nonEmpty(frame->frame_image))
        return;
    if (!reEdit)
        frame->frame_image = resolveName(*frame->frame_image);
    fgImageView->setImage(pictureFor(*frame->frame_image));
}

void EditorSession::loadStickers(bool reEdit)
{
    if (!masterJson->sticker_json)
        return;
    for (const auto &record : *masterJson->sticker_json) {
        if (!record || !nonEmpty(record->sticker_image))
            continue;
        QRectF frame;
        if (reEdit) {
            frame = QRectF(record->xPos.value_or(0) - layerInset, record->yPos.value_or(0) - layerInset,
                record->width.value_or(0), record->height.value_or(0));
        } else {
            const QRectF r = convertRect(record->xPos, record->yPos, record->width, record->height);
            frame = r.translated(-layerInset, -layerInset);
            record->sticker_image = resolveName(*record->sticker_image);
            if (record->angle)
                record->angle = *record->angle * M_PI / 180.0;
        }
        if (!record->color)
            record->color = QStringLiteral("FFFFFF");
        addSticker(frame, record, true);
    }
}

void EditorSession::loadTexts(bool reEdit)
{
    if (!masterJson->text_json)
        return;
    for (const auto &record : *masterJson->text_json) {
        if (!record)
            continue;
        QPointF origin;
        if (reEdit) {
            origin = QPointF(record->xPos.value_or(0), record->yPos.value_or(0));
        } else {
            origin = convertRect(record->xPos, record->yPos, std::nullopt, std::nullopt).topLeft();
            record->size = convertHeight(record->size);
            for (std::optional<QString> *name : { &record->bg_image, &record->texture_image }) {
                if (nonEmpty(*name))
                    **name = resolveName(**name);
            }
            if (record->angle)
                record->angle = *record->angle * M_PI / 180.0;
        }
        const qreal offset = layerInset + textMargin;
        addText(QRectF(origin.x() - offset, origin.y() - offset, 100.0, 100.0), record, true);
    }
}

void EditorSession::usePictureAsBackground(const QImage &picture)
{
    backgroundImageView->setImage(picture);
    defaultBgColor.reset();
    defaultBgImage = picture;
    editedImage = picture;
    croppedImage = picture;
    croppedOriginalImage = picture.copy();
    backgroundImageView->setContentMode(ImageView::ContentMode::ScaleAspectFill);
}

void EditorSession::applyBackground(const std::shared_ptr<BackgroundJson> &record)
{
    if (masterJson)
        masterJson->changed_background_json = nullptr;
    backgroundImageView->backgroundJson = record;
    backgroundImageView->clearBackground();
    bgGradientArray.clear();
    defaultBgColor.reset();
    if (!record)
        return;
    if (nonEmpty(record->background_color)) {
        backgroundImageView->setBackgroundColor(HexColor::fromString(*record->background_color));
        defaultBgColor = backgroundImageView->backgroundColor();
    }
    if (nonEmpty(record->texture_image)) {
        bgPatternImage = pictureFor(*record->texture_image);
        if (!bgPatternImage.isNull())
            backgroundImageView->setPatternColor(bgPatternImage);
    }
    if (record->gradient_colors && !record->gradient_colors->isEmpty()) {
        bgGradientArray = *record->gradient_colors;
        QList<QColor> colors;
        for (const QString &hex : std::as_const(bgGradientArray))
            colors.append(HexColor::fromString(hex));
        backgroundImageView->setGradient(colors);
    }
    if (nonEmpty(record->background_image)) {
        const QImage picture = pictureFor(*record->background_image);
        backgroundImageView->setImage(picture);
        editedImage = defaultBgImage = croppedImage = croppedOriginalImage = picture;
    }
}

void EditorSession::deselectAll(bool changeBar)
{
    Q_UNUSED(changeBar);
    if (selectedView)
        selectedView->hideControls();
    if (selectedIconImgView)
        selectedIconImgView->hideControls();
    if (selectedImageView)
        selectedImageView->hideControls();
    if (selectedBorderedImageView)
        selectedBorderedImageView->isActive = false;
    selectedView = nullptr;
    selectedIconImgView = nullptr;
    selectedImageView = nullptr;
    selectedBorderedImageView = nullptr;
}

StaticResizableImageView *EditorSession::addImageSticker(
    const QRectF &frame, const std::shared_ptr<ImageStickerJson> &record, bool isLoading)
{
    Q_UNUSED(isLoading);
    deselectAll();
    auto *slot = new StaticResizableImageView(frame);
    slot->delegate = this;
    if (record->image_sticker_selected_image)
        slot->contentImageView->setImage(*record->image_sticker_selected_image);
    else if (nonEmpty(record->image_sticker_image))
        slot->contentImageView->setImage(pictureFor(*record->image_sticker_image));
    viewMain->insertSubview(slot, viewMain->subviews().indexOf(fgImageView));
    if (record->angle)
        slot->applyAngle(*record->angle);
    if (record->is_round.value_or(false))
        slot->setRound(true);
    slot->imageStickerJson = record;
    slot->setTag(imageStickerJsonIndex);
    ++imageStickerJsonIndex;
    return slot;
}

BorderedResizableImageView *EditorSession::addFrameImageSticker(
    const QRectF &frame, const std::shared_ptr<FrameImageStickerJson> &record, bool isLoading)
{
    Q_UNUSED(isLoading);
    deselectAll();
    auto *slot = new BorderedResizableImageView(frame);
    slot->delegate = this;
    if (record->image_sticker_selected_image)
        slot->setPicture(*record->image_sticker_selected_image);
    else if (nonEmpty(record->image_sticker_image))
        slot->setPicture(pictureFor(*record->image_sticker_image));
    viewMain->insertSubview(slot, viewMain->subviews().indexOf(fgImageView));
    if (record->angle)
        slot->applyAngle(*record->angle);
    slot->frameImageStickerJson = record;
    slot->setTag(frameImageStickerJsonIndex);
    ++frameImageStickerJsonIndex;
    return slot;
}

void EditorSession::requestLeave()
{
    auto *alert = new AlertModel(tr("Confirm"), tr("Are you sure?"));
    alert->addAction(tr("NO"), AlertModel::Style::Cancel);
    alert->addAction(tr("YES"), AlertModel::Style::Default, [this] { leave(); });
    if (NavigationController *navigation = navigationController())
        navigation->presentAlert(alert);
    else
        delete alert;
}

void EditorSession::leave()
{
    if (NavigationController *navigation = navigationController())
        navigation->pop();
}

// Delegates. Records are shared with the document, so a replacement by `index` mostly finds the same
// object; it matters when a layer was given a new record (undo, duplicate).

void EditorSession::stickerDidSelect(ResizableImageView *view)
{
    deselectAll();
    selectedIconImgView = view;
    Q_EMIT layersChanged();
}

void EditorSession::stickerDidDeselect(ResizableImageView *view)
{
    Q_UNUSED(view);
}

void EditorSession::stickerWillClose(ResizableImageView *view)
{
    if (view->stickerJson) {
        view->stickerJson->status = 3;
        if (masterJson->sticker_json)
            masterJson->sticker_json->removeOne(view->stickerJson);
    }
    deselectAll();
}

void EditorSession::stickerDidClose(ResizableImageView *view)
{
    Q_UNUSED(view);
    Q_EMIT layersChanged();
}

void EditorSession::stickerDidUpdate(std::shared_ptr<StickerJson> json)
{
    replaceByIndex(masterJson->sticker_json, json);
    Q_EMIT layersChanged();
}

void EditorSession::stickerDidAttach(std::shared_ptr<StickerJson> json)
{
    replaceByIndex(masterJson->sticker_json, json);
}

void EditorSession::stickerDidDrag(ResizableImageView *view)
{
    Q_UNUSED(view);
    gridView->setHidden(false);
}

void EditorSession::stickerDidEndDrag(ResizableImageView *view)
{
    Q_UNUSED(view);
    gridView->setHidden(true);
}

void EditorSession::textDidSelect(ResizableView *view)
{
    deselectAll();
    selectedView = view;
    Q_EMIT layersChanged();
}

void EditorSession::textDidDeselect(ResizableView *view)
{
    Q_UNUSED(view);
}

void EditorSession::textWillClose(ResizableView *view)
{
    if (view->textJson) {
        view->textJson->status = 3;
        if (masterJson->text_json)
            masterJson->text_json->removeOne(view->textJson);
    }
    deselectAll();
    Q_EMIT layersChanged();
}

void EditorSession::textDidUpdate(std::shared_ptr<TextJson> json)
{
    replaceByIndex(masterJson->text_json, json);
    Q_EMIT layersChanged();
}

void EditorSession::textDidAttach(std::shared_ptr<TextJson> json)
{
    replaceByIndex(masterJson->text_json, json);
}

void EditorSession::textDidDrag(ResizableView *view)
{
    Q_UNUSED(view);
    gridView->setHidden(false);
}

void EditorSession::textDidEndDrag(ResizableView *view)
{
    Q_UNUSED(view);
    gridView->setHidden(true);
}

void EditorSession::slotDidSelect(View *slot)
{
    deselectAll();
    if (auto *picture = qobject_cast<StaticResizableImageView *>(slot))
        selectedImageView = picture;
    else if (auto *outlined = qobject_cast<BorderedResizableImageView *>(slot))
        selectedBorderedImageView = outlined;
    Q_EMIT layersChanged();
}

void EditorSession::slotDidDeselect(View *slot)
{
    Q_UNUSED(slot);
}

void EditorSession::slotWillClose(View *slot)
{
    Q_UNUSED(slot);
    deselectAll();
}

void EditorSession::slotDidUpdate(const std::shared_ptr<ImageStickerJson> &record)
{
    replaceByIndex(masterJson->image_sticker_json, record);
}

void EditorSession::slotDidUpdate(const std::shared_ptr<FrameImageStickerJson> &record)
{
    replaceByIndex(masterJson->frame_image_sticker_json, record);
}

void EditorSession::slotDidClose(View *slot)
{
    Q_UNUSED(slot);
    Q_EMIT layersChanged();
}

void EditorSession::slotDidAttach(const std::shared_ptr<ImageStickerJson> &record)
{
    replaceByIndex(masterJson->image_sticker_json, record);
}

void EditorSession::slotDidAttach(const std::shared_ptr<FrameImageStickerJson> &record)
{
    replaceByIndex(masterJson->frame_image_sticker_json, record);
}

ResizableImageView *EditorSession::addSticker(
    const QRectF &frame, const std::shared_ptr<StickerJson> &record, bool isLoading)
{
    deselectAll();
    auto *sticker = new ResizableImageView(frame);
    sticker->delegate = this;
    const QImage picture = pictureFor(record->sticker_image.value_or(QString()));
    sticker->contentImageView->tintedImage = picture;
    sticker->contentImageView->setImage(picture);
    viewMain->insertSubview(sticker, viewMain->subviews().indexOf(fgImageView));
    sticker->setControlsHidden(true);
    if (record->angle)
        sticker->applyLoadedAngle(*record->angle);
    sticker->stickerJson = record;
    if (const QColor tint = HexColor::fromString(record->color.value_or(QString())); tint.isValid())
        sticker->setStickerColor(tint);
    if (record->opacity)
        sticker->contentImageView->setAlpha(*record->opacity / 100.0);
    Q_UNUSED(isLoading);
    sticker->setTag(stickerJsonIndex);
    ++stickerJsonIndex;
    return sticker;
}

ResizableView *EditorSession::addText(const QRectF &frame, const std::shared_ptr<TextJson> &record, bool isLoading)
{
    deselectAll();
    auto *text = new ResizableView(frame);
    text->delegate = this;
    viewMain->insertSubview(text, viewMain->subviews().indexOf(fgImageView));
    text->loadFromJson(record, viewMain->bounds().width(), textJsonIndex, isLoading);
    ++textJsonIndex;
    return text;
}
