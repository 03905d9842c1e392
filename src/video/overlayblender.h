#pragma once

#include <QImage>

#include <array>
#include <cstdint>
#include <vector>

struct AVFrame;

/** The Y'CbCr matrix of a movie's pictures (limited range). */
enum class ColorMatrix { bt601, bt709 };

/**
 * The overlay converted once into the movie's own picture layout: planar 4:2:0 Y'CbCr with its alpha
 * premultiplied, so that laying it on a frame is one multiply and add per sample. Only the blocks of
 * 16 pixels (8 for colour) that hold any opaque sample are touched; the rest of the frame is left as it
 * is, or copied when the result goes to another frame.
 */
class OverlayBlender
{
public:
    /** `overlay` is premultiplied ARGB32 of the frames' size, which must be even. */
    OverlayBlender(const QImage &overlay, ColorMatrix matrix);

    /** Whether the overlay is transparent everywhere, so that frames pass unchanged. */
    [[nodiscard]] bool isEmpty() const;
    /** Lays the overlay on a writable yuv420p frame of its size. */
    void blendInPlace(AVFrame &frame) const;
    /** Writes the overlay over `source` into `target`, both yuv420p of its size. */
    void blend(const AVFrame &source, AVFrame &target) const;

private:
    struct Span
    {
        int begin;
        int end;
    };
    struct Plane
    {
        int width = 0;
        int height = 0;
        // Per sample: the overlay's premultiplied value in 8.8 fixed point, and what is left of the
        // video, 0 (opaque) to 256 (transparent).
        std::vector<std::uint16_t> premultiplied;
        std::vector<std::uint16_t> weight;
        // Per row, the runs of blocks that are not fully transparent: spans[rowStart[y], rowStart[y + 1]).
        std::vector<Span> spans;
        std::vector<std::uint32_t> rowStart;

        void findSpans(int block);
        void blendRow(int y, const std::uint8_t *source, std::uint8_t *target) const;
        void copyAround(int y, const std::uint8_t *source, std::uint8_t *target) const;
    };

    std::array<Plane, 3> m_planes;
};
