#pragma once

#include "contentcategorypager.h"

/** "BACKGROUNDS": the own-picture and colour page, then the background catalogs (sub-category 51). */
class BGContentCategoryPagerVC : public ContentCategoryPager
{
    Q_OBJECT
public:
    explicit BGContentCategoryPagerVC(QObject *parent = nullptr);
};
