#pragma once

#include <QColor>
#include <QImage>

#include <cmath>
#include <functional>

/** Pictures and measures shared by the filter tests. */
namespace FilterPictures {

/**
 * 128 x 64, premultiplied: a grey ramp from black to white (rows 0-15), bright hues (16-31), muted hues
 * (32-47) and the bright hues at half alpha (48-63); x runs along the ramp and the hues.
 */
inline QImage testPicture()
{
    QImage image(128, 64, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int hue = x * 359 / 127;
            QColor color;
            if (y < 16)
                color = QColor(x * 255 / 127, x * 255 / 127, x * 255 / 127);
            else if (y < 32)
                color = QColor::fromHsv(hue, 220, 230);
            else if (y < 48)
                color = QColor::fromHsv(hue, 70, 150);
            else
                color = QColor::fromHsv(hue, 220, 230, 128);
            image.setPixel(x, y, qPremultiply(color.rgba()));
        }
    }
    return image;
}

/** A picture of one colour. */
inline QImage filled(QColor color, int width = 64, int height = 64)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

/** The unpremultiplied colour at (x, y). */
inline QColor at(const QImage &image, int x, int y)
{
    return QColor::fromRgba(qUnpremultiply(image.pixel(x, y)));
}

/** The largest difference of any channel (premultiplied bytes) between two pictures of one size. */
inline int largestDifference(const QImage &a, const QImage &b)
{
    const QImage left = a.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage right = b.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    int largest = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            const QRgb p = left.pixel(x, y), q = right.pixel(x, y);
            for (int shift : { 0, 8, 16, 24 })
                largest = std::max(largest, std::abs(int((p >> shift) & 0xFF) - int((q >> shift) & 0xFF)));
        }
    }
    return largest;
}

/** Whether `test` holds for every pixel in the rows [top, bottom). */
inline bool everyPixel(const QImage &image, int top, int bottom, const std::function<bool(const QColor &)> &test)
{
    for (int y = top; y < bottom; ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (!test(at(image, x, y)))
                return false;
        }
    }
    return true;
}

/** Mean HSV saturation (0..255) of the rows [top, bottom). */
inline double meanSaturation(const QImage &image, int top, int bottom)
{
    double sum = 0;
    for (int y = top; y < bottom; ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += at(image, x, y).hsvSaturation();
    }
    return sum / ((bottom - top) * image.width());
}

/** Mean luminance (0..255) of the rows [top, bottom). */
inline double meanLuminance(const QImage &image, int top, int bottom)
{
    double sum = 0;
    for (int y = top; y < bottom; ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = at(image, x, y);
            sum += 0.2126 * c.red() + 0.7152 * c.green() + 0.0722 * c.blue();
        }
    }
    return sum / ((bottom - top) * image.width());
}

} // namespace FilterPictures
