#pragma once

#include <QImage>

#include <array>
#include <cstdint>
#include <vector>

/**
 * Maps a picture onto a palette with Floyd-Steinberg error diffusion, in serpentine order. The nearest
 * entry is looked up per cell of 4 x 4 x 4 colour values and kept, so a frame costs one palette search
 * per cell it meets rather than per pixel.
 */
class PaletteMapper
{
public:
    explicit PaletteMapper(std::vector<std::array<std::uint8_t, 3>> palette);

    /** The palette index of each pixel of an RGBA8888 picture, row by row. */
    [[nodiscard]] std::vector<std::uint8_t> map(const QImage &picture);

private:
    [[nodiscard]] std::uint8_t nearest(int r, int g, int b);

    struct Entry
    {
        int r;
        int g;
        int b;
        std::uint8_t index;
    };

    std::vector<std::array<std::uint8_t, 3>> m_palette;
    // The palette sorted by green, so that a search can stop once green alone is farther than the best.
    std::vector<Entry> m_byGreen;
    std::vector<std::int16_t> m_cells;
};
