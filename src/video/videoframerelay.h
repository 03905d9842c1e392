#pragma once

#include <QObject>
#include <QPointer>
#include <QVideoFrame>

class QVideoSink;

/**
 * The pictures of a player, passed on to whichever video item shows them. The player renders into the
 * relay's own sink, so it can be replaced, and can play headless, while the QML item stays; an item
 * attached later gets the last picture at once, so a paused movie is not blank.
 */
class VideoFrameRelay : public QObject
{
    Q_OBJECT
public:
    explicit VideoFrameRelay(QObject *parent = nullptr);

    /** The sink a player renders into. */
    [[nodiscard]] QVideoSink *sink() const { return m_sink; }
    /** A QML VideoOutput (or anything with a `videoSink` property), or null. */
    void setOutput(QObject *output);
    [[nodiscard]] QObject *output() const { return m_output; }
    /** Blanks the output, for a view without a video. */
    void clear();
    /** The last picture the player gave. */
    [[nodiscard]] const QVideoFrame &lastFrame() const { return m_lastFrame; }

private:
    void show(const QVideoFrame &frame);

    QVideoSink *const m_sink;
    QPointer<QObject> m_output;
    QPointer<QVideoSink> m_outputSink;
    QVideoFrame m_lastFrame;
};
