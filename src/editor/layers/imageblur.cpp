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
    const qsizetype stride = image.bytesPerLine() / 4;
    const qsizetype step = horizontal ? 1 : stride;
    const int window = 2 * radius + 1;
    auto *bits = reinterpret_cast<QRgb *>(image.bits());
    QList<QRgb> source(length);
    for (int line = 0; line < lines; ++line) {
        QRgb *first = bits + (horizontal ? line * stride : line);
        for (int i = 0; i < length; ++i)
            source[i] = first[i * step];
        int a = 0, r = 0, g = 0, b = 0;
        auto add = [&](QRgb p, int sign) {
            a += sign * int(qAlpha(p));
            r += sign * int(qRed(p));
            g += sign * int(qGreen(p));
            b += sign * int(qBlue(p));
        };
        for (int i = -radius; i <= radius; ++i)
            add(source[std::clamp(i, 0, length - 1)], 1);
        for (int i = 0; i < length; ++i) {
            first[i * step] = qRgba(r / window, g / window, b / window, a / window);
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
