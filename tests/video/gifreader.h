#pragma once

#include <QImage>
#include <QString>

#include <optional>
#include <vector>

/** An animated GIF as giflib reads it back. */
struct GifContents
{
    QSize size;
    std::vector<QImage> frames;
    /** Each frame's delay, in hundredths of a second. */
    std::vector<int> delays;
    /** The Netscape loop count (0: for ever); nothing when the file has none. */
    std::optional<int> loopCount;
};

/** Nothing when the file is not a GIF giflib can read. */
[[nodiscard]] std::optional<GifContents> readGif(const QString &path);
