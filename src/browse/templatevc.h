#pragma once

#include "templatecatalogvc.h"

/** The catalogs of image stories, or of video stories when `isVideo` is set; 20 cards a page. */
class TemplateVC : public TemplateCatalogVC
{
    Q_OBJECT
public:
    explicit TemplateVC(QObject *parent = nullptr)
        : TemplateCatalogVC(false, 20, parent)
    { }
};
