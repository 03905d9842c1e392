#include "patterntiles.h"

#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>
#include <QtMath>

#include <cmath>
#include <numbers>

namespace {

struct Palette
{
    QRgb ground;
    QRgb figure;
    QRgb second;
};

constexpr Palette texturePalettes[] = {
    { 0xFFE05863, 0xFFFFFFFF, 0xFFF9A8A0 },
    { 0xFF1F1A1C, 0xFFF8C221, 0xFFE05863 },
    { 0xFF4E4FB0, 0xFF8FD3FE, 0xFFFFFFFF },
    { 0xFFFDF6E3, 0xFF2D8E2D, 0xFFA8E6CF },
    { 0xFF631553, 0xFFE266AF, 0xFFFFC2E2 },
    { 0xFF063F7D, 0xFF44AAB0, 0xFFFFFFFF },
    { 0xFFFFF1D6, 0xFFFF7F6B, 0xFF4E4FB0 },
    { 0xFF2B2B2B, 0xFFFFFFFF, 0xFF8A8A8A },
    { 0xFFFFE5EC, 0xFFFB6F92, 0xFFFFB3C6 },
    { 0xFFEAF599, 0xFF00A9C1, 0xFF7BF6F5 },
};
constexpr int paletteCount = static_cast<int>(std::size(texturePalettes));

enum class Motif { Dots, Stripes, Checks, Waves, Zigzag, Grid, Crosses, Triangles, Rings, Scales, Confetti, Diamonds };
constexpr int motifCount = 12;

/** One tile: a motif repeated `repeats` times across a square of `side` pixels. */
class Tile
{
public:
    Tile(int side, int repeats, const Palette &palette, quint32 seed)
        : m_side(side)
        , m_period(qreal(side) / repeats)
        , m_repeats(repeats)
        , m_palette(palette)
        , m_seed(seed)
    { }

