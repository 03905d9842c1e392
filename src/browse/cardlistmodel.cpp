#include "cardlistmodel.h"

#include "imagecache.h"
#include "prefixurl.h"

namespace {

// A card whose design has no size is drawn in the grid's own shape.
constexpr double cardAspect = 845.0 / 475.0;

bool isAddress(const QString &name)
{
    return name.startsWith(QLatin1String("http://")) || name.startsWith(QLatin1String("https://"));
}

} // namespace

CardListModel::CardListModel(QObject *parent)
    : QAbstractListModel(parent)
{ }

int CardListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant CardListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const std::shared_ptr<Json> &card = m_cards.at(index.row());
    if (!card)
        return {};
    switch (role) {
    case JsonIdRole:
        return card->json_id.value_or(0);
    case ThumbnailRole:
        return thumbnailSource(*card);
    case AspectRole: {
        const double width = card->width.value_or(0);
        const double height = card->height.value_or(0);
        return width > 0 && height > 0 ? height / width : cardAspect;
    }
    case IsFreeRole:
        return card->is_free.value_or(true);
    default:
        return {};
    }
}

QHash<int, QByteArray> CardListModel::roleNames() const
{
    return { { JsonIdRole, "jsonId" }, { ThumbnailRole, "thumbnail" }, { AspectRole, "aspect" },
        { IsFreeRole, "isFree" } };
}

void CardListModel::setCards(const Cards &cards)
{
    beginResetModel();
    m_cards = cards;
    endResetModel();
    Q_EMIT countChanged();
}

void CardListModel::append(const Cards &cards)
{
    if (cards.isEmpty())
        return;
    beginInsertRows(QModelIndex(), count(), count() + int(cards.size()) - 1);
    m_cards.append(cards);
    endInsertRows();
    Q_EMIT countChanged();
}

QString CardListModel::thumbnailSource(const Json &card)
{
    const QString name = card.sample_image.value_or(QString());
    if (name.isEmpty())
        return {};
    if (card.is_offline.value_or(false))
        return QStringLiteral("image://assets/") + name;
    return QStringLiteral("image://cache/") + pictureAddress(card);
}

QString CardListModel::pictureAddress(const Json &card)
{
    const QString name = card.sample_image.value_or(QString());
    if (name.isEmpty() || card.is_offline.value_or(false))
        return {};
    return isAddress(name) ? name : PrefixUrl::value() + QStringLiteral("resource/") + name;
}

void CardListModel::preloadPictures(const Cards &cards, qsizetype count)
{
    for (const auto &card : cards.first(qMin(count, cards.size()))) {
        const QString address = card ? pictureAddress(*card) : QString();
        if (!address.isEmpty())
            ImageCache::shared().loadImage(QUrl(address), nullptr, [](const QImage &, const QString &) {});
    }
}
