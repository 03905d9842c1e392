#include "hexcolor.h"

namespace HexColor {

QString toString(const QColor &color)
{
    const auto component = [](float value) { return uint(int(value * 255.0f)) & 0xff; };
    const uint rgb = component(color.redF()) << 16 | component(color.greenF()) << 8 | component(color.blueF());
    return QStringLiteral("#%1").arg(rgb, 6, 16, QLatin1Char('0'));
}

QColor fromString(const QString &hex)
{
    QString digits = hex.trimmed();
    if (digits.startsWith(QLatin1Char('#')))
        digits.remove(0, 1);
    if (digits.size() != 6)
        return {};
    bool ok = false;
    const uint rgb = digits.toUInt(&ok, 16);
    return ok ? QColor::fromRgb(rgb) : QColor();
}

} // namespace HexColor
