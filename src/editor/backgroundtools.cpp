#include "backgroundtools.h"

#include "backgroundimageview.h"
#include "canvasbackground.h"
#include "editorsession.h"

#include <QFutureWatcher>
#include <QtConcurrent/QtConcurrentRun>

BackgroundTools::BackgroundTools(EditorSession &session)
    : QObject(&session)
    , m_session(session)
{ }

BackgroundTools::~BackgroundTools() = default;

void BackgroundTools::setupCoreImage()
{
    m_source.setupCoreImage(m_session.backgroundImageView->image());
}

QImage BackgroundTools::compute(const QImage &source, Pass pass, qreal value)
{
    FilterSource from;
    from.setupCoreImage(source);
    switch (pass) {
    case Pass::Filter:
        return from.applyFilter(int(value));
    case Pass::Opacity:
        return from.opacity(value);
    case Pass::Brightness:
        return from.brightness(value);
    case Pass::Contrast:
        return from.contrast(value);
    case Pass::Saturation:
        return from.saturation(value);
    }
    return source;
}

void BackgroundTools::perform(Pass pass, qreal value, Mode mode)
{
    // Opacity fades the working picture as a whole; the others start again from the tool's source.
    const QImage source = pass == Pass::Opacity ? m_session.background().editedImage : m_source.aCIImage();
    if (source.isNull())
        return; // a colour, a gradient or a pattern leaves no picture to act on
    if (mode == Mode::Now) {
        take(pass, compute(source, pass, value));
        return;
    }
    if (m_watcher) {
        m_waiting = Request { source, pass, value };
        return;
    }
    start(Request { source, pass, value });
    Q_EMIT busyChanged();
}

void BackgroundTools::start(const Request &request)
{
    m_watcher = new QFutureWatcher<QImage>(this);
    connect(m_watcher, &QFutureWatcherBase::finished, this, [this, pass = request.pass] {
        const QImage result = m_watcher->result();
        m_watcher->deleteLater();
        m_watcher = nullptr;
        take(pass, result);
        if (m_waiting) {
            start(*std::exchange(m_waiting, std::nullopt));
            return;
        }
        if (std::exchange(m_storeWhenDone, false))
            adjustmentDidEnd();
        Q_EMIT busyChanged();
    });
    m_watcher->setFuture(QtConcurrent::run([request] { return compute(request.source, request.pass, request.value); }));
}

void BackgroundTools::take(Pass pass, const QImage &result)
{
    if (pass == Pass::Filter) {
        m_session.background().takeFiltered(result);
    } else {
        m_session.background().showAdjusted(result);
        m_adjusted = true;
    }
}

void BackgroundTools::adjustmentDidEnd()
{
    if (m_watcher) {
        m_storeWhenDone = true;
        return;
    }
    if (std::exchange(m_adjusted, false))
        m_session.background().storeBackgroundImage();
}

void BackgroundTools::flip(int row)
{
    m_session.background().flip(row);
}
