#pragma once

#include <QImage>

#include <vector>

/** The blur of the feather mask, on alpha alone. */
namespace AlphaBlur {
/**
 * An approximate Gaussian blur of standard deviation `sigma` pixels (three box passes each way) of an
 * Alpha8 picture, with transparency all round it. Rows and columns are split across the thread pool.
 */
[[nodiscard]] QImage gaussian(const QImage &alpha, qreal sigma);
/** The same blur of one line of coverage values, with zero beyond both ends. */
[[nodiscard]] std::vector<float> gaussian(std::vector<float> line, qreal sigma);
} // namespace AlphaBlur
