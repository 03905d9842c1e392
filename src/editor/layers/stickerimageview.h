#pragma once

#include "imageview.h"

#include <QPointer>

#include <optional>

/** The picture of a sticker layer. Every tint starts again from `tintedImage`, the uncoloured source. */
class StickerImageView : public ImageView
{
    Q_OBJECT
public:
    explicit StickerImageView(const QRectF &frame = {}, QObject *parent = nullptr);

    /** The uncoloured picture, set when the sticker can be tinted. */
    std::optional<QImage> tintedImage;
    /** The last tint applied. */
    QColor tintColor;
    /** The layer that holds this picture. */
    QPointer<View> superView;
};
