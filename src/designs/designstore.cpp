#include "designstore.h"

#include "applog.h"
#include "apppaths.h"
#include "designstorechanges.h"
#include "storeddesign.h"
#include "timestamp.h"

namespace {

const QString storeName = QStringLiteral("QuilletStore");
const QString photoEntity = QStringLiteral("SavePhoto");
const QString logoEntity = QStringLiteral("SaveLogo");

// AUTOINCREMENT keeps row ids from being reused, so an old object id never names a newer row.
const char *const schema = R"(
CREATE TABLE IF NOT EXISTS SavePhoto (
    rowid INTEGER PRIMARY KEY AUTOINCREMENT, jsonString TEXT, updated_at TEXT, is_video INTEGER);
CREATE TABLE IF NOT EXISTS SaveLogo (rowid INTEGER PRIMARY KEY AUTOINCREMENT, img_name TEXT);
)";

} // namespace

QString DesignStore::defaultPath()
{
    return AppPaths::database(storeName + QStringLiteral(".sqlite"));
}

DesignStore::DesignStore(const QString &path)
    : m_path(path)
{ }

bool DesignStore::ensureOpen()
{
    if (m_db.isOpen())
        return true;
    if (m_db.open(m_path) && m_db.exec(QString::fromLatin1(schema)))
        return true;
    m_db.close();
    return false;
}

ObjectId DesignStore::idOf(const QString &entity, qint64 rowid) const
{
    return { storeName, entity, rowid };
}

std::optional<qint64> DesignStore::existingRow(const QString &entity, const std::optional<ObjectId> &objectID)
{
    if (!objectID || objectID->store != storeName || objectID->entity != entity)
        return std::nullopt;
    SqliteStatement query = m_db.prepare(QStringLiteral("SELECT rowid FROM %1 WHERE rowid = ?").arg(entity));
    query.bind(1, objectID->rowid);
    if (!query.next())
        return std::nullopt;
    return query.integer(0);
}

std::optional<ObjectId> DesignStore::saveDesign(
    const QString &jsonString, const std::optional<ObjectId> &objectID, bool isVideo)
{
    if (!ensureOpen() || !m_db.exec(QStringLiteral("BEGIN IMMEDIATE"))) {
        traceFailure("Could not save. ");
        return std::nullopt;
    }
    const std::optional<qint64> existing = existingRow(photoEntity, objectID);
    SqliteStatement write = m_db.prepare(existing
            ? QStringLiteral("UPDATE SavePhoto SET jsonString = ?1, updated_at = ?2, is_video = ?3 WHERE rowid = ?4")
            : QStringLiteral("INSERT INTO SavePhoto (jsonString, updated_at, is_video) VALUES (?1, ?2, ?3)"));
    write.bind(1, jsonString).bind(2, secondsSince1970Text()).bind(3, qint64(isVideo));
    if (existing)
        write.bind(4, *existing);
    if (!write.exec() || !m_db.exec(QStringLiteral("COMMIT"))) {
        traceFailure("Could not save. ");
        m_db.exec(QStringLiteral("ROLLBACK"));
        return std::nullopt;
    }
    trace(QStringLiteral("saved."));
    const ObjectId written = idOf(photoEntity, existing ? *existing : m_db.lastInsertRowId());
    Q_EMIT DesignStoreChanges::shared().designsChanged();
    return written;
}

std::optional<ObjectId> DesignStore::lastDesignObjectID()
{
    if (!ensureOpen())
        return std::nullopt;
    SqliteStatement query = m_db.prepare(QStringLiteral("SELECT max(rowid) FROM SavePhoto"));
    if (!query.next() || query.isNull(0))
        return std::nullopt;
    return idOf(photoEntity, query.integer(0));
}

