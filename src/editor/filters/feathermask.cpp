#include "feathermask.h"
#include "rounding.h"

#include "alphablur.h"
#include "scanlines.h"

#include <QFutureWatcher>
#include <QPainter>
#include <QtConcurrent/QtConcurrentRun>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <vector>

namespace {

bool isOpaque(const QImage &picture)
{
    if (!picture.hasAlphaChannel())
        return true;
    const QImage argb
        = picture.format() == QImage::Format_ARGB32_Premultiplied || picture.format() == QImage::Format_ARGB32
        ? picture
        : picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    std::atomic<bool> opaque = true;
    const uchar *bits = argb.constBits();
    const qsizetype stride = argb.bytesPerLine();
    ScanLines::forEachBand(argb.height(), [&](int begin, int end) {
        const int n = argb.width();
        for (int y = begin; y < end && opaque.load(std::memory_order_relaxed); ++y) {
            const auto *line = reinterpret_cast<const QRgb *>(bits + y * stride);
            quint32 all = 0xFF000000U;
            for (int x = 0; x < n; ++x)
                all &= line[x];
            if (all != 0xFF000000U)
                opaque = false;
        }
    });
    return opaque;
}

/** How much of each of `count` pixels the span [from, to) covers. */
std::vector<float> coverage(int count, qreal from, qreal to)
{
    std::vector<float> covered(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i)
        covered[size_t(i)] = float(std::clamp(std::min(to, i + 1.0) - std::max(from, qreal(i)), 0.0, 1.0));
    return covered;
}

} // namespace

FeatherMask::FeatherMask(QObject *parent)
    : QObject(parent)
{ }

FeatherMask::~FeatherMask() = default;

QImage FeatherMask::compute(const QImage &picture, qreal radius, const QSize &size)
{
    if (picture.isNull() || size.isEmpty())
        return {};
    // The blurred picture is larger than the picture by three deviations on each side, all of it shown.
    const qreal margin = radius > 0 ? std::ceil(3.0 * radius) : 0.0;
    const qreal width = picture.width() + 2.0 * margin;
    const qreal height = picture.height() + 2.0 * margin;
    const qreal scale = std::max(size.width() / width, size.height() / height);
    const QSize plane(int(std::ceil(width * scale)), int(std::ceil(height * scale)));
    const QRectF placed(margin * scale, margin * scale, picture.width() * scale, picture.height() * scale);
    const QPoint cut((plane.width() - size.width()) / 2, (plane.height() - size.height()) / 2);
    const qreal sigma = radius * scale;

    if (isOpaque(picture)) {
        // The alpha is then a rectangle, and its blur the product of the blurs of its two sides.
        const std::vector<float> across
            = AlphaBlur::gaussian(coverage(plane.width(), placed.left(), placed.right()), sigma);
        const std::vector<float> down
            = AlphaBlur::gaussian(coverage(plane.height(), placed.top(), placed.bottom()), sigma);
        QImage mask(size, QImage::Format_Alpha8);
        uchar *bits = mask.bits();
        const qsizetype stride = mask.bytesPerLine();
        ScanLines::forEachBand(size.height(), [&](int begin, int end) {
            // Locals: the byte stores could otherwise alias anything captured.
            const float *__restrict columns = across.data() + cut.x();
            const int n = size.width();
            for (int y = begin; y < end; ++y) {
                const float level = down.data()[cut.y() + y] * 255.0F;
                uchar *__restrict line = bits + y * stride;
                for (int x = 0; x < n; ++x)
                    line[x] = uchar(roundNonNegative(columns[x] * level));
            }
        });
        return mask;
    }

    QImage alpha(plane, QImage::Format_Alpha8);
    alpha.fill(0);
    {
        QPainter painter(&alpha);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(placed, picture);
    }
    return AlphaBlur::gaussian(alpha, sigma).copy(QRect(cut, size));
}

void FeatherMask::request(const QImage &picture, qreal radius, const QSize &size)
{
    if (!qFuzzyCompare(radius + 1.0, m_radius + 1.0)) {
        m_radius = radius;
        Q_EMIT radiusChanged();
    }
    if (m_watcher) {
        m_waiting = Request { picture, radius, size };
        return;
    }
    start(Request { picture, radius, size });
    Q_EMIT busyChanged();
}

void FeatherMask::start(const Request &request)
{
    m_watcher = new QFutureWatcher<QImage>(this);
    connect(m_watcher, &QFutureWatcherBase::finished, this, [this, radius = request.radius] {
        m_mask = m_watcher->result();
        m_watcher->deleteLater();
        m_watcher = nullptr;
        Q_EMIT maskReady(m_mask, radius);
        if (m_waiting) {
            const Request next = *std::exchange(m_waiting, std::nullopt);
            start(next);
        } else {
            Q_EMIT busyChanged();
        }
    });
    m_watcher->setFuture(QtConcurrent::run([picture = request.picture, radius = request.radius, size = request.size] {
        return compute(picture, radius, size);
    }));
}
