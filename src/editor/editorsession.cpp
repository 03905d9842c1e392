#include "editorsession.h"

#include "alertmodel.h"
#include "appassets.h"
#include "applog.h"
#include "apppaths.h"
#include "backgroundimageview.h"
#include "borderedresizableimageview.h"
#include "canvasrenderer.h"
#include "designsaver.h"
#include "designstore.h"
#include "gobackdelegate.h"
#include "hexcolor.h"
#include "layerflash.h"
#include "layerview.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "picturefile.h"
#include "picturesource.h"
#include "previewwriter.h"
#include "resizableimageview.h"
#include "resizableview.h"
#include "staticresizableimageview.h"
#include "stickersize.h"

#include <QDebug>
#include <QDir>
#include <QFutureWatcher>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QUrl>
#include <QtConcurrent/QtConcurrentRun>
#include <QtMath>

#include <algorithm>

namespace {

// A sticker's picture sits this far inside its layer; a text's glyphs a further inner margin inside that.
constexpr qreal layerInset = 14.0;
constexpr qreal textMargin = 8.0;

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

template<class Record>
std::shared_ptr<Record> findByIndex(const RecordList<Record> &list, const std::optional<qint64> &index)
{
    if (list) {
        for (const auto &entry : *list) {
            if (entry && entry->index == index)
                return entry;
        }
    }
    return nullptr;
}

// An absent `index` matches an absent one.
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
    , undoManager([this](UndoHistory::Operation operation, nlohmann::ordered_json content) {
        performUndoOperation(operation, std::move(content));
    })
    , viewContent(new View(QRectF(), this))
    , mainView(new ImageView())
    , viewMain(new View())
    , backgroundImageView(new BackgroundImageView())
    , fgImageView(new ImageView())
    , gridView(new View())
    , m_className(QLatin1String(className))
    , m_layerItems(new LayerListModel(this))
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
    if (const QScreen *screen = qGuiApp ? QGuiApplication::primaryScreen() : nullptr)
        screenSize = screen->size();
    connect(&undoManager, &UndoHistory::didUndo, this, &EditorSession::updateUndoAndRedoButtons);
    connect(&undoManager, &UndoHistory::didRedo, this, &EditorSession::updateUndoAndRedoButtons);
}

EditorSession::~EditorSession()
{
    m_previewWrite.waitForFinished();
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
        loadReEdit(documentForPicture(croppedImage));
    }
}

