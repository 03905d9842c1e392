#include "userdefaults.h"

#include "apppaths.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

// A bare JSON value is not a document, so each value is stored as the only element of an array.
QByteArray encode(const QJsonValue &value)
{
    return QJsonDocument(QJsonArray { value }).toJson(QJsonDocument::Compact);
}

QJsonValue decode(const QByteArray &text)
{
    const QJsonDocument doc = QJsonDocument::fromJson(text);
    return doc.isArray() && !doc.array().isEmpty() ? doc.array().first() : QJsonValue(QJsonValue::Undefined);
}

} // namespace

UserDefaults::UserDefaults(const QString &databasePath)
{
    if (!m_db.open(databasePath)
        || !m_db.exec(
            QStringLiteral("CREATE TABLE IF NOT EXISTS defaults (key TEXT PRIMARY KEY, value TEXT NOT NULL)"))) {
        qWarning().noquote() << "settings unavailable:" << m_db.lastError();
        return;
    }
    auto select = m_db.prepare(QStringLiteral("SELECT key, value FROM defaults"));
    while (select.next())
        m_values.insert(select.text(0), decode(select.blob(1)));
}

UserDefaults &UserDefaults::standard()
{
    static std::unique_ptr<UserDefaults> instance;
    static QString openedAt;
    const QString path = AppPaths::database(QStringLiteral("settings.sqlite"));
    if (!instance || openedAt != path) {
        AppPaths::ensureCreated();
        instance = std::make_unique<UserDefaults>(path);
        openedAt = path;
    }
    return *instance;
}

bool UserDefaults::contains(const QString &key) const
{
    return m_values.contains(key);
}

QJsonValue UserDefaults::value(const QString &key) const
{
    return m_values.value(key, QJsonValue(QJsonValue::Undefined));
}

void UserDefaults::setValue(const QString &key, const QJsonValue &value)
{
    if (value.isUndefined()) {
        remove(key);
        return;
    }
    m_values.insert(key, value);
    m_db.prepare(QStringLiteral("INSERT OR REPLACE INTO defaults (key, value) VALUES (?, ?)"))
        .bind(1, key)
        .bind(2, encode(value))
        .exec();
}

void UserDefaults::remove(const QString &key)
{
    m_values.remove(key);
    m_db.prepare(QStringLiteral("DELETE FROM defaults WHERE key = ?")).bind(1, key).exec();
}

std::optional<QString> UserDefaults::string(const QString &key) const
{
    const QJsonValue v = value(key);
    return v.isString() ? std::optional(v.toString()) : std::nullopt;
}

std::optional<qint64> UserDefaults::integer(const QString &key) const
{
    const QJsonValue v = value(key);
    return v.isDouble() ? std::optional(qint64(v.toDouble())) : std::nullopt;
}

std::optional<bool> UserDefaults::boolean(const QString &key) const
{
    const QJsonValue v = value(key);
    return v.isBool() ? std::optional(v.toBool()) : std::nullopt;
}

std::optional<QJsonObject> UserDefaults::dictionary(const QString &key) const
{
    const QJsonValue v = value(key);
    return v.isObject() ? std::optional(v.toObject()) : std::nullopt;
}
