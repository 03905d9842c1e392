#include "palettemapper.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int cellBits = 6;
constexpr int cellShift = 8 - cellBits;

} // namespace

PaletteMapper::PaletteMapper(std::vector<std::array<std::uint8_t, 3>> palette)
    : m_palette(std::move(palette))
    , m_cells(std::size_t(1) << (3 * cellBits), -1)
{
    for (std::size_t i = 0; i < m_palette.size() && i < 256; ++i)
        m_byGreen.push_back({ m_palette[i][0], m_palette[i][1], m_palette[i][2], std::uint8_t(i) });
    std::sort(m_byGreen.begin(), m_byGreen.end(), [](const Entry &a, const Entry &b) { return a.g < b.g; });
}

std::uint8_t PaletteMapper::nearest(int r, int g, int b)
{
    const std::size_t cell
        = std::size_t(((r >> cellShift) << (2 * cellBits)) | ((g >> cellShift) << cellBits) | (b >> cellShift));
    if (m_cells[cell] >= 0)
        return std::uint8_t(m_cells[cell]);
    // The cell's centre stands for every colour in it; green weighs most, as it does in brightness.
    const int half = 1 << (cellShift - 1);
    const int cr = ((r >> cellShift) << cellShift) + half;
    const int cg = ((g >> cellShift) << cellShift) + half;
    const int cb = ((b >> cellShift) << cellShift) + half;
    const auto start = std::lower_bound(
        m_byGreen.begin(), m_byGreen.end(), cg, [](const Entry &entry, int green) { return entry.g < green; });
    int best = 0;
    int bestDistance = std::numeric_limits<int>::max();
    const auto consider = [&](const Entry &entry) {
        const int dg = cg - entry.g;
        const int greenPart = 4 * dg * dg;
        if (greenPart >= bestDistance)
            return false;
        const int dr = cr - entry.r;
        const int db = cb - entry.b;
        const int distance = greenPart + 3 * dr * dr + 2 * db * db;
        if (distance < bestDistance) {
            bestDistance = distance;
            best = entry.index;
        }
        return true;
    };
    for (auto up = start; up != m_byGreen.end() && consider(*up); ++up) { }
    for (auto down = start; down != m_byGreen.begin() && consider(*(down - 1)); --down) { }
    m_cells[cell] = std::int16_t(best);
    return std::uint8_t(best);
}

std::vector<std::uint8_t> PaletteMapper::map(const QImage &picture)
{
    const int width = picture.width();
    const int height = picture.height();
    std::vector<std::uint8_t> indices(std::size_t(width) * height);
    if (m_palette.empty())
        return indices;
    // Errors in sixteenths for this row and the next, with a pixel of margin on each side.
    std::vector<int> current(std::size_t(width + 2) * 3, 0);
    std::vector<int> next(current.size(), 0);
    for (int y = 0; y < height; ++y) {
        const std::uint8_t *row = picture.constScanLine(y);
        std::uint8_t *out = indices.data() + std::size_t(y) * width;
        const bool forward = y % 2 == 0;
        const int step = forward ? 1 : -1;
        for (int i = 0; i < width; ++i) {
            const int x = forward ? i : width - 1 - i;
            int *error = current.data() + std::size_t(x + 1) * 3;
            int wanted[3];
            for (int c = 0; c < 3; ++c)
                wanted[c] = std::clamp(row[x * 4 + c] + (error[c] + 8) / 16, 0, 255);
            const std::uint8_t index = nearest(wanted[0], wanted[1], wanted[2]);
            out[x] = index;
            int *below = next.data() + std::size_t(x + 1) * 3;
            for (int c = 0; c < 3; ++c) {
                const int left = wanted[c] - m_palette[index][std::size_t(c)];
                error[step * 3 + c] += left * 7;
                below[-step * 3 + c] += left * 3;
                below[c] += left * 5;
                below[step * 3 + c] += left;
            }
        }
        std::swap(current, next);
        std::fill(next.begin(), next.end(), 0);
    }
    return indices;
}
