#include "editimageportraitmode.h"

EditImagePortraitMode::EditImagePortraitMode(QObject *parent)
    : EditorSession("EditImagePortraitMode", parent)
{ }
