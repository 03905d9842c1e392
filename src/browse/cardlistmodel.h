#pragma once

#include "json.h"

#include <QAbstractListModel>
#include <QList>

#include <memory>

/** The cards of a grid, in the order they arrived; each row is a `Json` with only its card fields filled. */
class CardListModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum Role {
        JsonIdRole = Qt::UserRole + 1, ///< `json_id`, 0 when absent
        ThumbnailRole, ///< the card's picture as an image source, empty when it names none
        AspectRole, ///< height over width of the design; the card shape when unknown
        IsFreeRole, ///< `is_free`
    };
    Q_ENUM(Role)

    using Cards = QList<std::shared_ptr<Json>>;

    explicit CardListModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
    [[nodiscard]] int count() const { return int(m_cards.size()); }

    [[nodiscard]] const Cards &cards() const { return m_cards; }
    [[nodiscard]] std::shared_ptr<Json> card(int row) const { return m_cards.value(row); }
    void setCards(const Cards &cards);
    void append(const Cards &cards);

    /**
     * Where a card's picture comes from: the application's own assets for an offline card, else the
     * picture cache by address (a bare name lies below the assets' "resource/").
     */
    [[nodiscard]] static QString thumbnailSource(const Json &card);
    /** The address of a card's picture in the picture cache; empty for an offline card or none. */
    [[nodiscard]] static QString pictureAddress(const Json &card);
    /**
     * Starts loading the pictures of an answer's first cards into the picture cache's memory, so that a
     * grid opened later shows them without waiting for the disk or the decoder.
     */
    static void preloadPictures(const Cards &cards, qsizetype count);

Q_SIGNALS:
    void countChanged();

private:
    Cards m_cards;
};
