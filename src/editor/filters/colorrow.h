#pragma once

#include <QRgb>

#include <vector>

/**
 * One scan line of a premultiplied ARGB32 picture as planes of unpremultiplied colour in 0..1 and alpha in
 * 0..255, so that colour kernels are plain loops over arrays that the compiler vectorises. A band keeps one
 * row and reuses it for each of its lines.
 */
struct ColorRow
{
    explicit ColorRow(int width);

    /** Reads a line; a transparent pixel reads as black. */
    void load(const QRgb *line);
    /** Writes the colour back, clamped to 0..1 and premultiplied by the alpha that was read. */
    void store(QRgb *line) const;

    int width;
    std::vector<float> r, g, b, a;
};
