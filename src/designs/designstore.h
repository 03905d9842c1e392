#pragma once

#include "logoimage.h"
#include "objectid.h"
#include "saveddesign.h"
#include "savephoto.h"
#include "sqlitedatabase.h"

#include <QList>
#include <QString>

#include <optional>

/**
 * The "QuilletStore": designs (entity SavePhoto) and imported arts (entity SaveLogo) in one SQLite
 * file. Every operation is synchronous and commits before it returns, so a saved design survives a
 * crash of the process, and a crash during a save leaves the previous version. The file is opened at
 * first use; a store that cannot be opened shows up as failed operations, never at start.
 *
 * Failures are not passed to callers: they are printed on the application's log ("Could not save. ",
 * ...), as are the successes ("saved.").
 */
class DesignStore
{
public:
    /** The store file below the application's base path. */
    [[nodiscard]] static QString defaultPath();

    explicit DesignStore(const QString &path = defaultPath());
    DesignStore(const DesignStore &) = delete;
    DesignStore &operator=(const DesignStore &) = delete;

    /**
     * Inserts a design, or overwrites the row of `objectID`; a row that has gone is inserted anew.
     * Returns the id of the row written, nothing when the save failed.
     */
    std::optional<ObjectId> saveDesign(
        const QString &jsonString, const std::optional<ObjectId> &objectID, bool isVideo);
    /** The newest design row, nothing when there is none. */
    [[nodiscard]] std::optional<ObjectId> lastDesignObjectID();
    /** All design rows, `updated_at` descending as text. */
    [[nodiscard]] QList<SavePhoto> allDesigns();
    /** All designs in `allDesigns()` order, each document read as a stored design. */
    [[nodiscard]] QList<SavedDesign> savedDesigns();
    /** True when a row was found; its files stay in Documents. */
    bool deleteDesign(const std::optional<ObjectId> &objectID);

    [[nodiscard]] QList<LogoImage> allLogos();
    /** Stores an art's file name once; nothing when the store failed. */
    std::optional<LogoImage> saveLogo(const QString &imgName);
    bool deleteLogo(const std::optional<ObjectId> &objectID);

private:
    bool ensureOpen();
    [[nodiscard]] ObjectId idOf(const QString &entity, qint64 rowid) const;
    /** The row id of `objectID` in `entity` when the row exists. */
    std::optional<qint64> existingRow(const QString &entity, const std::optional<ObjectId> &objectID);
    bool deleteRow(const QString &entity, const std::optional<ObjectId> &objectID);
    void trace(const QString &line);
    void traceFailure(const char *what);

    QString m_path;
    SqliteDatabase m_db;
};
