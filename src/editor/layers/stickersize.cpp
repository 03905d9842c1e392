#include "stickersize.h"

#include "layerview.h"

#include <algorithm>

namespace StickerSize {

namespace {

constexpr qreal floorSide = LayerView::buttonSize * 1.3;

QSizeF clamp(QSizeF size, const QSizeF &picture, const QSizeF &container)
{
    const qreal maxW = std::max(container.width() - LayerView::buttonSize, floorSide);
    const qreal maxH = std::max(container.height() - LayerView::buttonSize, floorSide);
    if (size.width() > maxW)
        size = QSizeF(maxW, picture.height() * maxW / picture.width());
    if (size.height() > maxH)
        size = QSizeF(picture.width() * maxH / picture.height(), maxH);
    return size;
}

} // namespace

QSizeF forNewSticker(const QSizeF &picture, const QSizeF &screen, const QSizeF &container)
{
    if (picture.isEmpty())
        return {};
    const qreal side = std::max(std::min(screen.width(), screen.height()) / 2.5, floorSide);
    const qreal w = picture.width();
    const qreal h = picture.height();
    const QSizeF size = w < h ? QSizeF(w * side / h, side) : QSizeF(side, h * side / w);
    return clamp(size, picture, container);
}

QSizeF forReplacement(const QSizeF &picture, const QSizeF &area, const QSizeF &container)
{
    if (picture.isEmpty())
        return area;
    const qreal w = picture.width();
    const qreal h = picture.height();
    const QSizeF size = area.width() <= area.height() ? QSizeF(w * area.height() / h, area.height())
                                                      : QSizeF(area.width(), h * area.width() / w);
    return clamp(size, picture, container);
}

} // namespace StickerSize
