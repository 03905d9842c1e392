#include "bgcontentcategorypagervc.h"

BGContentCategoryPagerVC::BGContentCategoryPagerVC(QObject *parent)
    : ContentCategoryPager(QStringLiteral("AddNewBackgroundVC"), QStringLiteral("BGContentVC"), parent)
{
    categoryId = 51;
    setTitle(QStringLiteral("BACKGROUNDS"));
}
