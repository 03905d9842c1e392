#pragma once

#include "editorsession.h"
#include "videoexportflow.h"

class Storyboard;
class VideoView;

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

    /** The design's video under the canvas, with its music; owned by this editor. */
    VideoView *const videoView;

    /** Where the screens that this editor opens come from. */
    void setStoryboard(const Storyboard *storyboard) { m_exportFlow.setStoryboard(storyboard); }
    [[nodiscard]] VideoExportFlow &exportFlow() { return m_exportFlow; }
    /** The SAVE bar button: the movie or GIF choice, then the export and its result screen. */
    Q_INVOKABLE void savePressed() { m_exportFlow.savePressed(); }

private:
    VideoExportFlow m_exportFlow;
};
