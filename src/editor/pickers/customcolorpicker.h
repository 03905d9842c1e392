#pragma once

#include "viewcontroller.h"

#include <QColor>
#include <QPointer>

/** Who takes the colour that the colour picker gives. */
class CustomColorPickerDelegate
{
public:
    virtual ~CustomColorPickerDelegate() = default;
    virtual void customColorPicked(const QColor &color) = 0;
};

/**
 * A colour of the user's choice: hue, saturation and brightness, or a hexadecimal text, starting from
 * `defaultColor`. Done gives the colour to the delegate; Cancel goes back with nothing.
 */
class CustomColorPicker : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color NOTIFY colorChanged)
    Q_PROPERTY(qreal hue READ hue WRITE setHue NOTIFY colorChanged)
    Q_PROPERTY(qreal saturation READ saturation WRITE setSaturation NOTIFY colorChanged)
    Q_PROPERTY(qreal brightness READ brightness WRITE setBrightness NOTIFY colorChanged)
    /** The colour as six hexadecimal digits, as the field shows it. */
    Q_PROPERTY(QString hexText READ hexText NOTIFY colorChanged)
public:
    explicit CustomColorPicker(QObject *parent = nullptr);

    /** The colour to start from; white when none is set. */
    QColor defaultColor = Qt::white;
    /** An object that is a CustomColorPickerDelegate. */
    QPointer<QObject> delegate;

    [[nodiscard]] QColor color() const
    {
        return QColor::fromHsvF(float(m_hue), float(m_saturation), float(m_brightness)).toRgb();
    }
    [[nodiscard]] qreal hue() const { return m_hue; }
    [[nodiscard]] qreal saturation() const { return m_saturation; }
    [[nodiscard]] qreal brightness() const { return m_brightness; }
    [[nodiscard]] QString hexText() const;
    /** Each in 0..1. */
    void setHue(qreal hue);
    void setSaturation(qreal saturation);
    void setBrightness(qreal brightness);
    /** A typed colour: taken when it is six hexadecimal digits (with or without "#"); false otherwise. */
    Q_INVOKABLE bool setHexText(const QString &text);

    void viewDidLoad() override;
    Q_INVOKABLE void done();
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void colorChanged();

private:
    void setHsv(qreal hue, qreal saturation, qreal brightness);
    qreal m_hue = 0;
    qreal m_saturation = 0;
    qreal m_brightness = 1;
};
