#pragma once

#include "cataloggridvc.h"

/** The grid of one highlight cover catalog; 40 cards a page, opened in the highlight editor. */
class HightlightTempVC : public CatalogGridVC
{
    Q_OBJECT
public:
    explicit HightlightTempVC(QObject *parent = nullptr)
        : CatalogGridVC(40, true, parent)
    {
        subCatId = 56;
    }
};
