#pragma once

#include "json.h"

#include <QAbstractListModel>
#include <QList>

#include <memory>

/**
 * The cells of a list of saved designs: optionally the create-own cell first, then one cell per design.
 * What a cell shows is worked out here, once per reload, never in the view.
 */
class SavedDesignsModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)
public:
    enum Role {
        /** The cell that opens the blank start rather than a design. */
        IsCreateOwnRole = Qt::UserRole + 1,
        /** The preview through the picture cache ("image://cache/…"); empty when the design names none. */
        PictureRole,
        IsVideoRole,
        /** A video design whose result is a GIF. */
        IsVideoGifRole,
        /** The picture lies on a plain background colour, so the cell shows no backdrop of its own. */
        ClearBackgroundRole,
    };
    Q_ENUM(Role)

    explicit SavedDesignsModel(bool createOwnCell, QObject *parent = nullptr);

    /** Replaces every cell. */
    void reset(const QList<std::shared_ptr<Json>> &designs);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    struct Cell
    {
        QString picture;
        bool isVideo = false;
        bool isVideoGif = false;
        bool clearBackground = false;
    };

    const bool m_createOwnCell;
    QList<Cell> m_cells;
};
