#include "imageblur.h"

#include <QList>

#include <algorithm>
#include <cmath>

namespace ImageBlur {

namespace {

// One box pass of half-width `radius` along rows (`horizontal`) or columns, edges clamped.
void boxPass(QImage &image, int radius, bool horizontal)
{
    const int length = horizontal ? image.width() : image.height();
    const int lines = horizontal ? image.height() : image.width();
    const int window = 2 * radius + 1;
    QList<QRgb> source(length);
    for (int line = 0; line < lines; ++line) {
        auto pixel = [&](int i) -> QRgb & {
            return horizontal ? reinterpret_cast<QRgb *>(image.scanLine(line))[i]
                              : reinterpret_cast<QRgb *>(image.scanLine(i))[line];
        };
        for (int i = 0; i < length; ++i)
            source[i] = pixel(i);
        int sum[4] = { 0, 0, 0, 0 };
        auto add = [&](QRgb p, int sign) {
            sum[0] += sign * qAlpha(p);
            sum[1] += sign * qRed(p);
            sum[2] += sign * qGreen(p);
            sum[3] += sign * qBlue(p);
        };
        for (int i = -radius; i <= radius; ++i)
            add(source[std::clamp(i, 0, length - 1)], 1);
        for (int i = 0; i < length; ++i) {
            pixel(i) = qRgba(sum[1] / window, sum[2] / window, sum[3] / window, sum[0] / window);
            add(source[std::min(i + radius + 1, length - 1)], 1);
            add(source[std::max(i - radius, 0)], -1);
        }
    }
}

} // namespace

void gaussian(QImage &image, qreal sigma)
{
    if (sigma < 0.5 || image.isNull())
        return;
    if (image.format() != QImage::Format_ARGB32_Premultiplied)
        image = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    // Three box passes of this width have the variance of the Gaussian.
    const int radius = std::max(1, int(std::lround((std::sqrt(4 * sigma * sigma + 1) - 1) / 2)));
    for (int pass = 0; pass < 3; ++pass) {
        boxPass(image, radius, true);
        boxPass(image, radius, false);
    }
}

} // namespace ImageBlur