    QImage draw(Motif motif) const
    {
        QImage image(m_side, m_side, QImage::Format_ARGB32_Premultiplied);
        image.fill(QColor::fromRgba(m_palette.ground));
        QPainter p(&image);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(Qt::NoPen);
        switch (motif) {
        case Motif::Dots:
            dots(p);
            break;
        case Motif::Stripes:
            stripes(p);
            break;
        case Motif::Checks:
            checks(p);
            break;
        case Motif::Waves:
            waves(p);
            break;
        case Motif::Zigzag:
            zigzag(p);
            break;
        case Motif::Grid:
            grid(p);
            break;
        case Motif::Crosses:
            crosses(p);
            break;
        case Motif::Triangles:
            triangles(p);
            break;
        case Motif::Rings:
            rings(p);
            break;
        case Motif::Scales:
            scales(p);
            break;
        case Motif::Confetti:
            confetti(p);
            break;
        case Motif::Diamonds:
            diamonds(p);
            break;
        }
        p.end();
        return image;
    }

private:
    QColor figure() const { return QColor::fromRgba(m_palette.figure); }
    QColor second() const { return QColor::fromRgba(m_palette.second); }
    QPen stroke(const QColor &colour, qreal share) const
    {
        return QPen(colour, m_period * share, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    }
    // Calls `cell` for every lattice cell, one ring of cells beyond the edges so that motifs that
    // cross an edge come back on the other side. Repeats are even, so staggered rows line up too.
    template<typename Cell> void forEachCell(Cell cell) const
    {
        for (int row = -1; row <= m_repeats; ++row) {
            for (int column = -1; column <= m_repeats; ++column)
                cell(row, column, QPointF((column + 0.5) * m_period, (row + 0.5) * m_period));
        }
    }

    void dots(QPainter &p) const
    {
        p.setBrush(figure());
        forEachCell([&](int row, int, QPointF centre) {
            p.drawEllipse(centre + QPointF(row % 2 ? m_period / 2 : 0, 0), m_period * 0.22, m_period * 0.22);
        });
    }
    void stripes(QPainter &p) const
    {
        p.setPen(stroke(figure(), 0.35));
        for (int i = -m_repeats; i <= 2 * m_repeats; ++i) {
            const qreal c = i * m_period;
            p.drawLine(QPointF(c + m_side, -m_side), QPointF(c - 2 * m_side, 2 * m_side));
        }
    }
    void checks(QPainter &p) const
    {
        forEachCell([&](int row, int column, QPointF centre) {
            if ((row + column) % 2 == 0)
                p.fillRect(QRectF(centre - QPointF(m_period / 2, m_period / 2), QSizeF(m_period, m_period)), figure());
        });
    }
    void waves(QPainter &p) const
    {
        p.setPen(stroke(figure(), 0.18));
        p.setBrush(Qt::NoBrush);
        const int turns = m_repeats / 2;
        for (int row = -1; row <= m_repeats; ++row) {
            QPainterPath wave;
            // From beyond one edge to beyond the other, so that no end of the stroke lies on an edge.
            const int reach = qCeil(m_period);
            for (int x = -reach; x <= m_side + reach; x += 2) {
                const qreal y
                    = (row + 0.5) * m_period + 0.25 * m_period * std::sin(2 * std::numbers::pi * turns * x / m_side);
                x == -reach ? wave.moveTo(x, y) : wave.lineTo(x, y);
            }
            p.drawPath(wave);
        }
    }
    void zigzag(QPainter &p) const
    {
        p.setPen(stroke(figure(), 0.15));
        for (int row = -1; row <= m_repeats; ++row) {
            QPolygonF line;
            for (int step = -1; step <= 2 * m_repeats + 1; ++step)
                line << QPointF(step * m_period / 2, (row + (step % 2 ? 0.25 : 0.75)) * m_period);
            p.drawPolyline(line);
        }
    }
    void grid(QPainter &p) const
    {
        p.setPen(stroke(second(), 0.04));
        for (int i = 0; i <= 2 * m_repeats; ++i) {
            const qreal at = i * m_period / 2;
            p.drawLine(QPointF(at, 0), QPointF(at, m_side));
            p.drawLine(QPointF(0, at), QPointF(m_side, at));
        }
        p.setPen(stroke(figure(), 0.1));
        for (int i = 0; i <= m_repeats; ++i) {
            p.drawLine(QPointF(i * m_period, 0), QPointF(i * m_period, m_side));
            p.drawLine(QPointF(0, i * m_period), QPointF(m_side, i * m_period));
        }
    }
    void crosses(QPainter &p) const
    {
        p.setPen(stroke(figure(), 0.1));
        const qreal arm = m_period * 0.22;
        forEachCell([&](int row, int, QPointF centre) {
            const QPointF c = centre + QPointF(row % 2 ? m_period / 2 : 0, 0);
            p.drawLine(c - QPointF(arm, 0), c + QPointF(arm, 0));
            p.drawLine(c - QPointF(0, arm), c + QPointF(0, arm));
        });
    }
    void triangles(QPainter &p) const
    {
        forEachCell([&](int row, int column, QPointF centre) {
            const qreal h = m_period * 0.36;
            p.setBrush((row + column) % 2 ? figure() : second());
            p.drawPolygon(QPolygonF { centre + QPointF(0, -h), centre + QPointF(h, h), centre + QPointF(-h, h) });
        });
    }
    void rings(QPainter &p) const
    {
        forEachCell([&](int, int, QPointF centre) {
            p.setPen(stroke(figure(), 0.08));
            p.setBrush(Qt::NoBrush);
            p.drawEllipse(centre, m_period * 0.34, m_period * 0.34);
            p.setPen(Qt::NoPen);
            p.setBrush(second());
            p.drawEllipse(centre, m_period * 0.1, m_period * 0.1);
        });
    }
    void scales(QPainter &p) const
    {
        p.setPen(stroke(QColor::fromRgba(m_palette.ground), 0.06));
        for (int row = -2; row <= 2 * m_repeats + 1; ++row) {
            for (int column = -1; column <= m_repeats + 1; ++column) {
                const QPointF centre((column + (row % 2 ? 0.5 : 0.0)) * m_period, row * m_period / 2);
                p.setBrush((column + row) % 2 == 0 ? second() : figure());
                p.drawEllipse(centre, m_period / 2, m_period / 2);
            }
        }
    }
    void confetti(QPainter &p) const
    {
        QRandomGenerator random(m_seed);
        const int pieces = m_repeats * m_repeats;
        for (int i = 0; i < pieces; ++i) {
            const QPointF at(random.bounded(double(m_side)), random.bounded(double(m_side)));
            const qreal angle = random.bounded(180.0);
            const bool round = random.bounded(3) == 0;
            const QColor colour = random.bounded(2) ? figure() : second();
            for (int dy = -1; dy <= 1; ++dy) {
                for (int dx = -1; dx <= 1; ++dx) {
                    p.save();
                    p.translate(at + QPointF(dx * m_side, dy * m_side));
                    p.rotate(angle);
                    p.setBrush(colour);
                    if (round)
                        p.drawEllipse(QPointF(), m_period * 0.15, m_period * 0.15);
                    else
                        p.drawRoundedRect(QRectF(-m_period * 0.25, -m_period * 0.08, m_period * 0.5, m_period * 0.16),
                            m_period * 0.05, m_period * 0.05);
                    p.restore();
                }
            }
        }
    }
    void diamonds(QPainter &p) const
    {
        forEachCell([&](int row, int column, QPointF centre) {
            const qreal h = m_period / 2;
            p.setBrush((row + column) % 2 ? figure() : second());
            p.drawPolygon(QPolygonF {
                centre + QPointF(0, -h), centre + QPointF(h, 0), centre + QPointF(0, h), centre + QPointF(-h, 0) });
        });
    }

    int m_side;
    qreal m_period;
    int m_repeats;
    Palette m_palette;
    quint32 m_seed; // places the confetti
};

QImage fitted(const QImage &tile, const QSize &size)
{
    return tile.size() == size ? tile : tile.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

namespace PatternTiles {

QImage texture(int number, const QSize &size)
{
    if (number < 1 || number > textureCount || size.isEmpty())
        return {};
    // Neighbouring numbers differ in motif; each round of motifs takes other colours and another scale.
    const int motif = (number - 1) % motifCount;
    const int round = (number - 1) / motifCount;
    const Palette &palette = texturePalettes[(round + 3 * motif) % paletteCount];
    const int repeats = 6 + 2 * (round % 3);
    const Tile tile(std::max(size.width(), size.height()), repeats, palette, quint32(number));
    return fitted(tile.draw(static_cast<Motif>(motif)), size);
}

QImage background(int number, const QSize &size)
{
    static constexpr struct
    {
        Motif motif;
        Palette palette;
    } backgrounds[] = {
        { Motif::Dots, { 0xFFFFF0F2, 0xFFF6C1C7, 0 } },
        { Motif::Stripes, { 0xFFEEF6FF, 0xFFD5E6FB, 0 } },
        { Motif::Confetti, { 0xFFFFF8EC, 0xFFF4B6A6, 0xFF9FD8CB } },
        { Motif::Grid, { 0xFFFFFFFF, 0xFFDCD3D6, 0xFFF0EBED } },
    };
    if (number < 1 || number > backgroundCount || size.isEmpty())
        return {};
    const auto &kind = backgrounds[number - 1];
    const Tile tile(std::max(size.width(), size.height()), 6, kind.palette, quint32(1000 + number));
    return fitted(tile.draw(kind.motif), size);
}

} // namespace PatternTiles