QList<SavePhoto> DesignStore::allDesigns()
{
    QList<SavePhoto> rows;
    if (!ensureOpen()) {
        traceFailure("Could not fetch. ");
        return rows;
    }
    // Text order: it agrees with time order while the seconds keep their count of digits.
    SqliteStatement query = m_db.prepare(QStringLiteral(
        "SELECT rowid, jsonString, updated_at, is_video FROM SavePhoto ORDER BY updated_at DESC, rowid DESC"));
    while (query.next()) {
        SavePhoto row { idOf(photoEntity, query.integer(0)), query.text(1), query.text(2), query.integer(3) != 0 };
        trace(QStringLiteral("content object id:- ") + row.jsonString);
        rows.append(std::move(row));
    }
    return rows;
}

QList<SavedDesign> DesignStore::savedDesigns()
{
    QList<SavedDesign> designs;
    for (SavePhoto &row : allDesigns()) {
        if (auto document = readStoredDesign(row.jsonString))
            designs.append({ std::move(row), std::move(document) });
    }
    return designs;
}

bool DesignStore::deleteRow(const QString &entity, const std::optional<ObjectId> &objectID)
{
    if (!objectID || !ensureOpen())
        return false;
    const std::optional<qint64> existing = existingRow(entity, objectID);
    if (!existing)
        return false;
    SqliteStatement remove = m_db.prepare(QStringLiteral("DELETE FROM %1 WHERE rowid = ?").arg(entity));
    remove.bind(1, *existing);
    // The row was found, so the answer is true even when the delete could not be saved.
    if (!remove.exec())
        traceFailure("Could not delete. ");
    return true;
}

bool DesignStore::deleteDesign(const std::optional<ObjectId> &objectID)
{
    if (!deleteRow(photoEntity, objectID))
        return false;
    Q_EMIT DesignStoreChanges::shared().designsChanged();
    return true;
}

QList<LogoImage> DesignStore::allLogos()
{
    QList<LogoImage> logos;
    if (!ensureOpen()) {
        traceFailure("Could not fetch. ");
        return logos;
    }
    SqliteStatement query = m_db.prepare(QStringLiteral("SELECT rowid, img_name FROM SaveLogo ORDER BY rowid"));
    while (query.next()) {
        logos.append(
            { query.isNull(1) ? std::nullopt : std::optional(query.text(1)), idOf(logoEntity, query.integer(0)) });
    }
    return logos;
}

std::optional<LogoImage> DesignStore::saveLogo(const QString &imgName)
{
    if (!ensureOpen()) {
        traceFailure("Could not fetch. ");
        return std::nullopt;
    }
    SqliteStatement find
        = m_db.prepare(QStringLiteral("SELECT rowid FROM SaveLogo WHERE img_name = ? ORDER BY rowid LIMIT 1"));
    if (!find.isValid()) {
        traceFailure("Could not fetch. ");
        return std::nullopt;
    }
    find.bind(1, imgName);
    // A name stored before keeps its row; setting the same name again changes nothing.
    if (find.next()) {
        trace(QStringLiteral("saved."));
        return LogoImage { imgName, idOf(logoEntity, find.integer(0)) };
    }
    SqliteStatement insert = m_db.prepare(QStringLiteral("INSERT INTO SaveLogo (img_name) VALUES (?)"));
    insert.bind(1, imgName);
    if (!insert.exec()) {
        traceFailure("Could not save. ");
        return std::nullopt;
    }
    trace(QStringLiteral("saved."));
    return LogoImage { imgName, idOf(logoEntity, m_db.lastInsertRowId()) };
}

bool DesignStore::deleteLogo(const std::optional<ObjectId> &objectID)
{
    return deleteRow(logoEntity, objectID);
}

void DesignStore::trace(const QString &line)
{
    AppLog::print(line);
}

void DesignStore::traceFailure(const char *what)
{
    const QString error = m_db.lastError().isEmpty() ? QStringLiteral("unknown error") : m_db.lastError();
    trace(QString::fromLatin1(what) + error + QStringLiteral(", [\"store\": \"%1\"]").arg(m_path));
}
