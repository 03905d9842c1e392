#include "editimageportraitmode.h"

EditImagePortraitMode::EditImagePortraitMode(QObject *parent)
    : EditImagePortraitMode("EditImagePortraitMode", parent)
{ }

EditImagePortraitMode::EditImagePortraitMode(const char *className, QObject *parent)
    : EditorSession(className, parent)
    , m_saveFlow(*this)
{ }

void EditImagePortraitMode::viewWillAppear()
{
    EditorSession::viewWillAppear();
    issavePressed = false;
}
