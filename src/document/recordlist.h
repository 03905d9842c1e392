#pragma once

#include <QList>

#include <memory>
#include <optional>

/** An optional array of shared records, the type of every layer array of a document. */
template<class T> using RecordList = std::optional<QList<std::shared_ptr<T>>>;

/** A copy of the array with every record copied through its own `copy()`, in the same order. */
template<class T> [[nodiscard]] RecordList<T> copyRecords(const RecordList<T> &records)
{
    if (!records)
        return std::nullopt;
    QList<std::shared_ptr<T>> copies;
    copies.reserve(records->size());
    for (const auto &record : *records)
        copies.append(record ? record->copy() : nullptr);
    return copies;
}
