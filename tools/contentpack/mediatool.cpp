#include "mediatool.h"

#include <QProcess>

#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

void MediaTool::add(const QStringList &arguments)
{
    m_jobs.append(arguments);
}

bool MediaTool::runAll(int parallel, QString &error)
{
    std::atomic<qsizetype> next = 0;
    std::mutex errorMutex;
    auto worker = [&] {
        for (qsizetype i = next++; i < m_jobs.size(); i = next++) {
            QProcess ffmpeg;
            ffmpeg.setProcessChannelMode(QProcess::MergedChannels);
            ffmpeg.start(QStringLiteral("ffmpeg"),
                QStringList { QStringLiteral("-y"), QStringLiteral("-v"), QStringLiteral("error") } + m_jobs[i]);
            const bool finished = ffmpeg.waitForFinished(300000);
            if (!finished || ffmpeg.exitStatus() != QProcess::NormalExit || ffmpeg.exitCode() != 0) {
                std::lock_guard lock(errorMutex);
                if (error.isEmpty())
                    error = QStringLiteral("ffmpeg %1 failed: %2")
                                .arg(m_jobs[i].join(QLatin1Char(' ')),
                                    QString::fromLocal8Bit(ffmpeg.readAll()).trimmed());
            }
        }
    };
    std::vector<std::thread> threads;
    for (int t = 0; t < std::max(1, parallel); ++t)
        threads.emplace_back(worker);
    for (auto &thread : threads)
        thread.join();
    m_jobs.clear();
    return error.isEmpty();
}
