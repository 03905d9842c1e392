#pragma once

#include <QImage>

/**
 * The picture that the filter rows and the adjustment sliders start from (`aCIImage`), taken when the
 * filter or adjustment tool opens. Every row and every slider value makes its result from this same
 * picture, so filters replace one another and adjustments do not add up.
 */
class FilterSource
{
public:
    /** The sliders' formulas: slider value to Core Image's colour-control parameter. */
    [[nodiscard]] static constexpr qreal brightnessFor(qreal v) { return v / 200.0; }
    [[nodiscard]] static constexpr qreal contrastFor(qreal v) { return v / 200.0 + 1.0; }
    [[nodiscard]] static constexpr qreal saturationFor(qreal v) { return v / 100.0 + 1.0; }
    [[nodiscard]] static constexpr qreal opacityFor(qreal v) { return v / 100.0; }

    /** Takes the picture shown now as the source; a null picture leaves nothing to act on. */
    void setupCoreImage(const QImage &picture) { m_source = picture; }
    [[nodiscard]] const QImage &aCIImage() const { return m_source; }

    /** Row `row` of the filter menu; row 0 and rows out of range give the source untouched. */
    [[nodiscard]] QImage applyFilter(int row) const;
    /** The source drawn at opacity v / 100. */
    [[nodiscard]] QImage opacity(qreal v) const;
    /** The source with brightness v / 200. */
    [[nodiscard]] QImage brightness(qreal v) const;
    /** The source with contrast v / 200 + 1. */
    [[nodiscard]] QImage contrast(qreal v) const;
    /** The source with saturation v / 100 + 1. */
    [[nodiscard]] QImage saturation(qreal v) const;

private:
    QImage m_source;
};
