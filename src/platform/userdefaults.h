#pragma once

#include "sqlitedatabase.h"

#include <QHash>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <memory>
#include <optional>

/**
 * The application's settings: a key-value table of JSON values in one SQLite file below the base
 * path. Every write is committed before it returns; an absent key reads as the caller's default.
 * `standard()` follows the current base path, so a test that points QUILLET_HOME elsewhere gets a
 * fresh store.
 */
class UserDefaults
{
public:
    explicit UserDefaults(const QString &databasePath);
    UserDefaults(const UserDefaults &) = delete;
    UserDefaults &operator=(const UserDefaults &) = delete;

    /** The store of the current base path. */
    static UserDefaults &standard();

    [[nodiscard]] bool contains(const QString &key) const;
    /** The stored value, or an undefined QJsonValue when the key is absent. */
    [[nodiscard]] QJsonValue value(const QString &key) const;
    void setValue(const QString &key, const QJsonValue &value);
    void remove(const QString &key);

    [[nodiscard]] std::optional<QString> string(const QString &key) const;
    [[nodiscard]] std::optional<qint64> integer(const QString &key) const;
    [[nodiscard]] std::optional<bool> boolean(const QString &key) const;
    [[nodiscard]] bool boolean(const QString &key, bool fallback) const { return boolean(key).value_or(fallback); }
    [[nodiscard]] std::optional<QJsonObject> dictionary(const QString &key) const;

    void setString(const QString &key, const QString &value) { setValue(key, value); }
    void setInteger(const QString &key, qint64 value) { setValue(key, QJsonValue(value)); }
    void setBoolean(const QString &key, bool value) { setValue(key, value); }
    void setDictionary(const QString &key, const QJsonObject &value) { setValue(key, value); }

private:
    mutable SqliteDatabase m_db;
    QHash<QString, QJsonValue> m_values; // the whole table, read once at open
};

/** The keys of the application's settings. */
namespace DefaultsKey {
inline const QString token = QStringLiteral("token");
inline const QString fontpickerToken = QStringLiteral("fontpickertoken");
inline const QString shapecropToken = QStringLiteral("shapecroptoken");
inline const QString stockVideoToken = QStringLiteral("QFSVPToken");
inline const QString appOpenCount = QStringLiteral("app_open_count");
inline const QString isCachingImages = QStringLiteral("isCachingImages");
inline const QString isCachingAdv = QStringLiteral("isCachingAdv");
inline const QString isShowGuide = QStringLiteral("is_showGuide");
inline const QString hasOpenHowToUse = QStringLiteral("has_open_howtouse");
inline const QString hasOpenCustomFontpicker = QStringLiteral("has_open_custom_Fontpicker");
inline const QString isFirstTimeLaunch = QStringLiteral("isFirstTimeLaunch");
inline const QString isRatted = QStringLiteral("is_ratted");
inline const QString imageId = QStringLiteral("imageid");
inline const QString qfFontJson = QStringLiteral("qfFontJson");
inline const QString hasDeletedAlphaEchoFont = QStringLiteral("v1_19_has_deleted_alpha_echo_font");
inline const QString deviceToken = QStringLiteral("devicetoken");
/** The content server to use instead of the embedded one. */
inline const QString serverUrl = QStringLiteral("server_url");
/** The loopback port of the embedded content server. */
inline const QString embeddedServerPort = QStringLiteral("embedded_server_port");
} // namespace DefaultsKey