std::shared_ptr<Json> EditorSession::documentForPicture(const QImage &picture)
{
    auto document = std::make_shared<Json>();
    document->text_json.emplace();
    document->sticker_json.emplace();
    document->image_sticker_json.emplace();
    document->frame_image_sticker_json.emplace();
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

void EditorSession::showPicture(
    const QString &value, View *host, const std::function<void(const QImage &picture)> &apply) const
{
    if (const QImage picture = pictureFor(value); !picture.isNull())
        apply(picture);
    else
        PictureSource::show(value, host, apply);
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
    if (isCreateOwn)
        document->sample_image = PreviewWriter::write(render(false));
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
    updateUndoAndRedoButtons();
}

nlohmann::ordered_json EditorSession::documentDictionary() const
{
    return masterJson ? Mapper::toJSON(*masterJson) : nlohmann::ordered_json::object();
}

void EditorSession::loadSlots(bool reEdit)
{
    auto asBackground = [this](const std::optional<QImage> &selected, const std::optional<QString> &name) {
        if (selected && !selected->isNull())
            usePictureAsBackground(*selected);
        else if (!selected && nonEmpty(name))
            showPicture(*name, backgroundImageView, [this](const QImage &picture) { usePictureAsBackground(picture); });
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
                frame = storedSlotFrame(*record);
            } else {
                const QRectF r = convertRect(record->xPos, record->yPos, record->width, record->height);
                constexpr qreal inset = StaticResizableImageView::contentInset;
                constexpr qreal grow = StaticResizableImageView::buttonSize;
                frame = QRectF(r.x() - inset, r.y() - inset, r.width() + grow, r.height() + grow);
                if (record->angle)
                    record->angle = *record->angle * M_PI / 180.0;
            }
            addImageSticker(frame, record, true);
            if (is_pip)
                asBackground(record->image_sticker_selected_image, record->image_sticker_image);
        }
    }
    imageLimit = 0;
    if (hasOutlinedSlots() && masterJson->frame_image_sticker_json) {
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
                frame = storedSlotFrame(*record);
            } else {
                const QRectF r = convertRect(record->xPos, record->yPos, record->width, record->height);
                constexpr qreal inset = BorderedResizableImageView::contentInset + 1;
                constexpr qreal grow = BorderedResizableImageView::buttonSize + 2;
                frame = QRectF(r.x() - inset, r.y() - inset, r.width() + grow, r.height() + grow);
                if (record->angle)
                    record->angle = *record->angle * M_PI / 180.0;
            }
            addFrameImageSticker(frame, record, true);
            ++imageLimit;
            if (is_pip)
                asBackground(record->image_sticker_selected_image, record->image_sticker_image);
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
    showPicture(*frame->frame_image, fgImageView, [this](const QImage &picture) { fgImageView->setImage(picture); });
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
            frame = storedStickerFrame(*record);
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
        QRectF frame;
        if (reEdit) {
            frame = storedTextFrame(*record);
        } else {
            const QPointF origin = convertRect(record->xPos, record->yPos, std::nullopt, std::nullopt).topLeft();
            frame = QRectF(origin.x() - layerInset - textMargin, origin.y() - layerInset - textMargin, 100.0, 100.0);
            record->size = convertHeight(record->size);
            for (std::optional<QString> *name : { &record->bg_image, &record->texture_image }) {
                if (nonEmpty(*name))
                    **name = resolveName(**name);
            }
            if (record->angle)
                record->angle = *record->angle * M_PI / 180.0;
        }
        addText(frame, record, true);
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

void EditorSession::applyBackground(std::shared_ptr<BackgroundJson> record)
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
        // A picture that arrives after the background has changed again is dropped.
        showPicture(*record->texture_image, backgroundImageView, [this, record](const QImage &picture) {
            if (backgroundImageView->backgroundJson != record)
                return;
            bgPatternImage = picture;
            backgroundImageView->setPatternColor(picture);
        });
    }
    if (record->gradient_colors && !record->gradient_colors->isEmpty()) {
        bgGradientArray = *record->gradient_colors;
        QList<QColor> colors;
        for (const QString &hex : std::as_const(bgGradientArray))
            colors.append(HexColor::fromString(hex));
        backgroundImageView->setGradient(colors);
    }
    if (nonEmpty(record->background_image)) {
        showPicture(*record->background_image, backgroundImageView, [this, record](const QImage &picture) {
            if (backgroundImageView->backgroundJson != record)
                return;
            backgroundImageView->setImage(picture);
            editedImage = defaultBgImage = croppedImage = croppedOriginalImage = picture;
        });
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
    deselectAll();
    auto *slot = new StaticResizableImageView(frame);
    slot->delegate = this;
    if (record->image_sticker_selected_image)
        slot->contentImageView->setImage(*record->image_sticker_selected_image);
    else if (nonEmpty(record->image_sticker_image))
        showPicture(*record->image_sticker_image, slot,
            [slot](const QImage &picture) { slot->contentImageView->setImage(picture); });
    viewMain->insertSubview(slot, viewMain->subviews().indexOf(fgImageView));
    if (record->angle)
        slot->applyAngle(*record->angle);
    if (record->is_round.value_or(false))
        slot->setRound(true);
    slot->imageStickerJson = record;
    if (isLoading)
        LayerFlash::flash(slot);
    slot->setTag(imageStickerJsonIndex);
    ++imageStickerJsonIndex;
    return slot;
}

