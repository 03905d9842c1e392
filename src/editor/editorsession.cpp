#include "editorsession.h"

#include "alertmodel.h"
#include "appassets.h"
#include "applog.h"
#include "backgroundimageview.h"
#include "canvasbackground.h"
#include "designloader.h"
#include "gobackdelegate.h"
#include "layerbuilder.h"
#include "layerevents.h"
#include "layerpanel.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "saveflow.h"
#include "slotpictures.h"
#include "stickersize.h"
#include "toolsliders.h"
#include "videobackground.h"
#include "videoview.h"

#include <QDebug>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

EditorSession::EditorSession(const char *className, QObject *parent, DesignKind kind)
    : ViewController(parent)
    , viewContent(new View(QRectF(), this))
    , mainView(new ImageView())
    , viewMain(new View())
    , backgroundImageView(new BackgroundImageView())
    , fgImageView(new ImageView())
    , gridView(new View())
    , m_className(QLatin1String(className))
    , m_background(std::make_unique<CanvasBackground>(*this))
    , m_layerEvents(std::make_unique<LayerEvents>(*this))
    , m_builder(std::make_unique<LayerBuilder>(*this))
    , m_loader(std::make_unique<DesignLoader>(*this))
    , m_slotPictures(std::make_unique<SlotPictures>(*this))
    , m_recorder(new UndoRecorder(masterJson, *this, this))
    , m_layerPanel(new LayerPanel(*this))
    , m_sliders(new ToolSliders(*this))
    , m_backgroundTools(new BackgroundTools(*this))
    , m_saving(new SaveFlow(*this))
    , m_menus(new ToolMenus(*this))
    , m_video(kind == DesignKind::Video ? new VideoBackground(*this) : nullptr)
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
    connect(m_recorder, &UndoRecorder::stepStored, m_saving, &SaveFlow::automaticSave);
    connect(m_recorder, &UndoRecorder::stepStored, this, &EditorSession::layersChanged);
    connect(m_recorder, &UndoRecorder::undoStateChanged, this, &EditorSession::undoStateChanged);
    connect(m_layerPanel, &LayerPanel::layersShownChanged, this, &EditorSession::layersShownChanged);
    if (m_video) {
        // The movie shows through where the checker pattern would be.
        mainView->setHidden(true);
        connect(m_video, &VideoBackground::soundChanged, this, &EditorSession::soundChanged);
    }
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

QList<QObject *> EditorSession::slotViews() const
{
    QList<QObject *> found;
    for (View *view : viewMain->subviews()) {
        if (qobject_cast<SlotView *>(view))
            found.append(view);
    }
    return found;
}

void EditorSession::setWorkAreaSize(qreal width, qreal height)
{
    if (mainViewFrame || width <= 2 * canvasSpace || height <= 2 * canvasSpace)
        return;
    setCanvasArea(QRectF(canvasSpace, canvasSpace, width - 2 * canvasSpace, height - 2 * canvasSpace));
    if (m_openPending)
        openDocument();
}

void EditorSession::setChanges(bool changes)
{
    if (m_isChanges == changes)
        return;
    m_isChanges = changes;
    Q_EMIT changesChanged();
}

void EditorSession::fail(const QString &message)
{
    m_errorString = message;
    qWarning().noquote() << "cannot open the design:" << message;
    Q_EMIT loadFailed();
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
    if (contentJson)
        loadTemplate(contentJson);
    else if (reEditJson)
        loadReEdit(reEditJson);
    else
        loadReEdit(DesignLoader::documentForPicture(m_background->croppedImage));
}

bool EditorSession::loadTemplate(const std::shared_ptr<Json> &document)
{
    return m_loader->loadTemplate(document) && loadVideo();
}

bool EditorSession::loadReEdit(const std::shared_ptr<Json> &document)
{
    return m_loader->loadReEdit(document) && loadVideo();
}

