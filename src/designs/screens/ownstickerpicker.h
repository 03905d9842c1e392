#pragma once

#include "viewcontroller.h"

#include <QImage>
#include <QString>

class PickerTarget;

/**
 * What the two pickers of the user's own pictures share (MyDesignVC, MyArtVC): the picked picture
 * becomes a new sticker on the editor just below the picker, and the stack pops back to it. `vcTag` tells
 * which editors may lie there: 2 the landscape ones, any other value the portrait ones.
 */
class OwnStickerPicker : public ViewController
{
    Q_OBJECT
    /** Set by the opener through the storyboard, which knows the screen by its name only. */
    Q_PROPERTY(int vcTag MEMBER vcTag)
public:
    int vcTag = 0;
    QString orientation = QStringLiteral("Portrait");

    /** The editor below that takes the sticker: the screen before the picker, when it is one `vcTag` allows. */
    [[nodiscard]] PickerTarget *editorBelow() const;

protected:
    explicit OwnStickerPicker(QObject *parent = nullptr);
    /** Hands `picture` to the editor below as a new sticker and pops to it; nothing for a null picture. */
    void handOver(const QImage &picture);
};