BorderedResizableImageView *EditorSession::addFrameImageSticker(
    const QRectF &frame, const std::shared_ptr<FrameImageStickerJson> &record, bool isLoading)
{
    deselectAll();
    auto *slot = new BorderedResizableImageView(frame);
    slot->delegate = this;
    if (record->image_sticker_selected_image)
        slot->setPicture(*record->image_sticker_selected_image);
    else if (nonEmpty(record->image_sticker_image))
        showPicture(*record->image_sticker_image, slot, [slot](const QImage &picture) { slot->setPicture(picture); });
    viewMain->insertSubview(slot, viewMain->subviews().indexOf(fgImageView));
    if (record->angle)
        slot->applyAngle(*record->angle);
    slot->frameImageStickerJson = record;
    if (isLoading)
        LayerFlash::flash(slot);
    slot->setTag(frameImageStickerJsonIndex);
    ++frameImageStickerJsonIndex;
    return slot;
}

AlertModel *EditorSession::leaveConfirmation()
{
    auto *alert = new AlertModel(tr("Confirm"), tr("Are you sure?"));
    alert->addAction(tr("NO"), AlertModel::Style::Cancel);
    alert->addAction(tr("YES"), AlertModel::Style::Default, [this] { leave(); });
    return alert;
}

void EditorSession::requestLeave()
{
    AlertModel *alert = leaveConfirmation();
    if (NavigationController *navigation = navigationController())
        navigation->presentAlert(alert);
    else
        delete alert;
}

void EditorSession::leave()
{
    if (m_leaving)
        return;
    m_leaving = true;
    if (!isChanges) {
        finishLeaving(nullptr);
        return;
    }
    QPointer<AlertModel> notice = new AlertModel(QString(), tr("Saving your design…"));
    if (NavigationController *navigation = navigationController())
        navigation->presentAlert(notice);
    else
        delete notice;
    // The notice is painted and the selection gone before the canvas is drawn.
    QTimer::singleShot(leaveNoticeMs, this, [this, notice] {
        saveImg = render(false);
        saveDesign(saveImg, [this, notice] {
            if (GoBackDelegate *delegate = GoBackDelegate::shared())
                delegate->goBack();
            finishLeaving(notice);
        });
    });
}

void EditorSession::finishLeaving(const QPointer<AlertModel> &notice)
{
    if (notice)
        notice->close();
    Q_EMIT didLeave();
    if (NavigationController *navigation = navigationController())
        navigation->pop();
}

QImage EditorSession::render(bool isHD)
{
    deselectAll(false);
    // Empty outlined slots show a placeholder that is no part of the design.
    QList<View *> placeholders;
    for (View *view : viewMain->subviews()) {
        auto *outlined = qobject_cast<BorderedResizableImageView *>(view);
        if (outlined && outlined->isNotImage() && !outlined->isHidden()) {
            outlined->setHidden(true);
            placeholders.append(outlined);
        }
    }
    const int factor = isHD ? 2 : 1;
    const QSize target(qRound(masterJson ? masterJson->width.value_or(0) * factor : 0),
        qRound(masterJson ? masterJson->height.value_or(0) * factor : 0));
    QImage picture = CanvasRenderer::renderImage(*viewMain, target);
    for (View *view : std::as_const(placeholders))
        view->setHidden(false);
    return picture;
}

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

void EditorSession::saveDesign(const QImage &image, std::function<void()> done)
{
    auto *watcher = new QFutureWatcher<PreviewNames>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, done = std::move(done)] {
        const PreviewNames names = watcher->result();
        watcher->deleteLater();
        if (masterJson) {
            // The store carries the stickers in the order the user stacked them.
            RecordList<StickerJson> stickers(std::in_place);
            for (View *view : viewMain->subviews()) {
                if (auto *sticker = qobject_cast<ResizableImageView *>(view); sticker && sticker->stickerJson)
                    stickers->append(sticker->stickerJson);
            }
            DesignSaver saver(store(), objectId);
            saver.saveFinal(*masterJson, names.sample, names.thumbnail, std::move(stickers));
            objectId = saver.objectId();
        }
        if (done)
            done();
    });
    auto write = QtConcurrent::run(writePreviews, image);
    m_previewWrite = write;
    watcher->setFuture(write);
}

// Recording. Records are shared with the document, so a replacement by `index` mostly finds the same
// object; it matters when a layer holds a record of an older snapshot (after undo, redo, duplicate).

