#pragma once

#include "editorsession.h"

/** The editor of portrait and square image designs. */
class EditImagePortraitMode : public EditorSession
{
    Q_OBJECT
public:
    explicit EditImagePortraitMode(QObject *parent = nullptr);
};
