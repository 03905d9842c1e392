#include "stickertint.h"

namespace StickerTint {

QImage multiply(const QImage &picture, const QColor &color)
{
    if (picture.isNull() || !color.isValid())
        return picture;
    // Premultiplied channels times a constant stay premultiplied, so alpha needs no work.
    QImage out = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const int r = qRound(color.redF() * 256);
    const int g = qRound(color.greenF() * 256);
    const int b = qRound(color.blueF() * 256);
    for (int y = 0; y < out.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(out.scanLine(y));
        for (int x = 0; x < out.width(); ++x) {
            const QRgb p = line[x];
            line[x] = qRgba((qRed(p) * r) >> 8, (qGreen(p) * g) >> 8, (qBlue(p) * b) >> 8, qAlpha(p));
        }
    }
    return out;
}

} // namespace StickerTint