void EditorSession::clearChanged()
{
    masterJson->changed_background_json = nullptr;
    masterJson->changed_text_json.emplace();
    masterJson->changed_sticker_json.emplace();
    masterJson->changed_image_sticker_json.emplace();
    masterJson->changed_frame_image_sticker_json.emplace();
}

template<class Record>
void EditorSession::recordChange(Field<Record> array, Field<Record> changed, const std::shared_ptr<Record> &record)
{
    if (!masterJson || !record)
        return;
    clearChanged();
    replaceByIndex(*masterJson.*array, record);
    (*masterJson.*changed)->append(record);
    finishStep();
}

template<class Record>
void EditorSession::recordAdded(Field<Record> array, Field<Record> changed, const std::shared_ptr<Record> &record)
{
    if (!masterJson || !record)
        return;
    RecordList<Record> &list = *masterJson.*array;
    // A layer made from a record of the document (load, replay) finds it, and nothing is recorded.
    if (findByIndex(list, record->index)) {
        replaceByIndex(list, record);
        return;
    }
    clearChanged();
    if (!list)
        list.emplace();
    list->append(record);
    record->status = 1;
    (*masterJson.*changed)->append(record);
    finishStep();
}

template<class Record>
void EditorSession::recordClosed(Field<Record> array, Field<Record> changed, const std::shared_ptr<Record> &record)
{
    if (!masterJson || !record)
        return;
    clearChanged();
    if (RecordList<Record> &list = *masterJson.*array) {
        list->removeIf(
            [&record](const std::shared_ptr<Record> &entry) { return entry && entry->index == record->index; });
    }
    record->status = 3;
    (*masterJson.*changed)->append(record);
    finishStep();
}

void EditorSession::finishStep()
{
    recordStep(documentDictionary());
    automaticSave();
}

void EditorSession::recordStep(nlohmann::ordered_json snapshot)
{
    undoManager.registerUndo(UndoHistory::Operation::RemoveContent, snapshot);
    undoManager.setActionName(QStringLiteral("add content"));
    undoArray.append(std::move(snapshot));
    updateUndoAndRedoButtons();
}

void EditorSession::backgroundDidUpdate(const std::shared_ptr<BackgroundJson> &record)
{
    if (!masterJson || !record)
        return;
    clearChanged();
    masterJson->background_json = record;
    masterJson->changed_background_json = record;
    recordStep(documentDictionary());
    // The snapshot carries the background delta; the live model rests without it.
    masterJson->changed_background_json = nullptr;
    automaticSave();
}

void EditorSession::setDesignStore(DesignStore *store)
{
    m_store = store;
}

DesignStore &EditorSession::store()
{
    if (!m_store) {
        m_ownStore = std::make_unique<DesignStore>();
        m_store = m_ownStore.get();
    }
    return *m_store;
}

void EditorSession::automaticSave()
{
    if (!masterJson)
        return;
    DesignSaver saver(store(), objectId);
    saver.saveEdit(*masterJson);
    objectId = saver.objectId();
    // An edit counts even when the store failed: leaving tries to store it again.
    setChanges(true);
}

void EditorSession::setChanges(bool changes)
{
    if (isChanges == changes)
        return;
    isChanges = changes;
    Q_EMIT changesChanged();
}

// Replay.

void EditorSession::performUndoOperation(UndoHistory::Operation operation, nlohmann::ordered_json content)
{
    if (operation == UndoHistory::Operation::RemoveContent)
        removeContent(std::move(content));
    else
        addContent(std::move(content));
}

