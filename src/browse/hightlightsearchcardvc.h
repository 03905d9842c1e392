#pragma once

#include "searchgridvc.h"

/** The results of a highlight cover search; 40 cards a page, opened in the highlight editor. */
class HightlightSearchCardVc : public SearchGridVC
{
    Q_OBJECT
public:
    explicit HightlightSearchCardVc(QObject *parent = nullptr)
        : SearchGridVC(40, true, parent)
    {
        subCatId = 56;
    }

protected:
    [[nodiscard]] qint64 searchSubCategory() const override { return 56; }
};
