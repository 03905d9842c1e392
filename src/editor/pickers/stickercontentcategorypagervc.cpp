#include "stickercontentcategorypagervc.h"

StickerContentCategoryPagerVC::StickerContentCategoryPagerVC(QObject *parent)
    : ContentCategoryPager(QStringLiteral("AddStickerVC"), QStringLiteral("StickerContentVC"), parent)
{
    categoryId = 47;
    categoryName = QStringLiteral("Graphics");
}

void StickerContentCategoryPagerVC::viewDidLoad()
{
    setTitle(categoryName);
    ContentCategoryPager::viewDidLoad();
}

void StickerContentCategoryPagerVC::catalogsShown()
{
    if (!selected_sticker_catalog_id)
        return;
    for (qsizetype i = 0; i < catalogArray.size(); ++i) {
        if (catalogArray.at(i)->catalog_id == selected_sticker_catalog_id) {
            setCurrentIndex(int(i) + 1);
            return;
        }
    }
}
