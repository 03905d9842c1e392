#include "customcolorpicker.h"

#include "navigationcontroller.h"

#include <QRegularExpression>

#include <algorithm>

CustomColorPicker::CustomColorPicker(QObject *parent)
    : ViewController(parent)
{
    setTitle(QStringLiteral("Custom Color"));
}

void CustomColorPicker::viewDidLoad()
{
    const QColor start = defaultColor.isValid() ? defaultColor.toHsv() : QColor(Qt::white).toHsv();
    // A grey has no hue of its own; it keeps the one the picker shows.
    setHsv(start.hsvHueF() < 0 ? m_hue : start.hsvHueF(), start.hsvSaturationF(), start.valueF());
}

QString CustomColorPicker::hexText() const
{
    return color().name().mid(1).toUpper();
}

void CustomColorPicker::setHue(qreal hue)
{
    setHsv(hue, m_saturation, m_brightness);
}

void CustomColorPicker::setSaturation(qreal saturation)
{
    setHsv(m_hue, saturation, m_brightness);
}

void CustomColorPicker::setBrightness(qreal brightness)
{
    setHsv(m_hue, m_saturation, brightness);
}

bool CustomColorPicker::setHexText(const QString &text)
{
    static const QRegularExpression sixDigits(QStringLiteral("^#?([0-9A-Fa-f]{6})$"));
    const QRegularExpressionMatch match = sixDigits.match(text.trimmed());
    if (!match.hasMatch())
        return false;
    const QColor typed = QColor(QLatin1Char('#') + match.captured(1)).toHsv();
    setHsv(typed.hsvHueF() < 0 ? m_hue : typed.hsvHueF(), typed.hsvSaturationF(), typed.valueF());
    return true;
}

void CustomColorPicker::setHsv(qreal hue, qreal saturation, qreal brightness)
{
    hue = std::clamp(hue, 0.0, 1.0);
    saturation = std::clamp(saturation, 0.0, 1.0);
    brightness = std::clamp(brightness, 0.0, 1.0);
    if (hue == m_hue && saturation == m_saturation && brightness == m_brightness)
        return;
    m_hue = hue;
    m_saturation = saturation;
    m_brightness = brightness;
    Q_EMIT colorChanged();
}

void CustomColorPicker::done()
{
    // The delegate pops back to the editor itself; with none, the picker just goes back.
    if (auto *receiver = dynamic_cast<CustomColorPickerDelegate *>(delegate.data()))
        receiver->customColorPicked(color());
    else
        cancel();
}

void CustomColorPicker::cancel()
{
    if (NavigationController *stack = navigationController(); stack && stack->topViewController() == this)
        stack->pop();
}
