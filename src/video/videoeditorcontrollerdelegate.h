#pragma once

#include <QString>

class VideoEditorController;

/** What the trimmer tells the screen that presented it; that screen dismisses it. */
class VideoEditorControllerDelegate
{
public:
    virtual ~VideoEditorControllerDelegate() = default;
    /** The cut is in the temporary folder at `editedVideoPath`. */
    virtual void videoEditorControllerDidSaveEditedVideoToPath(
        VideoEditorController *editor, const QString &editedVideoPath)
        = 0;
    /** The cut failed; the trimmer shows why and stays. */
    virtual void videoEditorControllerDidFailWithError(VideoEditorController *editor, const QString &error) = 0;
    virtual void videoEditorControllerDidCancel(VideoEditorController *editor) = 0;
};
