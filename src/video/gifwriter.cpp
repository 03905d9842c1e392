#include "gifwriter.h"

#include "palettemapper.h"

#include <QFile>

#include <gif_lib.h>
#include <libimagequant.h>

#include <cstdio>
#include <memory>

namespace {

// libimagequant's speed from 1 (best) to 10 (fastest): at 10 it builds the palette from a sample of the
// picture, in a tenth of its best time; the error diffusion makes up for the rest.
constexpr int quantizeSpeed = 10;

struct AttrDeleter
{
    void operator()(liq_attr *attr) const { liq_attr_destroy(attr); }
};
struct ImageDeleter
{
    void operator()(liq_image *image) const { liq_image_destroy(image); }
};
struct ResultDeleter
{
    void operator()(liq_result *result) const { liq_result_destroy(result); }
};
struct MapDeleter
{
    void operator()(ColorMapObject *map) const { GifFreeMapObject(map); }
};

// giflib wants a colour table of a power of two entries.
std::unique_ptr<ColorMapObject, MapDeleter> colorMapOf(const PalettedFrame &frame)
{
    int size = 2;
    while (size < int(frame.palette.size()))
        size *= 2;
    std::vector<GifColorType> colors(std::size_t(size), GifColorType { 0, 0, 0 });
    for (std::size_t i = 0; i < frame.palette.size(); ++i)
        colors[i] = { frame.palette[i][0], frame.palette[i][1], frame.palette[i][2] };
    return std::unique_ptr<ColorMapObject, MapDeleter>(GifMakeMapObject(size, colors.data()));
}

bool writeFrames(GifFileType *gif, const std::vector<PalettedFrame> &frames, int delayHundredths, int loopCount)
{
    const PalettedFrame &first = frames.front();
    EGifSetGifVersion(gif, true);
    if (EGifPutScreenDesc(gif, first.width, first.height, 8, 0, nullptr) != GIF_OK)
        return false;
    // The Netscape application block carries the loop count.
    const unsigned char loop[3] = { 1, std::uint8_t(loopCount & 0xff), std::uint8_t(loopCount >> 8) };
    if (EGifPutExtensionLeader(gif, APPLICATION_EXT_FUNC_CODE) != GIF_OK
        || EGifPutExtensionBlock(gif, 11, "NETSCAPE2.0") != GIF_OK || EGifPutExtensionBlock(gif, 3, loop) != GIF_OK
        || EGifPutExtensionTrailer(gif) != GIF_OK)
        return false;
    for (const PalettedFrame &frame : frames) {
        if (frame.width != first.width || frame.height != first.height || frame.indices.empty())
            return false;
        const GraphicsControlBlock control { DISPOSE_DO_NOT, false, delayHundredths, NO_TRANSPARENT_COLOR };
        GifByteType extension[4];
        const auto length = int(EGifGCBToExtension(&control, extension));
        const auto map = colorMapOf(frame);
        if (!map || EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, length, extension) != GIF_OK
            || EGifPutImageDesc(gif, 0, 0, frame.width, frame.height, false, map.get()) != GIF_OK)
            return false;
        for (int y = 0; y < frame.height; ++y) {
            auto *row = const_cast<GifPixelType *>(frame.indices.data() + std::size_t(y) * frame.width);
            if (EGifPutLine(gif, row, frame.width) != GIF_OK)
                return false;
        }
    }
    return true;
}

} // namespace

PalettedFrame PalettedFrame::quantize(const QImage &picture)
{
    const QImage rgba = picture.convertToFormat(QImage::Format_RGBA8888);
    const std::unique_ptr<liq_attr, AttrDeleter> attr(liq_attr_create());
    if (!attr || liq_set_speed(attr.get(), quantizeSpeed) != LIQ_OK || liq_set_max_colors(attr.get(), 256) != LIQ_OK)
        return {};
    const std::unique_ptr<liq_image, ImageDeleter> image(
        liq_image_create_rgba(attr.get(), rgba.constBits(), rgba.width(), rgba.height(), 0));
    liq_result *quantized = nullptr;
    if (!image || liq_image_quantize(image.get(), attr.get(), &quantized) != LIQ_OK)
        return {};
    const std::unique_ptr<liq_result, ResultDeleter> result(quantized);
    PalettedFrame frame { rgba.width(), rgba.height(), {}, {} };
    const liq_palette *palette = liq_get_palette(result.get());
    for (unsigned i = 0; i < palette->count; ++i)
        frame.palette.push_back({ palette->entries[i].r, palette->entries[i].g, palette->entries[i].b });
    // libimagequant's own dithered remapping costs several times its palette search on video frames.
    frame.indices = PaletteMapper(frame.palette).map(rgba);
    return frame;
}

bool writeGif(const std::vector<PalettedFrame> &frames, int delayHundredths, int loopCount, const QString &path)
{
    if (frames.empty())
        return false;
    const QString partPath = path + QStringLiteral(".part");
    int error = 0;
    GifFileType *gif = EGifOpenFileName(QFile::encodeName(partPath).constData(), false, &error);
    if (!gif)
        return false;
    const bool written = writeFrames(gif, frames, delayHundredths, loopCount);
    const bool closed = EGifCloseFile(gif, &error) == GIF_OK;
    if (!written || !closed
        || std::rename(QFile::encodeName(partPath).constData(), QFile::encodeName(path).constData()) != 0) {
        QFile::remove(partPath);
        return false;
    }
    return true;
}
