#pragma once

#include "editvideoportraitmode.h"

/** The editor of landscape video designs: as the portrait one. */
class MoreEditVideoVC : public EditVideoPortraitMode
{
    Q_OBJECT
public:
    explicit MoreEditVideoVC(QObject *parent = nullptr)
        : EditVideoPortraitMode("MoreEditVideoVC", parent)
    { }
};
