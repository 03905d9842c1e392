// quillet-tool edit: a template or a stored design opened in a headless editor, edited by a list of steps.
#include "toolcommand.h"

#include "alertmodel.h"
#include "canvasbackground.h"
#include "designstore.h"
#include "editimageportraitmode.h"
#include "editorinput.h"
#include "editsteps.h"
#include "editvideoportraitmode.h"
#include "hexcolor.h"
#include "layerkinds.h"
#include "mapper.h"
#include "photofilters.h"
#include "resizableview.h"
#include "saveflow.h"
#include "storeddesign.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QImage>
#include <QtMath>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>
#include <utility>

namespace {

using ordered_json = nlohmann::ordered_json;

// The layers of the canvas, back to front, as "kind:index".
QStringList stackOf(const EditorSession &session)
{
    QStringList stack;
    for (View *view : session.viewMain->subviews()) {
        if (const auto identity = LayerKinds::identify(view))
            stack.append(
                LayerKinds::name(identity->kind) + QLatin1Char(':') + QString::number(identity->index.value_or(0)));
    }
    return stack;
}

class StepRunner
{
public:
    explicit StepRunner(EditorSession &session)
        : m_session(session)
    { }

    void run(const ordered_json &step)
    {
        if (m_left)
            throw EditStepError { QStringLiteral("the editor has been left; \"leave\" is the last step") };
        const QString op = text(step, "op");
        const QString previous = std::exchange(m_lastOp, op);
        if (op != QLatin1String("reorder") && m_session.layersShown())
            m_session.toggleLayers(); // the panel covers the editor; any other edit happens without it
        if (op == QLatin1String("pan"))
            pan(step);
        else if (op == QLatin1String("pinch"))
            pinch(step);
        else if (op == QLatin1String("rotate"))
            rotate(step);
        else if (op == QLatin1String("scale"))
            scale(step);
        else if (op == QLatin1String("opacity"))
            opacity(step);
        else if (op == QLatin1String("letterSpacing"))
            spacing(step, ToolSliders::Slider::LetterSpacing);
        else if (op == QLatin1String("lineSpacing"))
            spacing(step, ToolSliders::Slider::LineSpacing);
        else if (op == QLatin1String("close"))
            close(step);
        else if (op == QLatin1String("addText"))
            m_session.addNewText(text(step, "text"), text(step, "font"), color(step));
        else if (op == QLatin1String("addSticker"))
            addSticker(step);
        else if (op == QLatin1String("duplicate"))
            duplicate(step);
        else if (op == QLatin1String("reorder"))
            reorder(step);
        else if (op == QLatin1String("placeImage"))
            placeImage(step);
        else if (op == QLatin1String("slotPan"))
            slotPan(step);
        else if (op == QLatin1String("slotPinch"))
            slotPinch(step);
        else if (op == QLatin1String("slotTurn"))
            slotTurn(step);
        else if (op == QLatin1String("slotReset"))
            slotReset(step);
        else if (op == QLatin1String("background"))
            background(step);
        else if (op == QLatin1String("flip"))
            flip(step);
        else if (op == QLatin1String("filter"))
            filter(step, previous == op);
        else if (op == QLatin1String("frame"))
            m_session.background().takeFrame(picture(step, "image"));
        else if (op == QLatin1String("undo"))
            m_session.undo();
        else if (op == QLatin1String("redo"))
            m_session.redo();
        else if (op == QLatin1String("leave"))
            leave();
        else if (!VideoSteps::run(m_session, op, step))
            throw EditStepError { QStringLiteral("unknown op \"%1\"").arg(op) };
    }

private:
    static QString text(const ordered_json &step, const char *key)
    {
        const auto found = step.find(key);
        if (found == step.end() || !found->is_string())
            throw EditStepError { QStringLiteral("the step needs a text \"%1\"").arg(QLatin1String(key)) };
        return QString::fromStdString(found->get<std::string>());
    }

    static double number(const ordered_json &step, const char *key)
    {
        const auto found = step.find(key);
        if (found == step.end() || !found->is_number())
            throw EditStepError { QStringLiteral("the step needs a number \"%1\"").arg(QLatin1String(key)) };
        return found->get<double>();
    }

    static std::optional<QColor> color(const ordered_json &step)
    {
        if (!step.contains("color"))
            return std::nullopt;
        const QColor color = HexColor::fromString(text(step, "color"));
        if (!color.isValid())
            throw EditStepError { QStringLiteral("\"color\" is not a hexadecimal colour") };
        return color;
    }