namespace {

// Of the present entry an undo reads only the delta; mapping the whole document would cost as much
// as mapping the previous one, which the undo does need.
nlohmann::ordered_json deltaOf(const nlohmann::ordered_json &snapshot)
{
    if (!snapshot.is_object())
        return snapshot;
    nlohmann::ordered_json delta = nlohmann::ordered_json::object();
    for (const char *key : { "changed_text_json", "changed_sticker_json", "changed_image_sticker_json",
             "changed_frame_image_sticker_json", "changed_background_json" }) {
        if (const auto found = snapshot.find(key); found != snapshot.end())
            delta[key] = *found;
    }
    return delta;
}

template<class Record> QList<qint64> indexesOf(const RecordList<Record> &records)
{
    QList<qint64> indexes;
    if (records) {
        for (const auto &record : *records) {
            if (record && record->index)
                indexes.append(*record->index);
        }
    }
    return indexes;
}

// Marks the records of `previous` that the undone step touched as changed, so that their layers are
// rebuilt. When the step touched none that existed before, it added layers: the current delta, still
// with status 1, tells the replay to remove them.
template<class Record>
void markTouched(Json &previous, const Json &current, RecordList<Record> Json::*array,
    RecordList<Record> Json::*changed, QList<qint64> indexes)
{
    RecordList<Record> &delta = previous.*changed;
    delta.emplace();
    bool matched = false;
    if (const RecordList<Record> &records = previous.*array) {
        for (const auto &record : *records) {
            if (record && record->index && indexes.removeOne(*record->index)) {
                record->status = 2;
                delta->append(record);
                matched = true;
            }
        }
    }
    if (!matched)
        delta = current.*changed;
}

} // namespace

void EditorSession::removeContent(nlohmann::ordered_json content)
{
    undoManager.registerUndo(UndoHistory::Operation::AddContent, std::move(content));
    undoManager.setActionName(QStringLiteral("remove content"));
    if (undoArray.isEmpty())
        return;
    const std::shared_ptr<Json> current = Mapper::map<Json>(deltaOf(undoArray.last()));
    undoArray.removeLast();
    if (undoArray.isEmpty() || !current)
        return updateUndoAndRedoButtons();
    const std::shared_ptr<Json> previous = Mapper::map<Json>(undoArray.last());
    if (!previous)
        return updateUndoAndRedoButtons();
    previous->changed_background_json = current->changed_background_json ? previous->background_json : nullptr;
    markTouched(*previous, *current, &Json::text_json, &Json::changed_text_json, indexesOf(current->changed_text_json));
    markTouched(*previous, *current, &Json::sticker_json, &Json::changed_sticker_json,
        indexesOf(current->changed_sticker_json));
    markTouched(*previous, *current, &Json::image_sticker_json, &Json::changed_image_sticker_json,
        indexesOf(current->changed_image_sticker_json));
    markTouched(*previous, *current, &Json::frame_image_sticker_json, &Json::changed_frame_image_sticker_json,
        indexesOf(current->changed_frame_image_sticker_json));
    applyDocument(previous, true);
}

void EditorSession::addContent(nlohmann::ordered_json content)
{
    undoManager.registerUndo(UndoHistory::Operation::RemoveContent, content);
    undoManager.setActionName(QStringLiteral("add content"));
    undoArray.append(std::move(content));
    if (const std::shared_ptr<Json> json = Mapper::map<Json>(undoArray.last()))
        applyDocument(json, false);
    updateUndoAndRedoButtons();
}

void EditorSession::forgetSelectionOf(View *layer)
{
    if (selectedView == layer)
        selectedView = nullptr;
    if (selectedIconImgView == layer)
        selectedIconImgView = nullptr;
    if (selectedImageView == layer)
        selectedImageView = nullptr;
    if (selectedBorderedImageView == layer)
        selectedBorderedImageView = nullptr;
}

namespace {

std::optional<qint64> indexOfLayer(const StaticResizableImageView &layer)
{
    return layer.imageStickerJson ? layer.imageStickerJson->index : std::nullopt;
}
std::optional<qint64> indexOfLayer(const BorderedResizableImageView &layer)
{
    return layer.frameImageStickerJson ? layer.frameImageStickerJson->index : std::nullopt;
}
std::optional<qint64> indexOfLayer(const ResizableImageView &layer)
{
    return layer.stickerJson ? layer.stickerJson->index : std::nullopt;
}
std::optional<qint64> indexOfLayer(const ResizableView &layer)
{
    return layer.textJson ? layer.textJson->index : std::nullopt;
}

} // namespace

