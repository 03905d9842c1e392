#include "catalogstripmodel.h"

CatalogStripModel::CatalogStripModel(QObject *parent)
    : QAbstractListModel(parent)
{ }

const QList<CatalogStripModel::Gradient> &CatalogStripModel::templateGradientArray()
{
    static const QList<Gradient> gradients = [] {
        const char *const pairs[][2] = { { "2a4dfe", "009cff" }, { "d02e39", "ff5e5e" }, { "ff7122", "ffa454" },
            { "11b500", "26ed42" }, { "c02afe", "ff73cf" }, { "2d91df", "5ed0ff" }, { "05386e", "5f8aab" },
            { "bb2d5a", "ff887c" }, { "5e057b", "ff88b2" }, { "3870ff", "e88eff" }, { "6e2505", "f39500" } };
        QList<Gradient> list;
        for (const auto &pair : pairs)
            list.append({ QColor(QLatin1Char('#') + QLatin1String(pair[0])),
                QColor(QLatin1Char('#') + QLatin1String(pair[1])) });
        return list;
    }();
    return gradients;
}

void CatalogStripModel::numberGradients(const Catalogs &catalogs)
{
    const qint64 pairs = templateGradientArray().size();
    qint64 next = 0;
    for (const auto &catalog : catalogs) {
        if (!catalog)
            continue;
        catalog->gradient_id = next;
        next = next + 1 == pairs ? 0 : next + 1;
    }
}

int CatalogStripModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant CatalogStripModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const std::shared_ptr<CategoryList> &catalog = m_catalogs.at(index.row());
    if (!catalog)
        return {};
    const QList<Gradient> &gradients = templateGradientArray();
    const Gradient &gradient = gradients.at(int(qBound<qint64>(0, catalog->gradient_id, gradients.size() - 1)));
    switch (role) {
    case NameRole:
        return catalog->name;
    case LeftColorRole:
        return gradient.first;
    case RightColorRole:
        return gradient.second;
    default:
        return {};
    }
}

QHash<int, QByteArray> CatalogStripModel::roleNames() const
{
    return { { NameRole, "name" }, { LeftColorRole, "leftColor" }, { RightColorRole, "rightColor" } };
}

void CatalogStripModel::setCatalogs(const Catalogs &catalogs)
{
    beginResetModel();
    m_catalogs = catalogs;
    endResetModel();
    Q_EMIT countChanged();
}
