#pragma once

#include <QImage>
#include <QList>
#include <QString>

/** One row of the filter menu: the word it shows ("name") and the look it stands for ("filter"). */
struct FilterItem
{
    QString name;
    QString filter;
};

/**
 * The photo filters of the background picture: each row's look, made from the picture at the look's
 * own default settings, as Core Image documents them.
 */
namespace PhotoFilters {
/** The rows of the filter menu in order; row 0, "Normal", names no filter. */
[[nodiscard]] const QList<FilterItem> &filterItemsArray();
/** Whether `filter` names a look (the empty name does not). */
[[nodiscard]] bool isFilter(const QString &filter);
/** The picture through the look; with the empty name, or one that names no look, the picture itself. */
[[nodiscard]] QImage applyFilter(const QImage &picture, const QString &filter);
} // namespace PhotoFilters
