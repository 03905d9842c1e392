#pragma once

#include "searchgridvc.h"

/** The results of a story search, image or video stories by `isVideo`; 20 cards a page. */
class SearchCardVC : public SearchGridVC
{
    Q_OBJECT
public:
    explicit SearchCardVC(QObject *parent = nullptr)
        : SearchGridVC(20, false, parent)
    { }

protected:
    [[nodiscard]] qint64 searchSubCategory() const override { return isVideo ? 48 : 47; }
};
