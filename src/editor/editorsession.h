#pragma once

#include "backgroundtools.h"
#include "imagepickertarget.h"
#include "json.h"
#include "layerlistmodel.h"
#include "layerselection.h"
#include "objectid.h"
#include "pickertarget.h"
#include "textentrytarget.h"
#include "toolmenus.h"
#include "toolsliders.h"
#include "undorecorder.h"
#include "viewcontroller.h"

#include <QImage>
#include <QPointer>
#include <QRectF>

#include <nlohmann/json.hpp>

#include <memory>
#include <optional>

Q_MOC_INCLUDE("videoview.h")

class AlertModel;
class BackgroundImageView;
class CanvasBackground;
class DesignLoader;
class DesignStore;
class ImageView;
class LayerBuilder;
class LayerEvents;
class LayerPanel;
class SaveFlow;
class SlotPictures;
class Storyboard;
class VideoBackground;
class VideoView;
class View;

/**
 * One design open in an editor: the canvas of layer views and the live document `masterJson` they
 * write into. It needs no screen: the five editors are thin subclasses that add their own bars, and
 * quillet-tool drives it headless. What changes together lives in its parts: the load and the canvas
 * fit (DesignLoader), the layers' making (LayerBuilder), their events (LayerEvents), the history
 * (UndoRecorder), the background (CanvasBackground), the layer panel (LayerPanel), the sliders of the
 * tools (ToolSliders) and the saves (SaveFlow).
 */
