#pragma once

#include "json.h"
#include "layerlistmodel.h"
#include "objectid.h"
#include "resizableimageviewdelegate.h"
#include "resizableviewdelegate.h"
#include "slotdelegate.h"
#include "textentrytarget.h"
#include "undohistory.h"
#include "viewcontroller.h"

#include <QFuture>
#include <QImage>
#include <QPointer>
#include <QRectF>

#include <nlohmann/json.hpp>

#include <functional>
#include <memory>
#include <optional>

class AlertModel;
class BackgroundImageView;
class BorderedResizableImageView;
class DesignStore;
class ImageView;
class ResizableImageView;
class ResizableView;
class StaticResizableImageView;
class View;

/**
 * One design open in an editor: the canvas of layer views and the live document `masterJson` they
 * write into. It fits the design into the available area, turns the document's records into layers in
 * a fixed order, and keeps the two in step. It needs no screen: the five editors are thin subclasses
 * that add their own bars, and quillet-tool drives it headless.
 */
class EditorSession : public ViewController,
                      public ResizableImageViewDelegate,
                      public ResizableViewDelegate,
                      public SlotDelegate<ImageStickerJson>,
                      public SlotDelegate<FrameImageStickerJson>,
                      public TextEntryTarget
{
    Q_OBJECT
    /** The fitted canvas in the coordinates of the work area. */
    Q_PROPERTY(QRectF canvasFrame READ canvasFrame NOTIFY canvasChanged)
    Q_PROPERTY(bool isChanges READ hasChanges NOTIFY changesChanged)
    /** The work area and the canvas in it, for the canvas item. */
    Q_PROPERTY(QObject *contentView READ contentView CONSTANT)
    /** The sticker and text layers, back to front, for their gesture items. */
    Q_PROPERTY(QList<QObject *> layerViews READ layerViews NOTIFY layersChanged)
    /** Why the design could not be opened; empty when it was. */
    Q_PROPERTY(QString errorString READ errorString NOTIFY loadFailed)
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY undoStateChanged)
    Q_PROPERTY(bool canRedo READ canRedo NOTIFY undoStateChanged)
    /** The layer button: the canvas holds at least one sticker. */
    Q_PROPERTY(bool canShowLayers READ canShowLayers NOTIFY layersChanged)
    /** The duplicate button: a sticker or a text is selected. */
    Q_PROPERTY(bool canDuplicate READ canDuplicate NOTIFY layersChanged)
    Q_PROPERTY(bool layersShown READ layersShown NOTIFY layersShownChanged)
    /** The layer panel's rows. */
    Q_PROPERTY(LayerListModel *layerModel READ layerModel CONSTANT)
