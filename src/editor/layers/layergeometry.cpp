#include "layergeometry.h"

#include "view.h"

#include <QStringList>

#include <array>
#include <charconv>
#include <cmath>
#include <numbers>

namespace LayerGeometry {

namespace {

using Matrix = std::array<std::array<double, 4>, 4>;

// CATransform3DRotate(t, angle, x, y, z) = rotation · t, with row vectors as Core Animation has them.
Matrix rotate(const Matrix &t, double angle, double x, double y, double z)
{
    const double length = std::sqrt(x * x + y * y + z * z);
    x /= length;
    y /= length;
    z /= length;
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const double k = 1 - c;
    const Matrix r { { { x * x * k + c, x * y * k + z * s, x * z * k - y * s, 0 },
        { y * x * k - z * s, y * y * k + c, y * z * k + x * s, 0 },
        { z * x * k + y * s, z * y * k - x * s, z * z * k + c, 0 }, { 0, 0, 0, 1 } } };
    Matrix out {};
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            for (int n = 0; n < 4; ++n)
                out[i][j] += r[i][n] * t[n][j];
        }
    }
    return out;
}

} // namespace

QTransform perspectiveRotation(double radians)
{
    Matrix m { { { 1, 0, 0, 0 }, { 0, 1, 0, 0 }, { 0, 0, 1, perspective }, { 0, 0, 0, 1 } } };
    m = rotate(m, radians, 0, 0, 1);
    return { m[0][0], m[0][1], m[1][0], m[1][1], m[3][0], m[3][1] };
}

double degrees(const QTransform &transform)
{
    return std::atan2(transform.m12(), transform.m11()) * 180.0 / std::numbers::pi;
}

double zAngle(const QTransform &transform)
{
    return degrees(transform) * std::numbers::pi / 180.0;
}

double touchAngle(const QPointF &touch, const QPointF &center)
{
    return ::atan2f(float(touch.y() - center.y()), float(touch.x() - center.x()));
}

std::optional<double> snapTarget(double d, double h)
{
    for (const double target : { 0.0, 45.0, 90.0, 135.0, 180.0, -45.0, -90.0, -135.0, -180.0 }) {
        if ((target - h <= d && d < target) || (d > target && d <= target + h))
            return target;
    }
    return std::nullopt;
}

QString swiftDescription(double value)
{
    if (std::isnan(value))
        return QStringLiteral("nan");
    if (std::isinf(value))
        return value < 0 ? QStringLiteral("-inf") : QStringLiteral("inf");
    // The shortest digits that read back to the same double, then Swift's layout of them.
    std::array<char, 64> buffer {};
    const auto result
        = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific);
    const QString scientific = QString::fromLatin1(buffer.data(), int(result.ptr - buffer.data()));
    const qsizetype ePos = scientific.indexOf(QLatin1Char('e'));
    QString mantissa = scientific.left(ePos);
    const int exponent = scientific.mid(ePos + 1).toInt();
    const bool negative = mantissa.startsWith(QLatin1Char('-'));
    if (negative)
        mantissa.remove(0, 1);
    const QString digits = QString(mantissa).remove(QLatin1Char('.'));
    const QString sign = negative ? QStringLiteral("-") : QString();
    if (value != 0 && (exponent < -4 || exponent >= 16)) {
        QString out = sign + digits.left(1);
        if (digits.size() > 1)
            out += QLatin1Char('.') + digits.mid(1);
        const QString e = QString::number(std::abs(exponent)).rightJustified(2, QLatin1Char('0'));
        return out + QLatin1Char('e') + (exponent < 0 ? QLatin1Char('-') : QLatin1Char('+')) + e;
    }
    QString integral;
    QString fraction;
    if (exponent >= 0) {
        const QString padded = digits.leftJustified(exponent + 1, QLatin1Char('0'));
        integral = padded.left(exponent + 1);
        fraction = padded.mid(exponent + 1);
    } else {
        integral = QStringLiteral("0");
        fraction = QString(-exponent - 1, QLatin1Char('0')) + digits;
    }
    if (fraction.isEmpty())
        fraction = QStringLiteral("0");
    return sign + integral + QLatin1Char('.') + fraction;
}

bool isSnapAngleText(const QString &text)
{
    static const QStringList texts { QStringLiteral("0.0"), QStringLiteral("0"), QStringLiteral("45.0"),
        QStringLiteral("45"), QStringLiteral("90.0"), QStringLiteral("90"), QStringLiteral("135.0"),
        QStringLiteral("135"), QStringLiteral("180.0"), QStringLiteral("180"), QStringLiteral("-180.0"),
        QStringLiteral("-180"), QStringLiteral("-135.0"), QStringLiteral("-135"), QStringLiteral("-90.0"),
        QStringLiteral("-90"), QStringLiteral("-45.0"), QStringLiteral("-45"), QStringLiteral("-0.0"),
        QStringLiteral("-0") };
    return texts.contains(text);
}

QRectF unrotatedFrame(const View &view)
{
    const QSizeF size = view.bounds().size();
    return { view.center().x() - size.width() / 2, view.center().y() - size.height() / 2, size.width(), size.height() };
}

} // namespace LayerGeometry
