#include "responsecache.h"

#include "applog.h"
#include "userdefaults.h"

#include <QJsonDocument>
#include <QStringList>

QString ResponseCache::key(const QString &endpointUrl, std::initializer_list<qint64> parts)
{
    QStringList numbers;
    for (const qint64 part : parts)
        numbers.append(QString::number(part));
    return endpointUrl + numbers.join(QLatin1Char('_'));
}

void ResponseCache::store(const QString &key, const QJsonObject &entry)
{
    UserDefaults::standard().setDictionary(key, entry);
}

std::optional<QJsonObject> ResponseCache::load(const QString &key, const QString &logText)
{
    std::optional<QJsonObject> entry = UserDefaults::standard().dictionary(key);
    if (entry && !logText.isEmpty())
        AppLog::print(logText + QString::fromUtf8(QJsonDocument(*entry).toJson(QJsonDocument::Compact)));
    return entry;
}
