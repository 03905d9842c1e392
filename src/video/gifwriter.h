#pragma once

#include <QImage>
#include <QString>

#include <array>
#include <cstdint>
#include <vector>

/** One frame reduced to at most 256 colours of its own. */
struct PalettedFrame
{
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> indices;
    std::vector<std::array<std::uint8_t, 3>> palette;

    /**
     * A picture (RGBA8888, alpha ignored) with the palette libimagequant finds for it and Floyd-Steinberg
     * error diffusion; an empty frame when quantising fails.
     */
    [[nodiscard]] static PalettedFrame quantize(const QImage &picture);
};

/**
 * Writes frames of one size as an animated GIF with giflib: each frame with its own palette and the
 * same delay, repeated `loopCount` times (0: for ever). The file is written under a temporary name
 * beside `path` and renamed when complete; false, and nothing under `path`, when it fails.
 */
bool writeGif(const std::vector<PalettedFrame> &frames, int delayHundredths, int loopCount, const QString &path);
