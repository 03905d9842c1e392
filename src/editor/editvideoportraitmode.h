#pragma once

#include "editorsession.h"

class Storyboard;

/**
 * The editor of portrait video designs: the design's layers over its looping movie, with the sound button,
 * the music and the replacement of the movie (VideoBackground). It takes no outlined slots.
 */
class EditVideoPortraitMode : public EditorSession
{
    Q_OBJECT
public:
    explicit EditVideoPortraitMode(QObject *parent = nullptr);

    /** Where the trimmer that this editor opens comes from. */
    void setStoryboard(const Storyboard *storyboard) override;

    [[nodiscard]] bool hasOutlinedSlots() const override { return false; }

protected:
    /** The landscape twin; `className` names it in the log. */
    EditVideoPortraitMode(const char *className, QObject *parent);
};
