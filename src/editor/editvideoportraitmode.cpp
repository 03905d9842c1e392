#include "editvideoportraitmode.h"

#include "videoview.h"

EditVideoPortraitMode::EditVideoPortraitMode(QObject *parent)
    : EditorSession("EditVideoPortraitMode", parent)
    , videoView(new VideoView(this))
    , m_exportFlow(*this, *videoView)
{ }
