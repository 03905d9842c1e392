#pragma once

#include "editorsession.h"

/**
 * The editor of portrait video designs: the design's layers over its video. It takes no outlined
 * slots; the video view, its sound and the export join it with the video subsystem.
 */
class EditVideoPortraitMode : public EditorSession
{
    Q_OBJECT
public:
    explicit EditVideoPortraitMode(QObject *parent = nullptr);

    [[nodiscard]] bool hasOutlinedSlots() const override { return false; }
};
