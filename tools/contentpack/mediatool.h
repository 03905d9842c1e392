#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/** Runs the FFmpeg command lines that make the pack's videos, sounds and fractal pictures, two at a time. */
class MediaTool
{
public:
    /** Queues one ffmpeg run (arguments after "ffmpeg -y -v error"). */
    void add(const QStringList &arguments);
    /** Runs everything queued; false with the first failure's command and message in `error`. */
    bool runAll(int parallel, QString &error);

private:
    QList<QStringList> m_jobs;
};
