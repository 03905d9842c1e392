#include "canvasrenderer.h"

#include "selectionchrome.h"
#include "view.h"

#include <algorithm>
#include <cmath>

namespace CanvasRenderer {

namespace {

void paintOwn(QPainter &painter, const View &view, Chrome chrome)
{
    if (view.clipsToBounds())
        painter.setClipRect(view.bounds(), Qt::IntersectClip);
    const QColor background = view.backgroundColor();
    if (background.isValid() && background.alpha() > 0)
        painter.fillRect(view.bounds(), background);
    view.paintContent(painter);
    for (const View *child : view.subviews()) {
        if (child->isHidden() || child->alpha() <= 0)
            continue;
        if (chrome == Chrome::Hidden && SelectionChrome::isChrome(child))
            continue;
        painter.save();
        painter.translate(child->center());
        painter.setTransform(child->transform(), true);
        painter.translate(-child->bounds().center());
        painter.setOpacity(painter.opacity() * child->alpha());
        paintOwn(painter, *child, chrome);
        painter.restore();
    }
}

} // namespace

void render(QPainter &painter, const View &root, qreal scale, Chrome chrome)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(scale, scale);
    painter.translate(-root.bounds().topLeft());
    paintOwn(painter, root, chrome);
    painter.restore();
}

QImage renderImage(const View &root, const QSize &target)
{
    const QSizeF size = root.bounds().size();
    if (target.isEmpty() || size.isEmpty())
        return {};
    const qreal scale = std::min(target.width() / size.width(), target.height() / size.height());
    const QSize drawn(
        std::max(1, int(std::ceil(size.width() * scale))), std::max(1, int(std::ceil(size.height() * scale))));
    QImage image(drawn, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        render(painter, root, scale);
    }
    if (drawn == target)
        return image;
    return image.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace CanvasRenderer