    // "kind:index" names the topmost layer of that kind with that index.
    View *layer(const ordered_json &step) const
    {
        const QString name = text(step, "layer");
        if (View *found = EditorInput::findLayer(m_session, name))
            return found;
        throw EditStepError { QStringLiteral("no layer \"%1\"").arg(name) };
    }

    // A gesture of a sticker or a text, which is selected first as the user's tap does.
    LayerView *gestureLayer(const ordered_json &step) const
    {
        auto *view = qobject_cast<LayerView *>(layer(step));
        if (!view)
            throw EditStepError { QStringLiteral("\"%1\" takes no gestures").arg(text(step, "layer")) };
        if (!view->isSelected())
            view->tapGesture();
        return view;
    }

    void pan(const ordered_json &step)
    {
        LayerView *view = gestureLayer(step);
        view->panGesture(LayerView::Began, QPointF());
        view->panGesture(LayerView::Changed, QPointF(number(step, "dx"), number(step, "dy")));
        view->panGesture(LayerView::Ended, QPointF());
    }

    void pinch(const ordered_json &step)
    {
        LayerView *view = gestureLayer(step);
        const double scale = number(step, "scale");
        const double turn = step.contains("degrees") ? qDegreesToRadians(number(step, "degrees")) : 0.0;
        view->twoFingerGesture(LayerView::Began, 1.0, 0.0);
        view->twoFingerGesture(LayerView::Changed, scale, turn);
        view->twoFingerGesture(LayerView::Ended, scale, turn);
    }

    // The tool menus' sliders on the selected layer, each released at the end of the step.
    void rotate(const ordered_json &step)
    {
        gestureLayer(step);
        m_session.sliders()->rotate(qDegreesToRadians(number(step, "degrees")));
        m_session.sliders()->sliderDidEndSliding(ToolSliders::Slider::Rotation);
    }

    void scale(const ordered_json &step)
    {
        gestureLayer(step);
        m_session.sliders()->beginScale();
        m_session.sliders()->scale(number(step, "value"));
        m_session.sliders()->sliderDidEndSliding(ToolSliders::Slider::Scale);
    }

    void opacity(const ordered_json &step)
    {
        gestureLayer(step);
        m_session.sliders()->setOpacity(number(step, "value"));
        m_session.sliders()->sliderDidEndSliding(ToolSliders::Slider::Opacity);
    }

    void spacing(const ordered_json &step, ToolSliders::Slider slider)
    {
        if (!qobject_cast<ResizableView *>(gestureLayer(step)))
            throw EditStepError { QStringLiteral("\"%1\" is no text").arg(text(step, "layer")) };
        if (slider == ToolSliders::Slider::LetterSpacing)
            m_session.sliders()->setLetterSpacing(number(step, "value"));
        else
            m_session.sliders()->setLineSpacing(number(step, "value"));
        m_session.sliders()->sliderDidEndSliding(slider);
    }

    void close(const ordered_json &step)
    {
        auto *view = qobject_cast<LayerView *>(layer(step));
        if (!view)
            throw EditStepError { QStringLiteral("\"%1\" has no close button").arg(text(step, "layer")) };
        view->buttonTapGesture();
    }

    static QImage picture(const ordered_json &step, const char *key)
    {
        const QString path = text(step, key);
        QImage picture(path);
        if (picture.isNull())
            throw EditStepError { QStringLiteral("cannot read the picture %1").arg(path) };
        return picture;
    }

    void addSticker(const ordered_json &step) { m_session.addNewSticker(picture(step, "image")); }

    // What the background picker and menu hand back: a colour, a picture (back from the picker, as the
    // editor appears again) or a pattern tile.
    void background(const ordered_json &step)
    {
        if (step.contains("color")) {
            m_session.setBackgroundColor(color(step));
        } else if (step.contains("image")) {
            m_session.setNewBgImage(picture(step, "image"), QString());
            m_session.viewWillAppear();
        } else if (step.contains("texture")) {
            m_session.background().takePattern(picture(step, "texture"));
        } else {
            throw EditStepError { QStringLiteral("a background step needs \"color\", \"image\" or \"texture\"") };
        }
    }

    void flip(const ordered_json &step)
    {
        const double row = number(step, "row");
        if (row != 0 && row != 1)
            throw EditStepError { QStringLiteral("\"row\" is 0 (mirror) or 1 (half turn)") };
        m_session.backgroundTools()->flip(int(row));
    }

