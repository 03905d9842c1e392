#pragma once

#include "editorsession.h"
#include "videoexportflow.h"

class Storyboard;

/**
 * The editor of portrait video designs: the design's layers over its looping movie, with the sound button,
 * the music and the replacement of the movie (VideoBackground), and SAVE as the movie or GIF export. It
 * takes no outlined slots.
 */
class EditVideoPortraitMode : public EditorSession
{
    Q_OBJECT
public:
    explicit EditVideoPortraitMode(QObject *parent = nullptr);

    /** Where the trimmer and the export's screens come from. */
    void setStoryboard(const Storyboard *storyboard) override;

    [[nodiscard]] bool hasOutlinedSlots() const override { return false; }

    [[nodiscard]] VideoExportFlow &exportFlow() { return m_exportFlow; }
    /** The SAVE bar button: the movie or GIF choice, then the export and its result screen. */
    void savePressed() override { m_exportFlow.savePressed(); }

protected:
    /** The landscape twin; `className` names it in the log. */
    EditVideoPortraitMode(const char *className, QObject *parent);

private:
    VideoExportFlow m_exportFlow;
};
