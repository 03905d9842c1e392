#include "canvasrenderer.h"

#include "selectionchrome.h"
#include "view.h"

#include <QHash>
#include <QThreadPool>
#include <QtConcurrent>

#include <algorithm>
#include <atomic>
#include <cmath>

namespace CanvasRenderer {

namespace {

// A view's content drawn once for a whole render, in the picture's pixels, where it lands in the picture.
struct Raster
{
    QImage image;
    QPoint origin;
};

// One pass of drawing: the chrome rule, and for a render in bands the rasters and the band's place.
struct Pass
{
    Chrome chrome;
    const QHash<const View *, Raster> *rasters = nullptr;
    QPoint bandOrigin;
};

bool isDrawn(const View &view, Chrome chrome)
{
    return !view.isHidden() && view.alpha() > 0 && (chrome == Chrome::Shown || !SelectionChrome::isChrome(&view));
}

// From a subview's coordinates to its superview's: about its centre, as painting applies it.
QTransform toSuperview(const View &view)
{
    const QPointF middle = view.bounds().center();
    return QTransform::fromTranslate(-middle.x(), -middle.y()) * view.transform()
        * QTransform::fromTranslate(view.center().x(), view.center().y());
}

// The raster goes in as a plain copy: it was drawn on the picture's own pixel grid.
void drawRaster(QPainter &painter, const Raster &raster, const QPoint &bandOrigin)
{
    if (raster.image.isNull())
        return;
    painter.save();
    painter.resetTransform();
    painter.drawImage(raster.origin - bandOrigin, raster.image);
    painter.restore();
}

void paintOwn(QPainter &painter, const View &view, const Pass &pass)
{
    if (view.clipsToBounds())
        view.clip(painter);
    const QColor background = view.backgroundColor();
    if (background.isValid() && background.alpha() > 0)
        painter.fillRect(view.bounds(), background);
    const auto raster = pass.rasters ? pass.rasters->constFind(&view) : QHash<const View *, Raster>::const_iterator();
    if (pass.rasters && raster != pass.rasters->cend())
        drawRaster(painter, *raster, pass.bandOrigin);
    else
        view.paintContent(painter);
    for (const View *child : view.subviews()) {
        if (!isDrawn(*child, pass.chrome))
            continue;
        painter.save();
        painter.setTransform(toSuperview(*child), true);
        painter.setOpacity(painter.opacity() * child->alpha());
        paintOwn(painter, *child, pass);
        painter.restore();
    }
}

void draw(QPainter &painter, const View &root, qreal scale, const Pass &pass)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(scale, scale);
    painter.translate(-root.bounds().topLeft());
    paintOwn(painter, root, pass);
    painter.restore();
}

struct Costly
{
    const View *view;
    QTransform device; // from the view's coordinates to the whole picture's pixels
    Raster raster;
};

void collectCostly(const View &view, const QTransform &device, Chrome chrome, QList<Costly> &found)
{
    if (view.hasCostlyContent())
        found.append(Costly { &view, device, {} });
    for (const View *child : view.subviews()) {
        if (isDrawn(*child, chrome))
            collectCostly(*child, toSuperview(*child) * device, chrome, found);
    }
}

// Draws the content with the very transform it has in the picture, turn included, so that it goes in
// place without being resampled.
Raster rasterize(const View &view, const QTransform &device, const QRectF &picture)
{
    const QRectF landing = device.mapRect(view.paintExtent()) & picture;
    Raster raster { {}, QPoint(int(std::floor(landing.left())), int(std::floor(landing.top()))) };
    const QSize size(
        int(std::ceil(landing.right())) - raster.origin.x(), int(std::ceil(landing.bottom())) - raster.origin.y());
    if (size.isEmpty())
        return raster;
    raster.image = QImage(size, QImage::Format_ARGB32_Premultiplied);
    raster.image.fill(Qt::transparent);
    QPainter painter(&raster.image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setTransform(device * QTransform::fromTranslate(-raster.origin.x(), -raster.origin.y()));
    view.paintContent(painter);
    return raster;
}

struct Band
{
    int top;
    int height;
};

} // namespace

void render(QPainter &painter, const View &root, qreal scale, Chrome chrome)
{
    draw(painter, root, scale, Pass { chrome, nullptr, {} });
}

QImage renderImage(const View &root, const QSize &target, const Progress &progress)
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

    QList<Costly> costly;
    const QTransform device
        = QTransform::fromTranslate(-root.bounds().left(), -root.bounds().top()) * QTransform::fromScale(scale, scale);
    collectCostly(root, device, Chrome::Hidden, costly);
    const int threads = std::max(1, QThreadPool::globalInstance()->maxThreadCount());
    const int bandCount = std::clamp(2 * threads, 1, std::max(1, drawn.height() / 64));
    QList<Band> bands;
    for (int i = 0; i < bandCount; ++i) {
        const int top = drawn.height() * i / bandCount;
        bands.append(Band { top, drawn.height() * (i + 1) / bandCount - top });
    }
    std::atomic<int> done = 0;
    const qreal steps = qreal(costly.size() + bands.size());
    auto advance = [&] {
        const int finished = ++done;
        if (progress)
            progress(finished / steps);
    };

    const QRectF picture(QPointF(0, 0), drawn);
    QtConcurrent::blockingMap(costly, [&advance, &picture](Costly &entry) {
        entry.raster = rasterize(*entry.view, entry.device, picture);
        advance();
    });
    QHash<const View *, Raster> rasters;
    for (Costly &entry : costly)
        rasters.insert(entry.view, std::move(entry.raster));

    uchar *bits = image.bits();
    const qsizetype stride = image.bytesPerLine();
    QtConcurrent::blockingMap(bands, [&](const Band &band) {
        // Each band draws into its own rows of the one picture.
        QImage rows(bits + band.top * stride, drawn.width(), band.height, stride, image.format());
        rows.fill(Qt::transparent);
        QPainter painter(&rows);
        painter.translate(0, -band.top);
        draw(painter, root, scale, Pass { Chrome::Hidden, &rasters, QPoint(0, band.top) });
        painter.end();
        advance();
    });
    if (drawn == target)
        return image;
    return image.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace CanvasRenderer