template<class Layer, class Record>
void EditorSession::replayKind(
    Field<Record> changed, bool isUndo, const std::function<void(const std::shared_ptr<Record> &)> &make)
{
    // A copy: a layer made below may record a step of its own, which empties the delta.
    const RecordList<Record> records = *masterJson.*changed;
    if (!records)
        return;
    const QList<qint64> indexes = indexesOf(records);
    const QList<View *> subviews = viewMain->subviews();
    for (View *view : subviews) {
        auto *layer = qobject_cast<Layer *>(view);
        if (!layer)
            continue;
        const std::optional<qint64> index = indexOfLayer(*layer);
        if (!index || !indexes.contains(*index))
            continue;
        forgetSelectionOf(layer);
        layer->removeFromSuperview();
        layer->deleteLater();
    }
    constexpr bool isSelectable = std::is_same_v<Layer, ResizableImageView> || std::is_same_v<Layer, ResizableView>;
    for (const auto &record : *records) {
        if (!record)
            continue;
        if ((record->status == 1 && isUndo) || (record->status == 3 && !isUndo)) {
            if (isSelectable)
                deselectAll();
            continue;
        }
        make(record);
    }
}

void EditorSession::applyDocument(const std::shared_ptr<Json> &json, bool isUndo)
{
    masterJson = json;
    if (json->changed_background_json)
        applyBackground(json->changed_background_json);
    replayKind<StaticResizableImageView, ImageStickerJson>(
        &Json::changed_image_sticker_json, isUndo, [this](const std::shared_ptr<ImageStickerJson> &record) {
            addImageSticker(storedSlotFrame(*record), record, false);
        });
    // Only the load counts the outlined slots.
    imageLimit = 0;
    replayKind<BorderedResizableImageView, FrameImageStickerJson>(
        &Json::changed_frame_image_sticker_json, isUndo, [this](const std::shared_ptr<FrameImageStickerJson> &record) {
            addFrameImageSticker(storedSlotFrame(*record), record, false);
        });
    replayKind<ResizableImageView, StickerJson>(&Json::changed_sticker_json, isUndo,
        [this](const std::shared_ptr<StickerJson> &record) { addSticker(storedStickerFrame(*record), record, false); });
    replayKind<ResizableView, TextJson>(&Json::changed_text_json, isUndo,
        [this](const std::shared_ptr<TextJson> &record) { addText(storedTextFrame(*record), record, false); });
    automaticSave();
    Q_EMIT layersChanged();
}

QRectF EditorSession::storedStickerFrame(const StickerJson &record)
{
    return { record.xPos.value_or(0) - layerInset, record.yPos.value_or(0) - layerInset, record.width.value_or(0),
        record.height.value_or(0) };
}

QRectF EditorSession::storedTextFrame(const TextJson &record)
{
    const qreal offset = layerInset + textMargin;
    return { record.xPos.value_or(0) - offset, record.yPos.value_or(0) - offset, 100.0, 100.0 };
}

template<class Record> QRectF EditorSession::storedSlotFrame(const Record &record)
{
    // The record holds the slot's size less the margin; every load gives it back.
    constexpr qreal margin = std::is_same_v<Record, ImageStickerJson> ? StaticResizableImageView::buttonSize
                                                                      : BorderedResizableImageView::buttonSize;
    return { record.xPos.value_or(0), record.yPos.value_or(0), record.width.value_or(0) + margin,
        record.height.value_or(0) + margin };
}

void EditorSession::updateUndoAndRedoButtons()
{
    const bool canUndo = undoManager.canUndo();
    const bool canRedo = undoManager.canRedo();
    if (canUndo == m_canUndo && canRedo == m_canRedo)
        return;
    m_canUndo = canUndo;
    m_canRedo = canRedo;
    Q_EMIT undoStateChanged();
}

void EditorSession::undo()
{
    undoManager.undo();
}

void EditorSession::redo()
{
    undoManager.redo();
}

// Layer delegates.

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
    if (selectedIconImgView == view)
        deselectAll();
    recordClosed(&Json::sticker_json, &Json::changed_sticker_json, view->stickerJson);
}

void EditorSession::stickerDidClose(ResizableImageView *view)
{
    Q_UNUSED(view);
    Q_EMIT layersChanged();
}

