#include "bgvideocontentcategorypagervc.h"

BGVideoContentCategoryPagerVC::BGVideoContentCategoryPagerVC(QObject *parent)
    : ContentCategoryPager(QStringLiteral("AddNewBGVideoVC"), QStringLiteral("BGVideoContentVC"), parent)
{
    categoryId = 52;
    setTitle(QStringLiteral("BACKGROUND VIDEOS"));
}