public:
    /** `className` names the editor in its log lines. */
    explicit EditorSession(const char *className, QObject *parent = nullptr);
    ~EditorSession() override;

    // Set by the opener before the screen loads.
    std::shared_ptr<Json> contentJson; // a template to load
    std::shared_ptr<Json> reEditJson; // a stored design to load
    std::optional<ObjectId> objectId; // the design's row in the store; empty until the first store write
    bool isCreateOwn = false; // opened from the custom-size screen: the load renders a preview first
    QImage croppedImage; // a bare picture to edit when neither document is set

    // The session.
    std::shared_ptr<Json> masterJson;
    bool is_pip = false;
    bool isChanges = false;
    bool issavePressed = false;
    qreal canvasSpace = 15.0;
    std::optional<QRectF> mainViewFrame;
    std::optional<QPointF> mainViewCenter;
    std::optional<QRectF> imageViewFrame;
    qint64 textJsonIndex = 1;
    qint64 stickerJsonIndex = 1;
    qint64 imageStickerJsonIndex = 1;
    qint64 frameImageStickerJsonIndex = 1;
    int imageLimit = 0;
    QPointer<ResizableView> selectedView;
    QPointer<ResizableImageView> selectedIconImgView;
    QPointer<StaticResizableImageView> selectedImageView;
    QPointer<BorderedResizableImageView> selectedBorderedImageView;
    QImage croppedOriginalImage;
    QImage editedImage;
    QImage defaultBgImage;
    std::optional<QColor> defaultBgColor;
    QStringList bgGradientArray;
    QImage bgPatternImage;
    /** The undo history: whole documents as dictionaries, oldest first; the last is the present. */
    QList<nlohmann::ordered_json> undoArray;
    /** Registers each step's opposite, as the operations below do. */
    UndoHistory undoManager;
    /** The sticker catalog entry a new sticker came from; the picker sets them. */
    std::optional<qint64> selected_sticker_id;
    std::optional<qint64> selected_sticker_catalog_id;
    bool newStickerHasColor = false;
    /** The screen's size in points; a new sticker's size follows its smaller side. */
    QSizeF screenSize;

    /** The main screen's scale: template values are divided by it before they are fitted. */
    qreal screenScale = 1.0;
    /** The rendered picture of the last save. */
    QImage saveImg;
    /** How long the blocking notice shows before a save on leaving draws the canvas. */
    int leaveNoticeMs = 2000;

    // The canvas: viewContent is the work area; in it, back to front, mainView (the checker pattern
    // behind a transparent design) and viewMain (the design itself).
    View *const viewContent;
    ImageView *const mainView;
    View *const viewMain;
    BackgroundImageView *const backgroundImageView;
    ImageView *const fgImageView;
    View *const gridView;

    /** The area that the canvas may fill (the work area less `canvasSpace` on every side). */
    void setCanvasArea(const QRectF &area);
    [[nodiscard]] QRectF canvasFrame() const;
    [[nodiscard]] QObject *contentView() const;
    [[nodiscard]] QList<QObject *> layerViews() const;
    /**
     * The screen reports the size of its work area; the first report opens the design, since the canvas
     * is fitted to it. Later reports change nothing: layers keep their canvas points.
     */
    Q_INVOKABLE void setWorkAreaSize(qreal width, qreal height);
    [[nodiscard]] bool hasChanges() const { return isChanges; }
    [[nodiscard]] QString errorString() const { return m_errorString; }

    /** Opens whichever of contentJson, reEditJson or croppedImage the opener set, once the area is known. */
    void viewDidLoad() override;

    /** Opens a template: template units and degrees become canvas points and radians. False if refused. */
    bool loadTemplate(const std::shared_ptr<Json> &document);
    /** Opens a stored design, whose records already hold canvas points and radians. False if refused. */
    bool loadReEdit(const std::shared_ptr<Json> &document);

    /** Sizes viewMain to the design's shape inside the area and centres it there. */
    void fitCanvas(std::optional<double> width, std::optional<double> height);
    /** A template rectangle in canvas points; absent fields count as 0. */
    [[nodiscard]] QRectF convertRect(std::optional<double> x, std::optional<double> y, std::optional<double> width,
        std::optional<double> height) const;
    /** A template height (also a font size) in canvas points. */
    [[nodiscard]] qreal convertHeight(std::optional<double> height) const;

    /** Taken by value: the caller may pass the document's own delta, which this clears first. */
    void applyBackground(std::shared_ptr<BackgroundJson> record);
    Q_INVOKABLE void deselectAll(bool changeBar = true);

    StaticResizableImageView *addImageSticker(
        const QRectF &frame, const std::shared_ptr<ImageStickerJson> &record, bool isLoading);
    BorderedResizableImageView *addFrameImageSticker(
        const QRectF &frame, const std::shared_ptr<FrameImageStickerJson> &record, bool isLoading);
    ResizableImageView *addSticker(const QRectF &frame, const std::shared_ptr<StickerJson> &record, bool isLoading);
    ResizableView *addText(const QRectF &frame, const std::shared_ptr<TextJson> &record, bool isLoading);

    /** The document as the undo history and the store see it. */
    [[nodiscard]] nlohmann::ordered_json documentDictionary() const;

    /** The store that the automatic save writes; without one the session opens the default store. */
    void setDesignStore(DesignStore *store);

    // Undo and redo. Each recorded step puts the touched records into the document's changed_* delta,
    // keeps the whole document as a snapshot and stores the design.
    [[nodiscard]] bool canUndo() const { return m_canUndo; }
    [[nodiscard]] bool canRedo() const { return m_canRedo; }
    /** Empties the delta of masterJson: the start of each recorded step. */
    void clearChanged();
    /** Registers a snapshot made by the user as one undo step and appends it to undoArray. */
    void recordStep(nlohmann::ordered_json snapshot);
    /** Undo of a step: goes back to the previous snapshot, rebuilding the layers the step touched. */
    void removeContent(nlohmann::ordered_json content);
    /** Redo of a step: the snapshot becomes the present again. */
    void addContent(nlohmann::ordered_json content);
    /**
     * Makes `json` the live model and rebuilds only the layers in its delta, picture slots first and
     * texts last; a rebuilt layer comes back on top of the others.
     */
    void applyDocument(const std::shared_ptr<Json> &json, bool isUndo);
    void updateUndoAndRedoButtons();
    Q_INVOKABLE void undo();
    Q_INVOKABLE void redo();
    /** The background view's delegate: the record changed. */
    void backgroundDidUpdate(const std::shared_ptr<BackgroundJson> &record);

    // New layers made by the user.
    /** A sticker from a picked picture, sized for the screen, centred and selected. */
    ResizableImageView *addNewSticker(const QImage &picture);
    /** A text typed in the entry screen, at 28 points, centred and selected. */
    ResizableView *addNewText(const QString &text, const QString &fontName, const std::optional<QColor> &color);
    void takeEnteredText(
        const QString &text, const QString &fontName, std::optional<QColor> color, bool isNewText) override;
    [[nodiscard]] bool canDuplicate() const;
    /** A copy of the selected text or sticker, a little below and right of it when there is room. */
    Q_INVOKABLE void duplicateClicked();

    // The layer panel.
    [[nodiscard]] bool canShowLayers() const;
    [[nodiscard]] bool layersShown() const { return m_layersShown; }
    [[nodiscard]] LayerListModel *layerModel() const { return m_layerItems; }
    /** The rows: the canvas's stickers, topmost first. */
    Q_INVOKABLE void fillLayers();
    /** The layer button and the panel's close button: opens the panel filled anew, or closes it. */
    Q_INVOKABLE void toggleLayers();
    /** A row was dragged from one place to another: the two stickers swap places in the canvas. */
    Q_INVOKABLE void positionChanged(int currentIndex, int newIndex);

    /**
     * The canvas drawn at the design's own size (twice that for HD), without selection, handles or the
     * placeholders of empty outlined slots; transparent where the design is. Null without a size.
     */
    QImage render(bool isHD);
    /**
     * The user's save: the picture and a smaller one are written as previews (off the GUI thread), then
     * the document is stored without deltas, its stickers in stacking order, marked saved. `done` runs
     * on the GUI thread once the design is stored.
     */
    void saveDesign(const QImage &image, std::function<void()> done = {});

    /** Back or close: asks "Are you sure?" first. */
    Q_INVOKABLE void requestLeave();
    /** The confirmation that back and close show; its "YES" leaves, saving the design when it changed. */
    [[nodiscard]] AlertModel *leaveConfirmation();
    /** Whether the editor takes outlined slots; the video and landscape editors have none. */
    [[nodiscard]] virtual bool hasOutlinedSlots() const { return true; }

    // Layer delegates.
    void stickerDidSelect(ResizableImageView *view) override;
    void stickerDidDeselect(ResizableImageView *view) override;
    void stickerWillClose(ResizableImageView *view) override;
    void stickerDidClose(ResizableImageView *view) override;
    void stickerDidUpdate(std::shared_ptr<StickerJson> json) override;
    void stickerDidAttach(std::shared_ptr<StickerJson> json) override;
    void stickerDidDrag(ResizableImageView *view) override;
    void stickerDidEndDrag(ResizableImageView *view) override;
    void textDidSelect(ResizableView *view) override;
    void textDidDeselect(ResizableView *view) override;
    void textWillClose(ResizableView *view) override;
    void textDidUpdate(std::shared_ptr<TextJson> json) override;
    void textDidAttach(std::shared_ptr<TextJson> json) override;
    void textDidDrag(ResizableView *view) override;
    void textDidEndDrag(ResizableView *view) override;
    void slotDidSelect(View *slot) override;
    void slotDidDeselect(View *slot) override;
    void slotWillClose(View *slot) override;
    void slotDidUpdate(const std::shared_ptr<ImageStickerJson> &record) override;
    void slotDidUpdate(const std::shared_ptr<FrameImageStickerJson> &record) override;
    void slotDidClose(View *slot) override;
    void slotDidAttach(const std::shared_ptr<ImageStickerJson> &record) override;
    void slotDidAttach(const std::shared_ptr<FrameImageStickerJson> &record) override;

