#pragma once

#include <QObject>

class EditorSession;

/**
 * The sliders of the tool menus acting on the selected layer: a slider changes the layer's look while
 * it is dragged, and its release writes the layer's record as one step. The tool menus call these.
 */
class ToolSliders : public QObject
{
    Q_OBJECT
public:
    enum class Slider { Rotation, Scale, Opacity, LetterSpacing, LineSpacing, Shadow };
    Q_ENUM(Slider)

    explicit ToolSliders(EditorSession &session);

    /** The rotation slider or its hold buttons turn the selected text or sticker by `radians`. */
    Q_INVOKABLE void rotate(qreal radians);
    /**
     * The scale tool opens: the selected layer as it is now is the slider's 1. The slider runs from 0
     * to 2 for every kind; for a text the value times the font size of this moment is the new size.
     */
    Q_INVOKABLE qreal beginScale();
    Q_INVOKABLE void scale(qreal value);
    /** The opacity of the selected text, sticker or outlined slot, 0 to 100. */
    Q_INVOKABLE void setOpacity(qreal percent);
    Q_INVOKABLE void setLetterSpacing(qreal value);
    Q_INVOKABLE void setLineSpacing(qreal value);
    /** The shadow of the selected text: blur `amount`, cast down and right by half of it; 0 takes it away. */
    Q_INVOKABLE void setShadow(qreal amount);
    /** The finger leaves a slider, inside or outside: the layer's record takes the change as one step. */
    Q_INVOKABLE void sliderDidEndSliding(ToolSliders::Slider slider);

private:
    EditorSession &m_session;
    qreal m_fontSizeAtOpen = 0;
};