    // A run of filter steps is one visit to the filter menu: its rows all start from the picture shown
    // when it opened.
    void filter(const ordered_json &step, bool menuOpen)
    {
        const QString name = text(step, "name");
        const QList<FilterItem> &items = PhotoFilters::filterItemsArray();
        const auto row
            = std::find_if(items.cbegin(), items.cend(), [&name](const FilterItem &item) { return item.name == name; });
        if (row == items.cend())
            throw EditStepError { QStringLiteral("no filter \"%1\"").arg(name) };
        BackgroundTools *tools = m_session.backgroundTools();
        if (!menuOpen)
            tools->setupCoreImage();
        tools->perform(BackgroundTools::Pass::Filter, qreal(row - items.cbegin()), BackgroundTools::Mode::Now);
    }

    // A picture slot or an outlined slot, named "slot:INDEX" or "outlined:INDEX".
    SlotView *slotLayer(const ordered_json &step) const
    {
        auto *slot = qobject_cast<SlotView *>(layer(step));
        if (!slot)
            throw EditStepError { QStringLiteral("\"%1\" is no slot").arg(text(step, "layer")) };
        return slot;
    }

    // The picture as the crop screen hands it back for the slot's placeholder or its menu: the sheet's tag
    // for the selected layer, with the slot selected.
    void placeImage(const ordered_json &step)
    {
        SlotView *slot = slotLayer(step);
        const QImage image = picture(step, "image");
        m_session.deselectAll();
        m_session.selection.select(slot);
        m_session.setImagePickerTag(ImagePickerTarget::selectedLayerTag);
        m_session.replaceSelectedLayerImage(image);
    }

    // A gesture on the picture inside a slot, which is tapped first, as the user does, when it does not take
    // gestures yet; one change at the gesture's end.
    SlotView *gestureSlot(const ordered_json &step) const
    {
        SlotView *slot = slotLayer(step);
        if (slot->isEmpty())
            throw EditStepError { QStringLiteral("\"%1\" holds no picture").arg(text(step, "layer")) };
        if (!slot->takesGestures())
            slot->tapGesture();
        return slot;
    }

    void slotPan(const ordered_json &step)
    {
        SlotView *slot = gestureSlot(step);
        slot->panGesture(SlotView::Began, QPointF());
        slot->panGesture(SlotView::Changed, QPointF(number(step, "dx"), number(step, "dy")));
        slot->panGesture(SlotView::Ended, QPointF());
    }

    void slotPinch(const ordered_json &step)
    {
        SlotView *slot = gestureSlot(step);
        slot->pinchGesture(SlotView::Began, 1.0);
        slot->pinchGesture(SlotView::Changed, number(step, "scale"));
        // A picture slot's step lands on the next turn of the event loop, before the fingers lift.
        QCoreApplication::processEvents();
        slot->pinchGesture(SlotView::Ended, 1.0);
    }

    void slotTurn(const ordered_json &step)
    {
        SlotView *slot = gestureSlot(step);
        slot->rotateGesture(SlotView::Began, 0.0);
        slot->rotateGesture(SlotView::Changed, qDegreesToRadians(number(step, "degrees")));
        slot->rotateGesture(SlotView::Ended, 0.0);
    }

    void slotReset(const ordered_json &step)
    {
        auto *outlined = qobject_cast<BorderedResizableImageView *>(slotLayer(step));
        if (!outlined)
            throw EditStepError { QStringLiteral("only an outlined slot takes a double tap") };
        outlined->doubleTapGesture();
    }

    void duplicate(const ordered_json &step)
    {
        View *view = layer(step);
        if (!qobject_cast<LayerView *>(view))
            throw EditStepError { QStringLiteral("\"%1\" cannot be duplicated").arg(text(step, "layer")) };
        qobject_cast<LayerView *>(view)->tapGesture();
        m_session.duplicateClicked();
    }

    // Rows of the layer panel, which opens filled when it is not open yet.
    void reorder(const ordered_json &step)
    {
        if (!m_session.layersShown())
            m_session.toggleLayers();
        const double from = number(step, "from");
        const double to = number(step, "to");
        const int rows = m_session.layerModel()->count();
        if (from < 0 || to < 0 || from >= rows || to >= rows)
            throw EditStepError { QStringLiteral("the layer panel has %1 rows").arg(rows) };
        m_session.positionChanged(static_cast<int>(from), static_cast<int>(to));
    }

