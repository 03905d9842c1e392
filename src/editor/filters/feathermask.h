#pragma once

#include <QImage>
#include <QObject>
#include <QSize>

#include <optional>

template<class T> class QFutureWatcher;

/**
 * The feather of the background picture: a mask made of the picture's own alpha, blurred with the slider's
 * radius over a transparent surround and laid over the view's size (aspect fill), so that only the edges
 * fade. The blur runs on the thread pool while the slider's value shows at once; masks come back on the
 * GUI thread in the order asked. A request made while one runs waits, and a newer one replaces it.
 */
class FeatherMask : public QObject
{
    Q_OBJECT
    /** The radius last asked for, shown beside the slider before its mask is ready. */
    Q_PROPERTY(qreal radius READ radius NOTIFY radiusChanged)
    /** A mask is being made. */
    Q_PROPERTY(bool busy READ busy NOTIFY busyChanged)
public:
    explicit FeatherMask(QObject *parent = nullptr);
    ~FeatherMask() override;

    [[nodiscard]] qreal radius() const { return m_radius; }
    [[nodiscard]] bool busy() const { return m_watcher != nullptr; }
    /** The last mask made, an Alpha8 picture of the size asked for; null before the first. */
    [[nodiscard]] QImage mask() const { return m_mask; }

    /** A slider move: the mask of `picture` with `radius` for a view of `size`. */
    void request(const QImage &picture, qreal radius, const QSize &size);

    /** The work of one request; runs on any thread. */
    [[nodiscard]] static QImage compute(const QImage &picture, qreal radius, const QSize &size);

Q_SIGNALS:
    void radiusChanged();
    void busyChanged();
    /** A mask is ready for the radius it was asked with. */
    void maskReady(const QImage &mask, qreal radius);

private:
    struct Request
    {
        QImage picture;
        qreal radius;
        QSize size;
    };
    void start(const Request &request);

    qreal m_radius = 0;
    QImage m_mask;
    QFutureWatcher<QImage> *m_watcher = nullptr;
    std::optional<Request> m_waiting;
};
