#include "artlistmodel.h"

#include "apppaths.h"

#include <QUrl>

namespace {

QString pictureOf(const LogoImage &art)
{
    const QString file = ArtListModel::fileOf(art);
    return file.isEmpty() ? QString() : QStringLiteral("image://cache/") + QUrl::fromLocalFile(file).toString();
}

} // namespace

ArtListModel::ArtListModel(QObject *parent)
    : QAbstractListModel(parent)
{ }

QString ArtListModel::fileOf(const LogoImage &art)
{
    const QString name = art.img_name.value_or(QString());
    return name.isEmpty() ? QString() : AppPaths::documents() + QLatin1Char('/') + name;
}

void ArtListModel::reset(const QList<LogoImage> &arts)
{
    beginResetModel();
    m_pictures.clear();
    for (const LogoImage &art : arts)
        m_pictures.append(pictureOf(art));
    endResetModel();
    Q_EMIT countChanged();
}

void ArtListModel::append(const LogoImage &art)
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_pictures.append(pictureOf(art));
    endInsertRows();
    Q_EMIT countChanged();
}

void ArtListModel::remove(int index)
{
    if (index < 0 || index >= m_pictures.size())
        return;
    beginRemoveRows({}, index + 1, index + 1);
    m_pictures.removeAt(index);
    endRemoveRows();
    Q_EMIT countChanged();
}

int ArtListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_pictures.size()) + 1;
}

QVariant ArtListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    if (role == IsAddRole)
        return index.row() == 0;
    if (role == PictureRole)
        return index.row() == 0 ? QString() : m_pictures.at(index.row() - 1);
    return {};
}

QHash<int, QByteArray> ArtListModel::roleNames() const
{
    return { { IsAddRole, "isAdd" }, { PictureRole, "picture" } };
}
