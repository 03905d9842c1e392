#pragma once

#include <QImage>

class ColorRamp;
struct ColorMatrix;

/**
 * Whole-picture passes over scan lines, split across the thread pool. Each takes any picture and gives a
 * new premultiplied ARGB32 one of the same size; the source is never changed.
 */
namespace PixelKernels {
/** Every pixel's colour through the matrix; alpha kept. */
[[nodiscard]] QImage colorMatrix(const QImage &source, const ColorMatrix &matrix);
/** Each channel cut to `levels` evenly spaced values (at least 2). */
[[nodiscard]] QImage posterize(const QImage &source, int levels);
/** Every pixel's colour replaced by the ramp's colour at its luminance. */
[[nodiscard]] QImage luminanceRamp(const QImage &source, const ColorRamp &ramp);
/**
 * Darkens towards the corners as a lens does (cos⁴ of the angle off axis): `radius` widens the angle that
 * the picture spans, `intensity` scales the loss of light; (radius 1, intensity 0) changes nothing.
 */
[[nodiscard]] QImage vignette(const QImage &source, float radius, float intensity);
/** The picture drawn at an opacity in 0..1: every premultiplied channel scaled, so 1 keeps it exactly. */
[[nodiscard]] QImage fade(const QImage &source, qreal opacity);
/** The picture with each pixel scaled by the alpha of the mask's pixel (an Alpha8 picture of the same size). */
[[nodiscard]] QImage maskedBy(const QImage &source, const QImage &mask);
} // namespace PixelKernels