void EditorSession::stickerDidUpdate(std::shared_ptr<StickerJson> json)
{
    recordChange(&Json::sticker_json, &Json::changed_sticker_json, json);
    Q_EMIT layersChanged();
}

void EditorSession::stickerDidAttach(std::shared_ptr<StickerJson> json)
{
    recordAdded(&Json::sticker_json, &Json::changed_sticker_json, json);
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
    if (selectedView == view)
        deselectAll();
    recordClosed(&Json::text_json, &Json::changed_text_json, view->textJson);
    // A text says nothing after it has left the canvas; the layer list is current once it has.
    QMetaObject::invokeMethod(this, &EditorSession::layersChanged, Qt::QueuedConnection);
}

void EditorSession::textDidUpdate(std::shared_ptr<TextJson> json)
{
    recordChange(&Json::text_json, &Json::changed_text_json, json);
    Q_EMIT layersChanged();
}

void EditorSession::textDidAttach(std::shared_ptr<TextJson> json)
{
    recordAdded(&Json::text_json, &Json::changed_text_json, json);
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
    // Only an outlined slot can be closed; a picture slot has no close button.
    auto *outlined = qobject_cast<BorderedResizableImageView *>(slot);
    if (!outlined)
        return;
    if (selectedBorderedImageView == outlined)
        deselectAll();
    recordClosed(
        &Json::frame_image_sticker_json, &Json::changed_frame_image_sticker_json, outlined->frameImageStickerJson);
}

void EditorSession::slotDidUpdate(const std::shared_ptr<ImageStickerJson> &record)
{
    recordChange(&Json::image_sticker_json, &Json::changed_image_sticker_json, record);
}

void EditorSession::slotDidUpdate(const std::shared_ptr<FrameImageStickerJson> &record)
{
    recordChange(&Json::frame_image_sticker_json, &Json::changed_frame_image_sticker_json, record);
}

void EditorSession::slotDidClose(View *slot)
{
    Q_UNUSED(slot);
    Q_EMIT layersChanged();
}

void EditorSession::slotDidAttach(const std::shared_ptr<ImageStickerJson> &record)
{
    recordAdded(&Json::image_sticker_json, &Json::changed_image_sticker_json, record);
}

void EditorSession::slotDidAttach(const std::shared_ptr<FrameImageStickerJson> &record)
{
    recordAdded(&Json::frame_image_sticker_json, &Json::changed_frame_image_sticker_json, record);
}

// New layers.

ResizableImageView *EditorSession::addNewSticker(const QImage &picture)
{
    const QSizeF size = StickerSize::forNewSticker(picture.size(), screenSize, viewMain->bounds().size());
    auto *sticker = new ResizableImageView(QRectF(QPointF(0, 44.0), size));
    sticker->delegate = this;
    sticker->contentImageView->tintedImage = picture;
    sticker->contentImageView->setImage(picture);
    sticker->setStickerColor(Qt::white);
    newStickerHasColor = false;
    sticker->stickerJson->selected_sticker_id = selected_sticker_id.value_or(47);
    sticker->stickerJson->selected_sticker_catalog_id = selected_sticker_catalog_id;
    viewMain->insertSubview(sticker, viewMain->subviews().indexOf(fgImageView));
    sticker->showControls();
    sticker->setCenter(viewMain->bounds().center());
    sticker->setTag(stickerJsonIndex);
    ++stickerJsonIndex;
    Q_EMIT layersChanged();
    return sticker;
}

ResizableView *EditorSession::addNewText(
    const QString &text, const QString &fontName, const std::optional<QColor> &color)
{
    auto *layer = new ResizableView(QRectF(0, 44.0, 100.0, 100.0));
    layer->delegate = this;
    if (color) {
        layer->textView->foregroundColor = *color;
        layer->textView->applyForegroundColor();
    }
    viewMain->insertSubview(layer, viewMain->subviews().indexOf(fgImageView));
    layer->textView->setText(text);
    layer->textView->fontName = fontName;
    layer->textView->applyFontName();
    layer->textView->fontSize = 28.0;
    layer->textView->applyFontSize();
    layer->maxWidth = viewMain->bounds().width();
    layer->resizeToFitText();
    layer->textView->editable = false;
    layer->textView->selectable = false;
    layer->showControls();
    layer->setCenter(viewMain->bounds().center());
    layer->setTag(textJsonIndex);
    ++textJsonIndex;
    Q_EMIT layersChanged();
    return layer;
}

