#include "layerlistmodel.h"

#include "resizableimageview.h"
#include "stickertint.h"

#include <QBuffer>

namespace {

// Rows are small; a picture of this side keeps the data URL short.
constexpr int thumbnailSide = 128;

} // namespace

LayerListModel::LayerListModel(QObject *parent)
    : QAbstractListModel(parent)
{ }

int LayerListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant LayerListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case ThumbnailRole:
        return row.thumbnail;
    case LayerIndexRole:
        return row.layer && row.layer->stickerJson ? QVariant(row.layer->stickerJson->index.value_or(0)) : QVariant();
    default:
        return {};
    }
}

QHash<int, QByteArray> LayerListModel::roleNames() const
{
    return { { ThumbnailRole, "thumbnail" }, { LayerIndexRole, "layerIndex" } };
}

void LayerListModel::setLayers(const QList<ResizableImageView *> &layers)
{
    beginResetModel();
    m_rows.clear();
    for (ResizableImageView *layer : layers)
        m_rows.append({ layer, thumbnailOf(*layer) });
    endResetModel();
    Q_EMIT countChanged();
}

ResizableImageView *LayerListModel::layerAt(int row) const
{
    return row >= 0 && row < m_rows.size() ? m_rows.at(row).layer.data() : nullptr;
}

void LayerListModel::moveRow(int from, int to)
{
    if (from == to || from < 0 || to < 0 || from >= m_rows.size() || to >= m_rows.size())
        return;
    // Qt names the destination as the row before which the moved row lands.
    beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
    m_rows.move(from, to);
    endMoveRows();
}

QString LayerListModel::thumbnailOf(const ResizableImageView &layer)
{
    const StickerImageView &picture = *layer.contentImageView;
    QImage shown = picture.tintedImage && picture.tintColor.isValid()
        ? StickerTint::multiply(*picture.tintedImage, picture.tintColor)
        : picture.image();
    if (shown.isNull())
        return {};
    if (shown.width() > thumbnailSide || shown.height() > thumbnailSide)
        shown = shown.scaled(thumbnailSide, thumbnailSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    shown.save(&buffer, "PNG");
    return QStringLiteral("data:image/png;base64,") + QString::fromLatin1(png.toBase64());
}
