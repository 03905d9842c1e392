#pragma once

#include "savedmoresheet.h"

/** The action sheet of a video design: the shared actions, without Print. */
class SavedVideosMoreVC : public SavedMoreSheet
{
    Q_OBJECT
public:
    explicit SavedVideosMoreVC(QObject *parent = nullptr);
};
