#pragma once

#include "savedmoresheet.h"

/** The action sheet of a picture design: the shared actions and Print. */
class SavedPhotosMoreVC : public SavedMoreSheet
{
    Q_OBJECT
public:
    explicit SavedPhotosMoreVC(QObject *parent = nullptr);

    /** The list under the sheet; told after `delegate` when both are set. */
    QPointer<SavedPhotosVC> superVC;

    [[nodiscard]] bool printOffered() const override { return true; }
    Q_INVOKABLE void printBtnClick();

protected:
    [[nodiscard]] QList<SavedPhotosVC *> listeners() const override;
};
