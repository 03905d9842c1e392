#include "gifreader.h"

#include <QFile>

#include <gif_lib.h>

std::optional<GifContents> readGif(const QString &path)
{
    int error = 0;
    GifFileType *gif = DGifOpenFileName(QFile::encodeName(path).constData(), &error);
    if (!gif)
        return std::nullopt;
    if (DGifSlurp(gif) != GIF_OK) {
        DGifCloseFile(gif, &error);
        return std::nullopt;
    }
    GifContents contents;
    contents.size = QSize(gif->SWidth, gif->SHeight);
    for (int i = 0; i < gif->ImageCount; ++i) {
        const SavedImage &saved = gif->SavedImages[i];
        GraphicsControlBlock control {};
        DGifSavedExtensionToGCB(gif, i, &control);
        contents.delays.push_back(control.DelayTime);
        for (int e = 0; e + 1 < saved.ExtensionBlockCount; ++e) {
            const ExtensionBlock &block = saved.ExtensionBlocks[e];
            const ExtensionBlock &data = saved.ExtensionBlocks[e + 1];
            if (block.Function == APPLICATION_EXT_FUNC_CODE && block.ByteCount == 11
                && QByteArray(reinterpret_cast<const char *>(block.Bytes), 11) == "NETSCAPE2.0" && data.ByteCount == 3)
                contents.loopCount = data.Bytes[1] | (data.Bytes[2] << 8);
        }
        const ColorMapObject *map = saved.ImageDesc.ColorMap ? saved.ImageDesc.ColorMap : gif->SColorMap;
        QImage frame(contents.size, QImage::Format_RGB32);
        frame.fill(Qt::black);
        for (int y = 0; y < saved.ImageDesc.Height && map; ++y) {
            for (int x = 0; x < saved.ImageDesc.Width; ++x) {
                const GifColorType &color = map->Colors[saved.RasterBits[y * saved.ImageDesc.Width + x]];
                frame.setPixel(
                    saved.ImageDesc.Left + x, saved.ImageDesc.Top + y, qRgb(color.Red, color.Green, color.Blue));
            }
        }
        contents.frames.push_back(frame);
    }
    DGifCloseFile(gif, &error);
    return contents;
}
