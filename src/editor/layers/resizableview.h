#pragma once

#include "imageview.h"
#include "layerview.h"
#include "resizabletextview.h"
#include "resizableviewdelegate.h"
#include "textjson.h"

#include <limits>
#include <memory>

/**
 * A text layer. It selects, moves and turns as a sticker does, but its size follows its text: the
 * resize handle and the pinch change the font size, and the layer fits itself around the text, wrapped
 * at `maxWidth`. Its record holds the text's own top left corner, inside the inner margin.
 */
class ResizableView : public LayerView, public ResizableTextViewDelegate
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Texts are made by the editor")
public:
    explicit ResizableView(const QRectF &frame, QObject *parent = nullptr);

    ResizableViewDelegate *delegate = nullptr;
    std::shared_ptr<TextJson> textJson;
    QColor textColor = Qt::white;
    View *contentView = nullptr;
    ImageView *backgroundView = nullptr;
    ResizableTextView *textView = nullptr;
    /** Long lines wrap here; the editor sets the canvas width. */
    qreal maxWidth = std::numeric_limits<qreal>::max();

    /** The size a text layer is made with, before it fits itself around its text. */
    static constexpr QSizeF buildSize { 100.0, 100.0 };
    /** The frame to make a layer with whose text's own top left corner is `textCorner`. */
    [[nodiscard]] static QRectF frameForTextAt(const QPointF &textCorner);

    /** Sizes the layer around its text, wrapped at `maxWidth`. */
    void resizeToFitText();
    /** Keeps `json` as the record and writes the text's position and status 2 into it. */
    void updateTextJson(std::shared_ptr<TextJson> json);
    /**
     * Records a change of the text's look made through the text view: the record takes the whole look
     * and the editor is told once. Applying a value alone records nothing.
     */
    void recordTextChange();
    /** As `recordTextChange`, after a plain colour replaced the texture: its name leaves the record. */
    void recordColourChange();
    /** Writes the texture to a file, names it in the record and records the change. */
    void storePattern();
    void textViewDidChangeShape(ResizableTextView *textView) override;
    /** The tag is the layer's document position: the whole record is written, numbered and attached. */
    void setTag(qint64 tag) override;

    /**
     * Builds the layer's look from a record, in the load's order, and attaches it with `index`. The
     * editor has made the layer with the frame of the record and added it to the canvas.
     * With `isLoading` the layer flashes to show that it can be edited.
     */
    void loadFromJson(std::shared_ptr<TextJson> json, qreal canvasWidth, qint64 index, bool isLoading);

    void buttonTapGesture() override;
    void buttonPanGesture(LayerView::GesturePhase phase, const QPointF &location) override;
    [[nodiscard]] bool turnsWithTwoFingers() const override { return true; }

    /** The record's `alignment` of a paragraph alignment: left 1, right 3, anything else 2. */
    [[nodiscard]] static qint64 alignmentCode(Qt::Alignment alignment);

protected:
    void didSelect() override;
    void didDeselect() override;
    void didDrag() override;
    void didEndDrag() override;
    void pinchStep(LayerView::GesturePhase phase, qreal scale) override;
    void finishPinch() override;
    void commitGeometry() override;
    void storeAngle() override;

private:
    void setupViews();
    void writePosition(TextJson &json) const;
    /** The look of the text into the record: everything but the position, pictures and index. */
    void writeLook(TextJson &json) const;
    qreal m_lastPinchScale = 1.0;
};
