#include "nonfatalreporter.h"

#include "applog.h"
#include "apppaths.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace NonFatalReporter {

void record(const QString &domain, const QString &description, int code)
{
    AppLog::print(QStringLiteral("Non-fatal error ") + domain + QStringLiteral(": ") + description);
    const QJsonObject line { { QStringLiteral("domain"), domain }, { QStringLiteral("code"), code },
        { QStringLiteral("description"), description },
        { QStringLiteral("time"), QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs) } };
    QDir().mkpath(AppPaths::basePath());
    QFile file(path());
    // One write of one whole line, so that a crash leaves no half line behind another.
    if (file.open(QIODevice::WriteOnly | QIODevice::Append))
        file.write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
}

QString path()
{
    return AppPaths::database(QStringLiteral("nonfatal.jsonl"));
}

} // namespace NonFatalReporter