Q_SIGNALS:
    void canvasChanged();
    void changesChanged();
    void loadFailed();
    /** The layer stacking or a selection changed; the canvas redraws and the bars refresh. */
    void layersChanged();
    void undoStateChanged();
    void layersShownChanged();
    /** The leaving path has ended: stored when there were changes, and popped. */
    void didLeave();

protected:
    /**
     * "YES" in the leaving confirmation: with changes, a blocking notice, the canvas drawn at scale 1,
     * the user's save and the home shell's `goBackDelegate`; then the screen pops.
     */
    virtual void leave();

private:
    template<class Record> using Field = RecordList<Record> Json::*;
    template<class Record>
    void recordChange(Field<Record> array, Field<Record> changed, const std::shared_ptr<Record> &record);
    template<class Record>
    void recordAdded(Field<Record> array, Field<Record> changed, const std::shared_ptr<Record> &record);
    template<class Record>
    void recordClosed(Field<Record> array, Field<Record> changed, const std::shared_ptr<Record> &record);
    /** Snapshot, step and automatic save: the end of every recorded step. */
    void finishStep();
    void automaticSave();
    [[nodiscard]] DesignStore &store();
    void setChanges(bool changes);
    void performUndoOperation(UndoHistory::Operation operation, nlohmann::ordered_json content);
    template<class Layer, class Record>
    void replayKind(
        Field<Record> changed, bool isUndo, const std::function<void(const std::shared_ptr<Record> &)> &make);
    void forgetSelectionOf(View *layer);
    /** The frames of layers made from records in canvas points, as stored designs and snapshots hold them. */
    [[nodiscard]] static QRectF storedStickerFrame(const StickerJson &record);
    [[nodiscard]] static QRectF storedTextFrame(const TextJson &record);
    template<class Record> [[nodiscard]] static QRectF storedSlotFrame(const Record &record);

    bool refuseNullFlags(const Json &document);
    void loadSlots(bool reEdit);
    void loadFrame(bool reEdit);
    void loadStickers(bool reEdit);
    void loadTexts(bool reEdit);
    void usePictureAsBackground(const QImage &picture);
    void startUndoHistory();
    [[nodiscard]] QString resolveName(const QString &name) const;
    [[nodiscard]] QImage pictureFor(const QString &value) const;
    /** The picture at once when at hand, else loaded by address with the indicator over `host`. */
    void showPicture(const QString &value, View *host, const std::function<void(const QImage &picture)> &apply) const;
    void fail(const QString &message);

    void openDocument();
    /** The document of a bare picture: its size, the picture as background and preview, no layers. */
    [[nodiscard]] static std::shared_ptr<Json> documentForPicture(const QImage &picture);
    void finishLeaving(const QPointer<AlertModel> &notice);
    const QString m_className;
    QString m_errorString;
    bool m_openPending = false;
    bool m_canUndo = false;
    bool m_canRedo = false;
    bool m_layersShown = false;
    LayerListModel *const m_layerItems;
    DesignStore *m_store = nullptr;
    std::unique_ptr<DesignStore> m_ownStore;
    bool m_leaving = false;
    /** Preview files being written; the session waits for them before it goes. */
    QFuture<void> m_previewWrite;
};
