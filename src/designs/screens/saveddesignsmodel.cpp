#include "saveddesignsmodel.h"

#include "designfiles.h"

SavedDesignsModel::SavedDesignsModel(bool createOwnCell, QObject *parent)
    : QAbstractListModel(parent)
    , m_createOwnCell(createOwnCell)
{ }

void SavedDesignsModel::reset(const QList<std::shared_ptr<Json>> &designs)
{
    beginResetModel();
    m_cells.clear();
    m_cells.reserve(designs.size());
    for (const auto &design : designs) {
        const bool hasColor
            = design->background_json && !design->background_json->background_color.value_or(QString()).isEmpty();
        m_cells.append(
            { DesignFiles::previewSource(*design), design->is_Video, DesignFiles::isGif(*design), hasColor });
    }
    endResetModel();
    Q_EMIT countChanged();
}

int SavedDesignsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_cells.size()) + (m_createOwnCell ? 1 : 0);
}

QVariant SavedDesignsModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const int row = index.row() - (m_createOwnCell ? 1 : 0);
    if (role == IsCreateOwnRole)
        return row < 0;
    // The create-own cell is an empty design cell.
    const Cell cell = row < 0 ? Cell() : m_cells.at(row);
    switch (role) {
    case PictureRole:
        return cell.picture;
    case IsVideoRole:
        return cell.isVideo;
    case IsVideoGifRole:
        return cell.isVideoGif;
    case ClearBackgroundRole:
        return cell.clearBackground;
    default:
        return {};
    }
}

QHash<int, QByteArray> SavedDesignsModel::roleNames() const
{
    return { { IsCreateOwnRole, "isCreateOwn" }, { PictureRole, "picture" }, { IsVideoRole, "isVideo" },
        { IsVideoGifRole, "isVideoGif" }, { ClearBackgroundRole, "clearBackground" } };
}
