#include "feathermask.h"

#include "alphablur.h"
#include "scanlines.h"

#include <QFutureWatcher>
#include <QPainter>
#include <QtConcurrent/QtConcurrentRun>

#include <atomic>
#include <cmath>

namespace {

bool isOpaque(const QImage &picture)
{
    if (!picture.hasAlphaChannel())
        return true;
    const QImage argb = picture.format() == QImage::Format_ARGB32_Premultiplied || picture.format() == QImage::Format_ARGB32
        ? picture
        : picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    std::atomic<bool> opaque = true;
    const uchar *bits = argb.constBits();
    const qsizetype stride = argb.bytesPerLine();
    ScanLines::forEachBand(argb.height(), [&](int begin, int end) {
        quint32 all = 0xFF000000U;
        for (int y = begin; y < end && opaque.load(std::memory_order_relaxed); ++y) {
            const auto *line = reinterpret_cast<const QRgb *>(bits + y * stride);
            for (int x = 0; x < argb.width(); ++x)
                all &= line[x];
            if (all != 0xFF000000U)
                opaque = false;
        }
    });
    return opaque;
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
    QImage alpha(int(std::ceil(width * scale)), int(std::ceil(height * scale)), QImage::Format_Alpha8);
    alpha.fill(0);
    {
        const QRectF placed(margin * scale, margin * scale, picture.width() * scale, picture.height() * scale);
        QPainter painter(&alpha);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        if (isOpaque(picture))
            painter.fillRect(placed, Qt::black);
        else
            painter.drawImage(placed, picture);
    }
    const QImage blurred = AlphaBlur::gaussian(alpha, radius * scale);
    return blurred.copy(
        (blurred.width() - size.width()) / 2, (blurred.height() - size.height()) / 2, size.width(), size.height());
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
    m_watcher->setFuture(QtConcurrent::run(
        [picture = request.picture, radius = request.radius, size = request.size] { return compute(picture, radius, size); }));
}
