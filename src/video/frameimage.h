#pragma once

#include <QImage>
#include <QSize>

struct AVFrame;

/**
 * A decoded picture as RGBA8888 at `size`, scaled with a Lanczos filter and converted with the
 * Y'CbCr matrix and range its frame is tagged with (BT.601 when untagged, as FFmpeg assumes). A null
 * image when the picture cannot be converted.
 */
[[nodiscard]] QImage frameToImage(const AVFrame &frame, QSize size);