    // Back, then "YES" in the confirmation: the screen's own leaving path, waited for to its end.
    void leave()
    {
        QEventLoop loop;
        QObject::connect(&m_session, &EditorSession::didLeave, &loop, [this, &loop] {
            m_left = true;
            loop.quit();
        });
        const std::unique_ptr<AlertModel> confirmation(m_session.leaveConfirmation());
        confirmation->trigger(QStringLiteral("YES"));
        if (!m_left)
            loop.exec();
    }

    EditorSession &m_session;
    QString m_lastOp;
    bool m_left = false;
};

// edit FILE --area WxH --steps STEPS.json [--reedit] [-o OUT.png [--hd]]
int edit(const QStringList &args)
{
    const QString usage
        = QStringLiteral("usage: edit FILE --area WxH --steps STEPS.json [--reedit] [-o OUT.png [--hd]]");
    QString path;
    QString stepsPath;
    QString outPath;
    QSizeF area;
    bool reEdit = false;
    bool isHD = false;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString &arg = args.at(i);
        if (arg == QLatin1String("--reedit")) {
            reEdit = true;
        } else if (arg == QLatin1String("--hd")) {
            isHD = true;
        } else if (arg == QLatin1String("-o") && i + 1 < args.size()) {
            outPath = args.at(++i);
        } else if (arg == QLatin1String("--area") && i + 1 < args.size()) {
            const std::optional<QSizeF> parsed = parseToolSize(args.at(++i));
            if (!parsed)
                return toolFail(QStringLiteral("--area takes WxH, e.g. 360x640"));
            area = *parsed;
        } else if (arg == QLatin1String("--steps") && i + 1 < args.size()) {
            stepsPath = args.at(++i);
        } else if (path.isEmpty() && !arg.startsWith(QLatin1String("--"))) {
            path = arg;
        } else {
            return toolFail(usage);
        }
    }
    if (path.isEmpty() || stepsPath.isEmpty() || area.isEmpty() || (isHD && outPath.isEmpty()))
        return toolFail(usage);
    QString error;
    const std::optional<ordered_json> document = EditorInput::readJson(path, &error);
    if (!document)
        return toolFail(error);
    if (!document->is_object())
        return toolFail(QStringLiteral("%1 is not a JSON object").arg(path));
    const std::optional<ordered_json> steps = EditorInput::readJson(stepsPath, &error);
    if (!steps)
        return toolFail(error);
    if (!steps->is_array())
        return toolFail(QStringLiteral("%1 is not a JSON array of steps").arg(stepsPath));

    // A stored design opens as the designs list opens it again; anything else as a template.
    const std::shared_ptr<Json> design = reEdit ? readStoredDesign(*document) : Mapper::map<Json>(*document);
    DesignStore store;
    std::unique_ptr<EditorSession> editor;
    if (design && design->is_Video)
        editor = std::make_unique<EditVideoPortraitMode>();
    else
        editor = std::make_unique<EditImagePortraitMode>();
    EditorSession &session = *editor;
    session.setDesignStore(&store);
    session.setCanvasArea(QRectF(QPointF(0, 0), area));
    session.screenSize = area;
    if (!(reEdit ? session.loadReEdit(design) : session.loadTemplate(design)))
        return toolFail(session.errorString());
    StepRunner runner(session);
    for (std::size_t i = 0; i < steps->size(); ++i) {
        const ordered_json &step = steps->at(i);
        try {
            if (!step.is_object())
                throw EditStepError { QStringLiteral("a step is a JSON object") };
            runner.run(step);
        } catch (const EditStepError &failure) {
            return toolFail(QStringLiteral("step %1: %2").arg(i + 1).arg(failure.message));
        }
    }

    // Placed photos live in memory until a save: the canvas is drawn as a save draws it.
    if (!outPath.isEmpty() && !session.saving().render(isHD).save(outPath, "PNG"))
        return toolFail(QStringLiteral("cannot write %1").arg(outPath));

    ordered_json result = ordered_json::object();
    result["masterJson"] = session.documentDictionary();
    result["undoCount"] = session.undoArray().size();
    result["canUndo"] = session.canUndo();
    result["canRedo"] = session.canRedo();
    ordered_json stack = ordered_json::array();
    for (const QString &entry : stackOf(session))
        stack.push_back(entry.toStdString());
    result["stack"] = std::move(stack);
    if (const ordered_json video = VideoSteps::state(session); !video.is_null())
        result["video"] = video;
    std::fprintf(stdout, "%s\n", Mapper::print(result, true).toUtf8().constData());
    return 0;
}

const ToolCommand command("edit", "edit FILE --area WxH --steps STEPS.json [--reedit] [-o OUT.png [--hd]]", edit);

} // namespace
