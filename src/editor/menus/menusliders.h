#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

class EditorSession;
class FeatherMask;

/**
 * The sliders of the shared area (`viewContent`): the one slider that a tool row shows, with its range,
 * its value taken from the selected layer or the background when it opens and the integer beside it
 * (`lblSlider`), and the rotation and scale views with their hold buttons. Moves go to the layer or the
 * background picture at once; a release records the step through the session.
 */
class MenuSliders : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the editor session")
    Q_PROPERTY(Kind kind READ kind NOTIFY kindChanged)
    Q_PROPERTY(qreal minimum READ minimum NOTIFY kindChanged)
    Q_PROPERTY(qreal maximum READ maximum NOTIFY kindChanged)
    Q_PROPERTY(qreal value READ value NOTIFY valueChanged)
    /** The value shown beside the slider, as an integer. */
    Q_PROPERTY(QString lblSlider READ lblSlider NOTIFY valueChanged)
    /** `rotationSlider`: the selected layer's turn in degrees, -180 to 180. */
    Q_PROPERTY(qreal rotation READ rotation NOTIFY valueChanged)
    /** `scaleSlider`: the scale against the layer's size when the view opened, 0 to `scaleMaximum`. */
    Q_PROPERTY(qreal scale READ scale NOTIFY valueChanged)
    Q_PROPERTY(qreal scaleMaximum READ scaleMaximum CONSTANT)
public:
    /** The named sliders; each acts on one thing. */
    enum class Kind {
        None,
        TextShadow,
        TextOpacity,
        StickerOpacity,
        TextLetterSpacing,
        TextLineSpacing,
        Opacity,
        Brightness,
        Contrast,
        Saturation,
        Feather
    };
    Q_ENUM(Kind)

    explicit MenuSliders(EditorSession &session);
    ~MenuSliders() override;

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] qreal minimum() const;
    [[nodiscard]] qreal maximum() const;
    [[nodiscard]] qreal value() const { return m_value; }
    [[nodiscard]] QString lblSlider() const;
    [[nodiscard]] qreal rotation() const { return m_rotation; }
    [[nodiscard]] qreal scale() const { return m_scale; }
    [[nodiscard]] static qreal scaleMaximum() { return 2.0; }

    /** Shows the slider of `kind`, set from what it acts on; the background's sliders start from its picture. */
    void open(Kind kind);
    /** The rotation view for the selected text or sticker, set from its turn. */
    void openRotation();
    /** The scale view: the selected layer as it is now is 1. */
    void openScale();
    /** Every slider hidden. */
    void close();

    /** `sliderChanged:` */
    Q_INVOKABLE void sliderChanged(qreal value);
    /** `sliderDidEndSliding:`, on touch-up inside and outside. */
    Q_INVOKABLE void sliderDidEndSliding();
    /** The rotation slider moved to `degrees`. */
    Q_INVOKABLE void rotationChanged(qreal degrees);
    /** A hold button of the rotation view: one step of `degrees`, left or right. */
    Q_INVOKABLE void rotateBy(qreal degrees) { rotationChanged(m_rotation + degrees); }
    Q_INVOKABLE void rotationDidEnd();
    Q_INVOKABLE void scaleChanged(qreal value);
    /** `btnViewMin` and `btnViewMax`: one step of the scale, within the slider's range. */
    Q_INVOKABLE void scaleBy(qreal step) { scaleChanged(m_scale + step); }
    Q_INVOKABLE void scaleDidEnd();

Q_SIGNALS:
    void kindChanged();
    void valueChanged();

private:
    /** The value the slider starts from: the layer's own, or the identity of the background's pass. */
    [[nodiscard]] qreal startValue(Kind kind) const;
    void setValue(qreal value);

    EditorSession &m_session;
    FeatherMask *const m_feather;
    Kind m_kind = Kind::None;
    qreal m_value = 0;
    qreal m_rotation = 0;
    qreal m_scale = 1;
};