class EditorSession : public ViewController,
                      public TextEntryTarget,
                      public PickerTarget,
                      public ImagePickerTarget,
                      private ReplayCanvas
{
    Q_OBJECT
    /** The fitted canvas in the coordinates of the work area. */
    Q_PROPERTY(QRectF canvasFrame READ canvasFrame NOTIFY canvasChanged)
    Q_PROPERTY(bool isChanges READ hasChanges NOTIFY changesChanged)
    /** The work area and the canvas in it, for the canvas item. */
    Q_PROPERTY(QObject *contentView READ contentView CONSTANT)
    /** The sticker and text layers, back to front, for their gesture items. */
    Q_PROPERTY(QList<QObject *> layerViews READ layerViews NOTIFY layersChanged)
    /** The picture slots and outlined slots, back to front, for their gesture items. */
    Q_PROPERTY(QList<QObject *> slotViews READ slotViews NOTIFY layersChanged)
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
    /** The sliders of the tool menus. */
    Q_PROPERTY(ToolSliders *sliders READ sliders CONSTANT)
    /** The flips, filters and adjustments of the background picture. */
    Q_PROPERTY(BackgroundTools *backgroundTools READ backgroundTools CONSTANT)
    /** The bars below the canvas. */
    Q_PROPERTY(ToolMenus *menus READ menus CONSTANT)
    /** The movie under the canvas of a video design; null in the image editors. */
    Q_PROPERTY(VideoView *videoView READ videoView CONSTANT)
    /** The bar has a sound button (the video editors). */
    Q_PROPERTY(bool hasSoundButton READ hasSoundButton CONSTANT)
    /** The sound button can be pressed: a movie is loaded. */
    Q_PROPERTY(bool soundEnabled READ soundEnabled NOTIFY soundChanged)
    /** The sound button shows "ic_volume_mute" rather than "ic_volume". */
    Q_PROPERTY(bool soundMuted READ soundMuted NOTIFY soundChanged)
public:
    /** What lies under the layers: a picture or colour, or a looping movie. */
    enum class DesignKind { Image, Video };

    /** `className` names the editor in its log lines. */
    explicit EditorSession(const char *className, QObject *parent = nullptr, DesignKind kind = DesignKind::Image);
    ~EditorSession() override;

    // Set by the opener before the screen loads; a bare picture goes into background().croppedImage.
    std::shared_ptr<Json> contentJson; // a template to load
    std::shared_ptr<Json> reEditJson; // a stored design to load
    std::optional<ObjectId> objectId; // the design's row in the store; empty until the first store write
    bool isCreateOwn = false; // opened from the custom-size screen: the load renders a preview first

    // The session.
    std::shared_ptr<Json> masterJson;
    bool is_pip = false;
    bool issavePressed = false;
    qreal canvasSpace = 15.0;
    std::optional<QRectF> mainViewFrame;
    std::optional<QPointF> mainViewCenter;
    std::optional<QRectF> imageViewFrame;
    LayerSelection selection;
    // What the pickers hand back; read when the editor appears again. The sticker's catalog entry stays
    // for the stickers that follow.
    QImage newBgImage;
    QString bg_image_url;
    PickedSticker picked;
    /** A replaced sticker picture keeps the sticker's tint; the sticker menu sets it. */
    bool setTintColor = false;
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

    [[nodiscard]] CanvasBackground &background() { return *m_background; }
    [[nodiscard]] DesignLoader &loader() { return *m_loader; }
    [[nodiscard]] LayerBuilder &builder() { return *m_builder; }
    [[nodiscard]] UndoRecorder &recorder() { return *m_recorder; }
    [[nodiscard]] LayerPanel &layerPanel() { return *m_layerPanel; }
    [[nodiscard]] ToolSliders *sliders() const { return m_sliders; }
    [[nodiscard]] BackgroundTools *backgroundTools() const { return m_backgroundTools; }
    [[nodiscard]] ToolMenus *menus() const { return m_menus; }
    /** The class name of the editor, which picks its bars' tables. */
    [[nodiscard]] QString className() const { return m_className; }
    /** Where the screens that this editor opens come from; none headless. */
    [[nodiscard]] const Storyboard *storyboard() const { return m_storyboard; }
    virtual void setStoryboard(const Storyboard *storyboard);
    [[nodiscard]] SaveFlow &saving() { return *m_saving; }
    [[nodiscard]] SlotPictures &slotPictures() { return *m_slotPictures; }
    /** The background movie and its sound; null in the image editors. */
    [[nodiscard]] VideoBackground *video() const { return m_video; }
    [[nodiscard]] VideoView *videoView() const;
    [[nodiscard]] bool hasSoundButton() const { return m_video != nullptr; }
    [[nodiscard]] bool soundEnabled() const;
    [[nodiscard]] bool soundMuted() const;
    Q_INVOKABLE void soundPressed();
    /** The movie the gallery gave for "Add Video": trimmed, cached, and played in place of the old one. */
    Q_INVOKABLE void videoPicked(const QUrl &file);
    /** The delegate of every layer. */
    [[nodiscard]] LayerEvents *layerEvents() { return m_layerEvents.get(); }

    /** The area that the canvas may fill (the work area less `canvasSpace` on every side). */
    void setCanvasArea(const QRectF &area);
    [[nodiscard]] QRectF canvasFrame() const;
    [[nodiscard]] QObject *contentView() const;
    [[nodiscard]] QList<QObject *> layerViews() const;
    [[nodiscard]] QList<QObject *> slotViews() const;
    /**
     * The screen reports the size of its work area; the first report opens the design, since the canvas
     * is fitted to it. Later reports change nothing: layers keep their canvas points.
     */
    Q_INVOKABLE void setWorkAreaSize(qreal width, qreal height);
    [[nodiscard]] bool hasChanges() const { return m_isChanges; }
    void setChanges(bool changes);
    [[nodiscard]] QString errorString() const { return m_errorString; }
    /** The design cannot be opened: the reason, for the screen. */
    void fail(const QString &message);

    /** Opens whichever of contentJson, reEditJson or a bare picture the opener set, once the area is known. */
    void viewDidLoad() override;
    /** Back from a picker: takes what it handed back, in order, then clears it. */
    void viewWillAppear() override;
    /** Opens a template: template units and degrees become canvas points and radians. False if refused. */
    bool loadTemplate(const std::shared_ptr<Json> &document);
    /** Opens a stored design, whose records already hold canvas points and radians. False if refused. */
    bool loadReEdit(const std::shared_ptr<Json> &document);
    /** Whether the editor takes outlined slots; the video and landscape editors have none. */
    [[nodiscard]] virtual bool hasOutlinedSlots() const { return true; }

    Q_INVOKABLE void deselectAll(bool changeBar = true);
    /** The document as the undo history and the store see it. */
    [[nodiscard]] nlohmann::ordered_json documentDictionary() const;
    /** The store that the saves write; without one the session opens the default store. */
    void setDesignStore(DesignStore *store);
    [[nodiscard]] const QList<nlohmann::ordered_json> &undoArray() const { return m_recorder->undoArray(); }

    [[nodiscard]] bool canUndo() const { return m_recorder->canUndo(); }
    [[nodiscard]] bool canRedo() const { return m_recorder->canRedo(); }
    /** The bar's undo: the last step goes back, and the tools return to the top level. */
    Q_INVOKABLE void undo();
    Q_INVOKABLE void redo();
    /**
     * Hides the pop tip and the empty-content notice and puts the menu back to the top level: after
     * undo and redo, and when the selected layer leaves.
     */
    void backToTopLevel();
    /** The bar's SAVE: each editor saves in its own way; by default the press is only announced. */
    Q_INVOKABLE virtual void savePressed();

    // New layers made by the user.
    ResizableImageView *addNewSticker(const QImage &picture);
    ResizableView *addNewText(const QString &text, const QString &fontName, const std::optional<QColor> &color);
    void takeEnteredText(
        const QString &text, const QString &fontName, std::optional<QColor> color, bool isNewText) override;
    void setNewBgImage(const QImage &picture, const QString &url) override;
    /** A colour from the background picker: the background becomes that colour alone, one step. */
    void setBackgroundColor(const std::optional<QColor> &color) override;
    [[nodiscard]] std::optional<QColor> backgroundColor() const override;
    void setNewStickerImage(const PickedSticker &sticker) override;
    [[nodiscard]] bool canDuplicate() const { return selection.hasTextOrSticker(); }
    Q_INVOKABLE void duplicateClicked();

    // The picture sheet and the crop screen: the cut picture goes where `imagePickerTag` says.
    [[nodiscard]] int imagePickerTag() const override;
    void setImagePickerTag(int tag) override;
    void keepBgOriginalFrame() override;
    /** Tag 1: the selected slot takes the picture as one step; a selected sticker's picture is replaced. */
    void replaceSelectedLayerImage(const QImage &image) override;
    void setBackgroundImage(const QImage &image) override;
    [[nodiscard]] bool hasSelectedSlot() const override;
    void addSticker(const QImage &image) override;
    void replaceSelectedSlotImage(const QImage &image) override;
    /** The placeholder of an empty outlined slot, or the menu of a slot: the sheet for that slot. */
    void choosePictureFor(View *slot);

    // The layer panel.
    [[nodiscard]] bool canShowLayers() const;
    [[nodiscard]] bool layersShown() const;
    [[nodiscard]] LayerListModel *layerModel() const;
    Q_INVOKABLE void toggleLayers();
    Q_INVOKABLE void positionChanged(int currentIndex, int newIndex);

    /** Back or close: asks "Are you sure?" first. */
    Q_INVOKABLE void requestLeave();
    /** The confirmation that back and close show; its "YES" leaves, saving the design when it changed. */
    [[nodiscard]] AlertModel *leaveConfirmation();

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
    /** SAVE was pressed in an editor that does not save by itself. */
    void saveRequested();
    void soundChanged();

protected:
    /**
     * "YES" in the leaving confirmation: with changes, a blocking notice, the canvas drawn at scale 1,
     * the user's save and the home shell's `goBackDelegate`; then the screen pops.
     */
    virtual void leave();

private:
    void removeLayers(LayerKind kind, const QList<qint64> &indexes, bool deselect) override;
    void makeLayer(const ReplayRecord &record) override;
    void openDocument();
    /** After a load: the document's movie and music start. */
    bool loadVideo();
    void finishLeaving(const QPointer<AlertModel> &notice);
    /** The sticker picture handed back: a new sticker, or the selected sticker's picture replaced. */
    void takeStickerPicture();

    const QString m_className;
    QString m_errorString;
    bool m_openPending = false;
    bool m_isChanges = false;
    bool m_leaving = false;
    std::unique_ptr<CanvasBackground> m_background;
    std::unique_ptr<LayerEvents> m_layerEvents;
    std::unique_ptr<LayerBuilder> m_builder;
    std::unique_ptr<DesignLoader> m_loader;
    std::unique_ptr<SlotPictures> m_slotPictures;
    UndoRecorder *const m_recorder;
    LayerPanel *const m_layerPanel;
    ToolSliders *const m_sliders;
    BackgroundTools *const m_backgroundTools;
    SaveFlow *const m_saving;
    ToolMenus *const m_menus;
    const Storyboard *m_storyboard = nullptr;
    VideoBackground *const m_video;
};
