#include "editvideoportraitmode.h"

#include "videobackground.h"

EditVideoPortraitMode::EditVideoPortraitMode(QObject *parent)
    : EditVideoPortraitMode("EditVideoPortraitMode", parent)
{ }

EditVideoPortraitMode::EditVideoPortraitMode(const char *className, QObject *parent)
    : EditorSession(className, parent, DesignKind::Video)
    , m_exportFlow(*this, *videoView())
{ }

void EditVideoPortraitMode::setStoryboard(const Storyboard *storyboard)
{
    EditorSession::setStoryboard(storyboard);
    video()->setStoryboard(storyboard);
    m_exportFlow.setStoryboard(storyboard);
}