bool EditorSession::loadVideo()
{
    if (m_video)
        m_video->loadDocument();
    return true;
}

VideoView *EditorSession::videoView() const
{
    return m_video ? m_video->videoView : nullptr;
}

bool EditorSession::soundEnabled() const
{
    return m_video && m_video->soundEnabled();
}

bool EditorSession::soundMuted() const
{
    return m_video && m_video->soundMuted();
}

void EditorSession::soundPressed()
{
    if (m_video)
        m_video->soundPressed();
}

void EditorSession::videoPicked(const QUrl &file)
{
    if (m_video && file.isLocalFile())
        m_video->videoPicked(file.toLocalFile());
}

void EditorSession::viewWillAppear()
{
    if (m_video)
        m_video->applyNewVideo();
    if (!newBgImage.isNull())
        m_background->takePicture(newBgImage);
    if (!picked.newStickerImage.isNull())
        takeStickerPicture();
    newBgImage = QImage();
    picked.newStickerImage = QImage();
    picked.isStickerChange = false;
    picked.newStickerHasColor = false;
    setTintColor = false;
    Q_EMIT layersChanged();
}

void EditorSession::setNewBgImage(const QImage &picture, const QString &url)
{
    newBgImage = picture;
    bg_image_url = url;
}

void EditorSession::setBackgroundColor(const std::optional<QColor> &color)
{
    m_background->takeColour(color);
}

std::optional<QColor> EditorSession::backgroundColor() const
{
    return m_background->defaultBgColor;
}

void EditorSession::setNewStickerImage(const PickedSticker &sticker)
{
    picked = sticker;
}

void EditorSession::takeStickerPicture()
{
    ResizableImageView *sticker = selection.selectedIconImgView;
    if (!picked.isStickerChange || !sticker) {
        m_builder->addNewSticker(picked.newStickerImage);
        return;
    }
    // The sticker keeps its place and its longer side, and takes the picture's shape.
    const QImage &picture = picked.newStickerImage;
    sticker->contentImageView->tintedImage = picture;
    sticker->setStickerColor(setTintColor && sticker->contentImageView->tintColor.isValid()
            ? sticker->contentImageView->tintColor
            : QColor(Qt::white));
    if (sticker->stickerJson) {
        sticker->stickerJson->selected_sticker_id = picked.selected_sticker_id;
        sticker->stickerJson->selected_sticker_catalog_id = picked.selected_sticker_catalog_id;
    }
    const QSizeF size
        = StickerSize::forReplacement(picture.size(), sticker->mainView->bounds().size(), viewMain->bounds().size());
    sticker->setContentSize(size.width(), size.height());
    sticker->storeStickerImage();
}

void EditorSession::deselectAll(bool changeBar)
{
    selection.deselectAll();
    for (View *view : viewMain->subviews()) {
        if (auto *outlined = qobject_cast<BorderedResizableImageView *>(view))
            outlined->setActive(false);
    }
    if (changeBar)
        m_menus->selectionChanged();
}

void EditorSession::setStoryboard(const Storyboard *storyboard)
{
    m_storyboard = storyboard;
    m_slotPictures->setStoryboard(storyboard);
}

void EditorSession::backToTopLevel()
{
    m_menus->backToTopLevel();
}

void EditorSession::savePressed()
{
    Q_EMIT saveRequested();
}

nlohmann::ordered_json EditorSession::documentDictionary() const
{
    return masterJson ? Mapper::toJSON(*masterJson) : nlohmann::ordered_json::object();
}

void EditorSession::setDesignStore(DesignStore *store)
{
    m_saving->setDesignStore(store);
}

void EditorSession::undo()
{
    m_recorder->undo();
    backToTopLevel();
}

void EditorSession::redo()
{
    m_recorder->redo();
    backToTopLevel();
}

