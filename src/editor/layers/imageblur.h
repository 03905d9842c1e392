#pragma once

#include <QImage>

/** Blurs for drawn effects such as text shadows. */
namespace ImageBlur {
/** An approximate Gaussian blur of standard deviation `sigma` pixels (three box passes), in place. */
void gaussian(QImage &image, qreal sigma);
} // namespace ImageBlur
