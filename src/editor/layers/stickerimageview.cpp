#include "stickerimageview.h"

StickerImageView::StickerImageView(const QRectF &frame, QObject *parent)
    : ImageView(frame, parent)
{ }
