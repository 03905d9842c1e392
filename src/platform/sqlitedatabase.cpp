#include "sqlitedatabase.h"

#include <sqlite3.h>

SqliteStatement::SqliteStatement(SqliteDatabase *db, sqlite3_stmt *stmt)
    : m_db(db)
    , m_stmt(stmt)
{ }

SqliteStatement::SqliteStatement(SqliteStatement &&other) noexcept
    : m_db(other.m_db)
    , m_stmt(other.m_stmt)
{
    other.m_stmt = nullptr;
}

SqliteStatement::~SqliteStatement()
{
    if (m_stmt)
        sqlite3_finalize(m_stmt);
}

SqliteStatement &SqliteStatement::bind(int index, const QString &value)
{
    const QByteArray utf8 = value.toUtf8();
    sqlite3_bind_text(m_stmt, index, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
    return *this;
}

SqliteStatement &SqliteStatement::bind(int index, const QByteArray &blob)
{
    sqlite3_bind_blob(m_stmt, index, blob.constData(), int(blob.size()), SQLITE_TRANSIENT);
    return *this;
}

SqliteStatement &SqliteStatement::bind(int index, qint64 value)
{
    sqlite3_bind_int64(m_stmt, index, value);
    return *this;
}

SqliteStatement &SqliteStatement::bindNull(int index)
{
    sqlite3_bind_null(m_stmt, index);
    return *this;
}

bool SqliteStatement::next()
{
    if (!m_stmt)
        return false;
    const int rc = sqlite3_step(m_stmt);
    if (rc == SQLITE_ROW)
        return true;
    if (rc != SQLITE_DONE)
        m_db->recordError();
    return false;
}

bool SqliteStatement::exec()
{
    if (!m_stmt)
        return false;
    const int rc = sqlite3_step(m_stmt);
    if (rc != SQLITE_DONE && rc != SQLITE_ROW) {
        m_db->recordError();
        return false;
    }
    return true;
}

void SqliteStatement::reset()
{
    sqlite3_reset(m_stmt);
    sqlite3_clear_bindings(m_stmt);
}

QString SqliteStatement::text(int column) const
{
    const auto *data = reinterpret_cast<const char *>(sqlite3_column_text(m_stmt, column));
    return data ? QString::fromUtf8(data, sqlite3_column_bytes(m_stmt, column)) : QString();
}

QByteArray SqliteStatement::blob(int column) const
{
    const auto *data = static_cast<const char *>(sqlite3_column_blob(m_stmt, column));
    return data ? QByteArray(data, sqlite3_column_bytes(m_stmt, column)) : QByteArray();
}

qint64 SqliteStatement::integer(int column) const
{
    return sqlite3_column_int64(m_stmt, column);
}

bool SqliteStatement::isNull(int column) const
{
    return sqlite3_column_type(m_stmt, column) == SQLITE_NULL;
}

SqliteDatabase::~SqliteDatabase()
{
    close();
}

bool SqliteDatabase::open(const QString &path)
{
    close();
    if (sqlite3_open_v2(path.toUtf8().constData(), &m_db,
            SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_FULLMUTEX, nullptr)
        != SQLITE_OK) {
        recordError();
        close();
        return false;
    }
    sqlite3_busy_timeout(m_db, 5000);
    return exec(QStringLiteral("PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL; PRAGMA foreign_keys=ON;"));
}

void SqliteDatabase::close()
{
    if (m_db) {
        sqlite3_close_v2(m_db);
        m_db = nullptr;
    }
}

bool SqliteDatabase::exec(const QString &sql)
{
    if (!m_db)
        return false;
    char *message = nullptr;
    if (sqlite3_exec(m_db, sql.toUtf8().constData(), nullptr, nullptr, &message) != SQLITE_OK) {
        m_lastError = QString::fromUtf8(message ? message : "unknown error");
        sqlite3_free(message);
        return false;
    }
    return true;
}

SqliteStatement SqliteDatabase::prepare(const QString &sql)
{
    sqlite3_stmt *stmt = nullptr;
    if (!m_db || sqlite3_prepare_v2(m_db, sql.toUtf8().constData(), -1, &stmt, nullptr) != SQLITE_OK)
        recordError();
    return { this, stmt };
}

qint64 SqliteDatabase::lastInsertRowId() const
{
    return m_db ? sqlite3_last_insert_rowid(m_db) : 0;
}

int SqliteDatabase::changes() const
{
    return m_db ? sqlite3_changes(m_db) : 0;
}

void SqliteDatabase::recordError()
{
    m_lastError = m_db ? QString::fromUtf8(sqlite3_errmsg(m_db)) : QStringLiteral("database is not open");
}
