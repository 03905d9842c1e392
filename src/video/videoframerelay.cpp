#include "videoframerelay.h"

#include <QVariant>
#include <QVideoSink>

VideoFrameRelay::VideoFrameRelay(QObject *parent)
    : QObject(parent)
    , m_sink(new QVideoSink(this))
{
    connect(m_sink, &QVideoSink::videoFrameChanged, this, &VideoFrameRelay::show);
}

void VideoFrameRelay::setOutput(QObject *output)
{
    if (m_output == output)
        return;
    m_output = output;
    m_outputSink = output ? output->property("videoSink").value<QVideoSink *>() : nullptr;
    if (m_outputSink)
        m_outputSink->setVideoFrame(m_lastFrame);
}

void VideoFrameRelay::clear()
{
    show(QVideoFrame());
}

void VideoFrameRelay::show(const QVideoFrame &frame)
{
    m_lastFrame = frame;
    if (m_outputSink)
        m_outputSink->setVideoFrame(frame);
}
