#pragma once

#include "catalogcontentpage.h"

/** One sticker catalog: a tapped picture becomes a new sticker, or the selected sticker's new picture. */
class StickerContentVC : public CatalogContentPage
{
    Q_OBJECT
public:
    explicit StickerContentVC(QObject *parent = nullptr);

    /** Stickers are square. */
    [[nodiscard]] qreal cellAspect() const override { return 1.0; }

protected:
    void handBack(ContentCategoryPager &pager, const QImage &picture, const Json &item) override;
};
