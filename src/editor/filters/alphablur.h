#pragma once

#include <QImage>

/** The blur of the feather mask, on alpha alone. */
namespace AlphaBlur {
/**
 * An approximate Gaussian blur of standard deviation `sigma` pixels (three box passes each way) of an
 * Alpha8 picture, with transparency all round it. Rows and columns are split across the thread pool.
 */
[[nodiscard]] QImage gaussian(const QImage &alpha, qreal sigma);
} // namespace AlphaBlur
