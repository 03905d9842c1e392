#pragma once

#include <QAbstractListModel>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

class ResizableImageView;

/**
 * The rows of the layer panel: sticker layers, topmost first as filled. A row keeps its layer weakly,
 * since the layer can leave the canvas while the panel is open. Moving a row moves only the row; the
 * editor swaps the layers in the canvas.
 */
class LayerListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The editor's layer panel owns it")
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum Role : int { ThumbnailRole = Qt::UserRole + 1, LayerIndexRole };
    Q_ENUM(Role)

    explicit LayerListModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }

    /** Replaces all rows. */
    void setLayers(const QList<ResizableImageView *> &layers);
    /** The layer of a row; null when the row does not exist or its layer has gone. */
    [[nodiscard]] ResizableImageView *layerAt(int row) const;
    /** Moves one row to another place; the rows between shift by one. */
    void moveRow(int from, int to);

    /**
     * The sticker as its row shows it, as a data URL: the uncoloured picture tinted as the layer is,
     * or the shown picture when the sticker has no uncoloured one.
     */
    [[nodiscard]] static QString thumbnailOf(const ResizableImageView &layer);

Q_SIGNALS:
    void countChanged();

private:
    struct Row
    {
        QPointer<ResizableImageView> layer;
        QString thumbnail;
    };
    QList<Row> m_rows;
};
