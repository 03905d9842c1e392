#pragma once

#include "logoimage.h"

#include <QAbstractListModel>
#include <QList>

/** The cells of "MY ARTS": the add cell first, then one cell per imported art. */
class ArtListModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)
public:
    enum Role {
        /** The cell that adds arts. */
        IsAddRole = Qt::UserRole + 1,
        /** The art's file through the picture cache ("image://cache/file:…"). */
        PictureRole,
    };
    Q_ENUM(Role)

    explicit ArtListModel(QObject *parent = nullptr);

    void reset(const QList<LogoImage> &arts);
    void append(const LogoImage &art);
    /** Removes art `index` (its cell is `index` + 1). */
    void remove(int index);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /** The file of an art in Documents; empty without a name. */
    [[nodiscard]] static QString fileOf(const LogoImage &art);

Q_SIGNALS:
    void countChanged();

private:
    QList<QString> m_pictures;
};
