#pragma once

#include <QImage>
#include <QRectF>

class EditorSession;
class Storyboard;
class View;

/**
 * The user's photos in the design's slots: the picture sheet offered for a slot, and the picture that
 * comes back through the crop screen put into the slot as one change. The background stays as it is:
 * only the load of a picture-in-picture design makes a slot's picture the background.
 */
class SlotPictures
{
public:
    explicit SlotPictures(EditorSession &session);

    /** What the picture that comes back is for; the values of ImagePickerTarget. */
    int imagePickerTag = 0;
    /** The background view's frame when the sheet opened. */
    QRectF bgOriginalFrame;

    void setStoryboard(const Storyboard *storyboard) { m_storyboard = storyboard; }
    /**
     * Selects the slot and opens the picture sheet for it: "Replace Image From" when it holds a picture,
     * "Choose Image From" when it is empty. False when there is no screen to open it over.
     */
    bool choosePictureFor(View *slot);
    /**
     * Puts a picture into a picture slot or an outlined slot, filling it unmoved, and records it as one step
     * with `status` 2. The picture is kept in memory and in a file, so that undo and redo find it again: a
     * picture slot names the file in `image_sticker_image`, an outlined slot, whose `image_sticker_image` is
     * its mask, in `pip_image`. False for a view that is no slot or a picture that is null.
     */
    bool place(View *slot, const QImage &picture);

private:
    EditorSession &m_session;
    const Storyboard *m_storyboard = nullptr;
};