void EditorSession::takeEnteredText(
    const QString &text, const QString &fontName, std::optional<QColor> color, bool isNewText)
{
    if (isNewText) {
        addNewText(text, fontName, color);
        return;
    }
    ResizableView *layer = selectedView;
    if (!layer)
        return;
    const qint64 style = layer->textJson ? layer->textJson->text_style : 0;
    layer->textView->setText(ResizableTextView::styled(text, style));
    if (color) {
        layer->textView->foregroundColor = *color;
        layer->textView->applyForegroundColor();
    }
    layer->textView->fontName = fontName;
    layer->textView->applyFontName();
    layer->maxWidth = viewMain->bounds().width();
    layer->resizeToFitText();
    // The entry screen's answer is one change of the text.
    if (color)
        layer->recordColourChange();
    else
        layer->recordTextChange();
}

bool EditorSession::canDuplicate() const
{
    return selectedView || selectedIconImgView;
}

void EditorSession::duplicateClicked()
{
    const QSizeF canvas = viewMain->bounds().size();
    // The copy steps aside when there is room; otherwise it lands exactly on its source.
    auto shifted = [canvas](auto &copy) {
        const double x = copy.xPos.value_or(0);
        const double y = copy.yPos.value_or(0);
        if (y <= canvas.height() - 50.0 && x <= canvas.width() - 50.0) {
            copy.xPos = x + 10.0;
            copy.yPos = y + 10.0;
        }
    };
    if (selectedView && selectedView->textJson) {
        auto copy = selectedView->textJson->copy();
        copy->index.reset();
        shifted(*copy);
        addText(storedTextFrame(*copy), copy, false);
    } else if (selectedIconImgView && selectedIconImgView->stickerJson) {
        auto copy = selectedIconImgView->stickerJson->copy();
        copy->index.reset();
        shifted(*copy);
        addSticker(storedStickerFrame(*copy), copy, false);
    }
    Q_EMIT layersChanged();
}

// The layer panel. Reordering swaps two stickers in the canvas only: no undo step, and sticker_json
// keeps its order until the explicit save rebuilds it from the stack.

bool EditorSession::canShowLayers() const
{
    const QList<View *> &subviews = viewMain->subviews();
    return std::any_of(subviews.begin(), subviews.end(),
        [](View *view) { return qobject_cast<ResizableImageView *>(view) != nullptr; });
}

void EditorSession::fillLayers()
{
    QList<ResizableImageView *> rows;
    for (View *view : viewMain->subviews()) {
        if (auto *sticker = qobject_cast<ResizableImageView *>(view))
            rows.append(sticker);
    }
    std::reverse(rows.begin(), rows.end());
    m_layerItems->setLayers(rows);
}

void EditorSession::toggleLayers()
{
    if (!m_layersShown)
        fillLayers();
    m_layersShown = !m_layersShown;
    Q_EMIT layersShownChanged();
}

void EditorSession::positionChanged(int currentIndex, int newIndex)
{
    AppLog::print(
        QStringLiteral("positionChanged currentIndex: [0, %1] newIndex: [0, %2]").arg(currentIndex).arg(newIndex));
    // A row whose layer has left the canvas meanwhile is not found, and nothing changes.
    const qsizetype from = viewMain->subviews().indexOf(m_layerItems->layerAt(currentIndex));
    const qsizetype to = viewMain->subviews().indexOf(m_layerItems->layerAt(newIndex));
    if (from < 0 || to < 0)
        return;
    m_layerItems->moveRow(currentIndex, newIndex);
    viewMain->exchangeSubview(from, to);
    setChanges(true);
    Q_EMIT layersChanged();
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
    if (isLoading)
        LayerFlash::flash(sticker);
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
