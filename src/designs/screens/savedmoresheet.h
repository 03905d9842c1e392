#pragma once

#include "viewcontroller.h"

#include <QPointer>

#include <optional>

class SavedPhotosVC;

/**
 * What the two action sheets of a saved design share: a button dismisses the sheet, and then the list
 * gets the row and the button's action word and runs it. The subclasses differ only in their buttons
 * and in who is told.
 */
class SavedMoreSheet : public ViewController
{
    Q_OBJECT
    /** The sheet offers Print (pictures only). */
    Q_PROPERTY(bool printOffered READ printOffered CONSTANT)
public:
    /** The list the sheet answers. */
    QPointer<SavedPhotosVC> delegate;
    /** The cell's row: the design's index plus 1. */
    std::optional<int> selectedImage;
    /** The sheet was opened by a long press rather than the more button. */
    bool longPress = false;

    [[nodiscard]] virtual bool printOffered() const { return false; }

    Q_INVOKABLE void reEditBtnClick();
    Q_INVOKABLE void previewBtnClick();
    Q_INVOKABLE void duplicateBtnClick();
    Q_INVOKABLE void deleteBtnClick();
    Q_INVOKABLE void shareBtnClick();
    /** Closes the sheet without an action. */
    Q_INVOKABLE void cancelBtnClick();

protected:
    explicit SavedMoreSheet(QObject *parent = nullptr);
    /** Dismisses the sheet, then hands `word` on. */
    void choose(const QString &word);
    /** Every list to tell, in order. */
    [[nodiscard]] virtual QList<SavedPhotosVC *> listeners() const;
};
