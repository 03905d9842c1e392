#include "filmstrip.h"

#include "filmstripdecoder.h"

#include <QtConcurrent/QtConcurrentRun>

Filmstrip::Filmstrip(QObject *parent)
    : QObject(parent)
{
    connect(&m_watcher, &QFutureWatcherBase::resultReadyAt, this, [this](int index) {
        if (index < 0 || index >= m_images.size())
            return;
        m_images[index] = m_watcher.resultAt(index);
        Q_EMIT changed();
    });
}

Filmstrip::~Filmstrip()
{
    m_watcher.cancel();
}

void Filmstrip::load(const QString &path, int count, int height)
{
    m_watcher.cancel();
    m_images = QList<QImage>(count);
    Q_EMIT changed();
    m_watcher.setFuture(QtConcurrent::run(
        [](QPromise<QImage> &promise, const QString &movie, int slots, int pixels) {
            FilmstripDecoder::decode(movie, slots, pixels, [&promise](int index, const QImage &image) {
                promise.addResult(image, index);
                return !promise.isCanceled();
            });
        },
        path, count, height));
}
