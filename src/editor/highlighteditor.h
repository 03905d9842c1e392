#pragma once

#include "editimageportraitmode.h"

/** The editor of highlight covers: the image editor on a cover; its menus are its own. */
class HighLightEditor : public EditImagePortraitMode
{
    Q_OBJECT
public:
    explicit HighLightEditor(QObject *parent = nullptr)
        : EditImagePortraitMode("HighLightEditor", parent)
    { }
};
