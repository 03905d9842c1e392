#pragma once

#include "categorylist.h"

#include <QAbstractListModel>
#include <QColor>
#include <QList>
#include <QPair>

#include <memory>

/** The catalog strip above a grid: each catalog's name on its gradient. */
class CatalogStripModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum Role {
        NameRole = Qt::UserRole + 1,
        LeftColorRole, ///< the gradient's left colour
        RightColorRole, ///< the gradient's right colour
    };
    Q_ENUM(Role)

    using Catalogs = QList<std::shared_ptr<CategoryList>>;
    using Gradient = QPair<QColor, QColor>;

    explicit CatalogStripModel(QObject *parent = nullptr);

    /** The eleven gradients of the strip, left and right colour, in the order that `gradient_id` counts. */
    [[nodiscard]] static const QList<Gradient> &templateGradientArray();
    /** Gives each catalog the running index as its `gradient_id`, from 0, wrapping to 0 after the last gradient. */
    static void numberGradients(const Catalogs &catalogs);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
    [[nodiscard]] int count() const { return int(m_catalogs.size()); }

    void setCatalogs(const Catalogs &catalogs);

Q_SIGNALS:
    void countChanged();

private:
    Catalogs m_catalogs;
};
