#include "filtersource.h"

#include "colormatrix.h"
#include "photofilters.h"
#include "pixelkernels.h"

QImage FilterSource::applyFilter(int row) const
{
    const auto &items = PhotoFilters::filterItemsArray();
    if (row < 0 || row >= items.size())
        return m_source;
    return PhotoFilters::applyFilter(m_source, items.at(row).filter);
}

QImage FilterSource::opacity(qreal v) const
{
    return PixelKernels::fade(m_source, opacityFor(v));
}

QImage FilterSource::brightness(qreal v) const
{
    return PixelKernels::colorMatrix(m_source, ColorMatrix::brightness(float(brightnessFor(v))));
}

QImage FilterSource::contrast(qreal v) const
{
    return PixelKernels::colorMatrix(m_source, ColorMatrix::contrast(float(contrastFor(v))));
}

QImage FilterSource::saturation(qreal v) const
{
    return PixelKernels::colorMatrix(m_source, ColorMatrix::saturation(float(saturationFor(v))));
}
