#include "frameimage.h"

#include "avhandles.h"

QImage frameToImage(const AVFrame &frame, QSize size)
{
    const av::Scaler scaler(
        sws_getContext(frame.width, frame.height, AVPixelFormat(frame.format), size.width(), size.height(),
            AV_PIX_FMT_RGBA, SWS_LANCZOS | SWS_ACCURATE_RND | SWS_FULL_CHR_H_INT, nullptr, nullptr, nullptr));
    if (!scaler)
        return {};
    const int *coefficients = sws_getCoefficients(frame.colorspace == AVCOL_SPC_BT709 ? SWS_CS_ITU709 : SWS_CS_ITU601);
    const bool fullRange = frame.color_range == AVCOL_RANGE_JPEG || frame.format == AV_PIX_FMT_YUVJ420P;
    sws_setColorspaceDetails(scaler.get(), coefficients, fullRange ? 1 : 0, coefficients, 1, 0, 1 << 16, 1 << 16);
    QImage image(size, QImage::Format_RGBA8888);
    uint8_t *planes[4] = { image.bits(), nullptr, nullptr, nullptr };
    const int linesizes[4] = { int(image.bytesPerLine()), 0, 0, 0 };
    if (sws_scale(scaler.get(), frame.data, frame.linesize, 0, frame.height, planes, linesizes) <= 0)
        return {};
    return image;
}
