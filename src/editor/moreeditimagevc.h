#pragma once

#include "editimageportraitmode.h"

/** The editor of landscape image designs: as the portrait one, without outlined slots. */
class MoreEditImageVC : public EditImagePortraitMode
{
    Q_OBJECT
public:
    explicit MoreEditImageVC(QObject *parent = nullptr)
        : EditImagePortraitMode("MoreEditImageVC", parent)
    { }

    [[nodiscard]] bool hasOutlinedSlots() const override { return false; }
};
