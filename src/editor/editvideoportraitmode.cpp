#include "editvideoportraitmode.h"

EditVideoPortraitMode::EditVideoPortraitMode(QObject *parent)
    : EditorSession("EditVideoPortraitMode", parent)
{ }
