#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>
#include <QTransform>

#include <optional>

class View;

/**
 * The turn and snap arithmetic that sticker and text layers share. Angles of transforms are read as
 * atan2(b, a); the turn is built as a Core Animation 3D rotation with perspective whose 2D part the
 * layer keeps, so the numbers come out as the design's own.
 */
namespace LayerGeometry {

/** The perspective element of the layers' 3D turn. */
inline constexpr double perspective = -0.002;

/**
 * The identity with m34 = `perspective`, turned about (0, 0, 1) by `radians`; the affine part taken from
 * m11, m12, m21, m22, m41, m42.
 */
[[nodiscard]] QTransform perspectiveRotation(double radians);

/** The turn of a transform in degrees, atan2(b, a) x 180 / pi. */
[[nodiscard]] double degrees(const QTransform &transform);

/** The turn of a transform in radians as the layers keep it: degrees first, then back. */
[[nodiscard]] double zAngle(const QTransform &transform);

/** The angle of a touch about a centre, with 32-bit atan2f on the differences narrowed to float. */
[[nodiscard]] double touchAngle(const QPointF &touch, const QPointF &center);

/**
 * The snap target for an angle in degrees with half-width `distance`: the targets are walked as
 * 0, 45, 90, 135, 180, -45, -90, -135, -180 and the first band that holds the angle wins. An angle equal
 * to a target is in none of its bands.
 */
[[nodiscard]] std::optional<double> snapTarget(double degrees, double distance);

/** The frame of a view as if it were not turned: its bounds' size about its centre. */
[[nodiscard]] QRectF unrotatedFrame(const View &view);

/** The shortest decimal form of a double, as Swift prints it: "45.0", "-0.0", "1e-05". */
[[nodiscard]] QString swiftDescription(double value);

/** Whether the printed angle is one of the texts at which the dashed border shows. */
[[nodiscard]] bool isSnapAngleText(const QString &text);

} // namespace LayerGeometry
