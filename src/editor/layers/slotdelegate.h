#pragma once

#include <memory>

class View;

/**
 * What a picture slot tells the editor, in the order of its table: select, deselect, will close,
 * update (after each commit, with the record), did close, attached (at setTag:); then the placeholder's
 * tap, by which an empty slot asks for a picture.
 */
template<class Record> class SlotDelegate
{
public:
    virtual ~SlotDelegate() = default;
    virtual void slotDidSelect(View *slot) = 0;
    virtual void slotDidDeselect(View *slot) = 0;
    virtual void slotWillClose(View *slot) = 0;
    virtual void slotDidUpdate(const std::shared_ptr<Record> &record) = 0;
    virtual void slotDidClose(View *slot) = 0;
    virtual void slotDidAttach(const std::shared_ptr<Record> &record) = 0;
    virtual void slotDidAskForPicture(View *slot) = 0;
};