void EditorSession::removeLayers(LayerKind kind, const QList<qint64> &indexes, bool deselect)
{
    if (deselect)
        selection.clear(kind);
    // Only the load counts the outlined slots.
    if (kind == LayerKind::OutlinedSlot)
        m_builder->imageLimit = 0;
    const QList<View *> subviews = viewMain->subviews();
    for (View *view : subviews) {
        const auto identity = LayerKinds::identify(view);
        if (!identity || identity->kind != kind || !identity->index || !indexes.contains(*identity->index))
            continue;
        selection.forget(view);
        view->removeFromSuperview();
        view->deleteLater();
    }
    if (deselect && (kind == LayerKind::Sticker || kind == LayerKind::Text))
        backToTopLevel();
}

void EditorSession::makeLayer(const ReplayRecord &record)
{
    std::visit(
        [this](const auto &replayed) {
            using Record = typename std::decay_t<decltype(replayed)>::element_type;
            if constexpr (std::is_same_v<Record, BackgroundJson>)
                m_background->apply(replayed);
            else
                m_builder->addStored(replayed, false);
        },
        record);
}

ResizableImageView *EditorSession::addNewSticker(const QImage &picture)
{
    ResizableImageView *sticker = m_builder->addNewSticker(picture);
    Q_EMIT layersChanged();
    return sticker;
}

ResizableView *EditorSession::addNewText(
    const QString &text, const QString &fontName, const std::optional<QColor> &color)
{
    ResizableView *layer = m_builder->addNewText(text, fontName, color);
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
    ResizableView *layer = selection.selectedView;
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

void EditorSession::duplicateClicked()
{
    m_builder->duplicateSelected();
    Q_EMIT layersChanged();
}

int EditorSession::imagePickerTag() const
{
    return m_slotPictures->imagePickerTag;
}

void EditorSession::setImagePickerTag(int tag)
{
    m_slotPictures->imagePickerTag = tag;
}

void EditorSession::keepBgOriginalFrame()
{
    m_slotPictures->bgOriginalFrame = backgroundImageView->frame();
}

void EditorSession::replaceSelectedLayerImage(const QImage &image)
{
    if (hasSelectedSlot()) {
        replaceSelectedSlotImage(image);
    } else if (selection.selectedIconImgView) {
        // The user's own picture: it keeps its colours, and the catalog entry stays for later stickers.
        const PickedSticker kept = picked;
        picked = PickedSticker { image, true, true, kept.selected_sticker_id, kept.selected_sticker_catalog_id };
        takeStickerPicture();
        picked = kept;
        Q_EMIT layersChanged();
    }
}

void EditorSession::setBackgroundImage(const QImage &image)
{
    m_background->takePicture(image);
}

bool EditorSession::hasSelectedSlot() const
{
    return selection.selectedImageView || selection.selectedBorderedImageView;
}

void EditorSession::addSticker(const QImage &image)
{
    picked.selected_sticker_catalog_id.reset();
    addNewSticker(image);
}

void EditorSession::replaceSelectedSlotImage(const QImage &image)
{
    View *slot = selection.selectedImageView ? static_cast<View *>(selection.selectedImageView.data())
                                             : selection.selectedBorderedImageView.data();
    m_slotPictures->place(slot, image);
    Q_EMIT layersChanged();
}

void EditorSession::choosePictureFor(View *slot)
{
    m_slotPictures->choosePictureFor(slot);
}

bool EditorSession::canShowLayers() const
{
    return m_layerPanel->canShowLayers();
}

bool EditorSession::layersShown() const
{
    return m_layerPanel->layersShown();
}

LayerListModel *EditorSession::layerModel() const
{
    return m_layerPanel->layerModel();
}

void EditorSession::toggleLayers()
{
    m_layerPanel->toggleLayers();
}

void EditorSession::positionChanged(int currentIndex, int newIndex)
{
    m_layerPanel->positionChanged(currentIndex, newIndex);
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
    if (!m_isChanges) {
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
        saveImg = m_saving->render(false);
        m_saving->saveDesign(saveImg, [this, notice] {
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
