#pragma once

#include "filtersource.h"

#include <QImage>
#include <QObject>

#include <optional>

class EditorSession;
template<class T> class QFutureWatcher;

/**
 * The background menu's tools on the picture: the flips, the filter rows and the adjustment sliders. Each
 * filter row and each slider value is made from the same source, taken when the tool opens, so filters
 * replace one another and adjustments do not add up. From the screen a pass runs on the thread pool and its
 * result is shown on the GUI thread, newest request only; `Mode::Now` runs the same pass at once.
 */
class BackgroundTools : public QObject
{
    Q_OBJECT
    /** A pass is running; the picture shown is the one before it. */
    Q_PROPERTY(bool busy READ busy NOTIFY busyChanged)
public:
    enum class Pass { Filter, Opacity, Brightness, Contrast, Saturation };
    Q_ENUM(Pass)
    enum class Mode { Background, Now };

    explicit BackgroundTools(EditorSession &session);
    ~BackgroundTools() override;

    [[nodiscard]] bool busy() const { return m_watcher != nullptr; }

    /** The filter or adjustment tool opens: the picture shown now is the source of every pass. */
    Q_INVOKABLE void setupCoreImage();
    /** A row of the filter menu; the result is the background's picture, as one step. */
    Q_INVOKABLE void selectFilter(int row) { perform(Pass::Filter, row, Mode::Background); }
    /** A slider's value: the picture shown follows, the history waits for the release. */
    Q_INVOKABLE void adjust(BackgroundTools::Pass pass, qreal value) { perform(pass, value, Mode::Background); }
    /** The slider is let go: the adjusted picture becomes one step, once its pass is done. */
    Q_INVOKABLE void adjustmentDidEnd();
    /** A row of the flip menu (0 mirror, 1 half turn). */
    Q_INVOKABLE void flip(int row);

    /** Runs a pass: a filter row (`value` is the row) or an adjustment with the slider's value. */
    void perform(Pass pass, qreal value, Mode mode);
    /** The work of one pass, on any thread: `source` through the filter row or the adjustment's formula. */
    [[nodiscard]] static QImage compute(const QImage &source, Pass pass, qreal value);

Q_SIGNALS:
    void busyChanged();

private:
    struct Request
    {
        QImage source;
        Pass pass;
        qreal value;
    };
    void start(const Request &request);
    void take(Pass pass, const QImage &result);

    EditorSession &m_session;
    FilterSource m_source;
    QFutureWatcher<QImage> *m_watcher = nullptr;
    std::optional<Request> m_waiting;
    bool m_adjusted = false; // an adjusted picture is shown and not yet a step
    bool m_storeWhenDone = false;
};
