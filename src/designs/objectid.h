#pragma once

#include <QString>

#include <optional>

/**
 * A row's identity outside the store: store, entity and row id. Row ids are never reused, so an id
 * of a deleted row names nothing. The text form survives a restart:
 * "x-quillet://QuilletStore/SavePhoto/p12".
 */
struct ObjectId
{
    QString store;
    QString entity;
    qint64 rowid = 0;

    [[nodiscard]] QString toString() const;
    /** The id of a text made by toString(); nothing for any other text. */
    [[nodiscard]] static std::optional<ObjectId> fromString(const QString &text);

    friend bool operator==(const ObjectId &, const ObjectId &) = default;
};
