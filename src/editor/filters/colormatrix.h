#pragma once

#include <array>

/**
 * An affine map of unpremultiplied RGB in 0..1: out = m · in + offset. Colour controls, tints and sepia
 * are all of this form, and so is any chain of them, which then runs as one pass.
 */
struct ColorMatrix
{
    std::array<std::array<float, 3>, 3> m { { { 1, 0, 0 }, { 0, 1, 0 }, { 0, 0, 1 } } };
    std::array<float, 3> offset { 0, 0, 0 };

    /** The luminance weights (Rec. 709) that grey, saturation and the luminance ramps use. */
    static constexpr std::array<float, 3> luminance { 0.2126F, 0.7152F, 0.0722F };

    /** Between the grey of the same luminance (0) and the colour (1), extrapolated above 1. */
    [[nodiscard]] static ColorMatrix saturation(float amount);
    /** Adds the same bias to each channel. */
    [[nodiscard]] static ColorMatrix brightness(float bias);
    /** Scales the distance from mid grey: (c - 0.5) · amount + 0.5. */
    [[nodiscard]] static ColorMatrix contrast(float amount);
    /** Each channel scaled and then raised by its own bias. */
    [[nodiscard]] static ColorMatrix channels(std::array<float, 3> scale, std::array<float, 3> bias);
    /** The grey of the luminance, then mapped as `low + (high - low) · L` on each channel. */
    [[nodiscard]] static ColorMatrix grey(float low, float high);

    /** `this` after `first`: (A * B)(c) = A(B(c)). */
    [[nodiscard]] ColorMatrix operator*(const ColorMatrix &first) const;
};
