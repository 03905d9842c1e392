#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

struct sqlite3;
struct sqlite3_stmt;

class SqliteDatabase;

/** One prepared statement; finalised when it goes out of scope. Binding indexes start at 1. */
class SqliteStatement
{
public:
    SqliteStatement(SqliteStatement &&other) noexcept;
    SqliteStatement &operator=(SqliteStatement &&) = delete;
    SqliteStatement(const SqliteStatement &) = delete;
    SqliteStatement &operator=(const SqliteStatement &) = delete;
    ~SqliteStatement();

    [[nodiscard]] bool isValid() const { return m_stmt != nullptr; }
    SqliteStatement &bind(int index, const QString &value);
    SqliteStatement &bind(int index, const QByteArray &blob);
    SqliteStatement &bind(int index, qint64 value);
    SqliteStatement &bindNull(int index);
    /** Advances one row; true while a row is available. */
    bool next();
    /** Runs a statement that returns no rows; true on success. */
    bool exec();
    void reset();

    [[nodiscard]] QString text(int column) const;
    [[nodiscard]] QByteArray blob(int column) const;
    [[nodiscard]] qint64 integer(int column) const;
    [[nodiscard]] bool isNull(int column) const;

private:
    friend class SqliteDatabase;
    SqliteStatement(SqliteDatabase *db, sqlite3_stmt *stmt);
    SqliteDatabase *m_db;
    sqlite3_stmt *m_stmt;
};

/**
 * RAII wrapper of one SQLite database file, in WAL mode with full synchronous commits, so that a
 * transaction that returned is on disk and a crash in the middle of one leaves the previous state.
 */
class SqliteDatabase
{
public:
    SqliteDatabase() = default;
    SqliteDatabase(const SqliteDatabase &) = delete;
    SqliteDatabase &operator=(const SqliteDatabase &) = delete;
    ~SqliteDatabase();

    /** Opens or creates the file; false with lastError() set on failure. */
    bool open(const QString &path);
    void close();
    [[nodiscard]] bool isOpen() const { return m_db != nullptr; }
    /** Runs one or more statements without results. */
    bool exec(const QString &sql);
    [[nodiscard]] SqliteStatement prepare(const QString &sql);
    [[nodiscard]] qint64 lastInsertRowId() const;
    [[nodiscard]] int changes() const;
    [[nodiscard]] QString lastError() const { return m_lastError; }

private:
    friend class SqliteStatement;
    void recordError();
    sqlite3 *m_db = nullptr;
    QString m_lastError;
};
