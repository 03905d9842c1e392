#pragma once

#include <QJsonObject>
#include <QString>

#include <initializer_list>
#include <optional>

/**
 * Cached answers in `UserDefaults`, one entry per key, holding the endpoint's record as JSON. An
 * entry never expires; only a later answer of the same key replaces it. The key is the whole endpoint
 * URL, so a change of server leaves the old entries unread.
 */
class ResponseCache
{
public:
    /** The endpoint URL followed by the parts in decimal, joined by "_". */
    [[nodiscard]] static QString key(const QString &endpointUrl, std::initializer_list<qint64> parts);

    static void store(const QString &key, const QJsonObject &entry);

    /** The entry of `key`, nothing when absent or not a dictionary; a found entry is logged behind `logText`. */
    [[nodiscard]] static std::optional<QJsonObject> load(const QString &key, const QString &logText);
};
