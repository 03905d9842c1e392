#include "quillettool.h"

#include <QCoreApplication>
#include <QProcess>

QString quilletToolPath()
{
    QString dir = qEnvironmentVariable("QUILLET_BIN_DIR");
    if (dir.isEmpty())
        dir = QCoreApplication::applicationDirPath();
    return dir + QStringLiteral("/quillet-tool");
}

ToolRun runQuilletTool(const QStringList &args, int timeoutMs)
{
    QProcess process;
    process.start(quilletToolPath(), args);
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished();
        return { -1, QString(), process.errorString() };
    }
    return { process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
        QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError()) };
}
