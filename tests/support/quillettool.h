#pragma once

#include <QString>
#include <QStringList>

/** The outcome of one run of the quillet-tool executable. */
struct ToolRun
{
    int exitCode = -1; // -1 when it could not be started or did not finish
    QString out;
    QString err;
};

/** The quillet-tool binary of this build: QUILLET_BIN_DIR, else beside the test executable. */
[[nodiscard]] QString quilletToolPath();

/** Runs quillet-tool with the given arguments in the current environment (QUILLET_HOME included). */
[[nodiscard]] ToolRun runQuilletTool(const QStringList &args, int timeoutMs = 60000);
