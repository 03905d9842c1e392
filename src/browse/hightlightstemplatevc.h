#pragma once

#include "templatecatalogvc.h"

/** The catalogs of highlight covers; 40 cards a page. */
class HightlightsTemplateVC : public TemplateCatalogVC
{
    Q_OBJECT
public:
    explicit HightlightsTemplateVC(QObject *parent = nullptr)
        : TemplateCatalogVC(true, 40, parent)
    { }
};
