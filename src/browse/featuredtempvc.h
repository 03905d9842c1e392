#pragma once

#include "cataloggridvc.h"

/** The grid of one image or video story catalog, by `isVideo`; 20 cards a page. */
class FeaturedTempVC : public CatalogGridVC
{
    Q_OBJECT
public:
    explicit FeaturedTempVC(QObject *parent = nullptr)
        : CatalogGridVC(20, false, parent)
    { }
};
