#pragma once

#include "editorsession.h"
#include "imagesaveflow.h"
#include "slotpictures.h"

class Storyboard;

/** The editor of portrait and square image designs. */
class EditImagePortraitMode : public EditorSession
{
    Q_OBJECT
public:
    explicit EditImagePortraitMode(QObject *parent = nullptr);

    /** Where the screens that this editor opens come from. */
    void setStoryboard(const Storyboard *storyboard)
    {
        m_saveFlow.setStoryboard(storyboard);
        slotPictures().setStoryboard(storyboard);
    }
    [[nodiscard]] ImageSaveFlow &saveFlow() { return m_saveFlow; }

    /** The SAVE bar button: the size choice, then the picture, the store and the result screen. */
    Q_INVOKABLE void savePressed() { m_saveFlow.savePressed(); }
    /** Back on top after a save: SAVE may be pressed again. */
    void viewWillAppear() override;

protected:
    /** The other picture editors, which save alike; `className` names them in the log. */
    EditImagePortraitMode(const char *className, QObject *parent);

private:
    ImageSaveFlow m_saveFlow;
};
