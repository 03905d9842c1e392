#include "stickercontentvc.h"

#include "contentcategorypager.h"
#include "pickertarget.h"

StickerContentVC::StickerContentVC(QObject *parent)
    : CatalogContentPage(parent)
{ }

void StickerContentVC::handBack(ContentCategoryPager &pager, const QImage &picture, const Json &)
{
    PickedSticker sticker;
    sticker.newStickerImage = picture;
    sticker.isStickerChange = pager.vcTag == 1;
    sticker.selected_sticker_id = pager.categoryId;
    sticker.selected_sticker_catalog_id = catalog_id;
    pager.handBack([&](PickerTarget &target) { target.setNewStickerImage(sticker); });
}
