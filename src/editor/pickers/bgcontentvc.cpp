#include "bgcontentvc.h"

#include "contentcategorypager.h"
#include "pickertarget.h"

BGContentVC::BGContentVC(QObject *parent)
    : CatalogContentPage(parent)
{ }

void BGContentVC::handBack(ContentCategoryPager &pager, const QImage &picture, const Json &item)
{
    const QString bg_image_url = pictureAddress(item);
    pager.handBack([&](PickerTarget &target) { target.setNewBgImage(picture, bg_image_url); });
}
