#include "editimageportraitmode.h"

EditImagePortraitMode::EditImagePortraitMode(QObject *parent)
    : EditorSession("EditImagePortraitMode", parent)
    , m_saveFlow(*this)
{ }

void EditImagePortraitMode::viewWillAppear()
{
    EditorSession::viewWillAppear();
    issavePressed = false;
}
