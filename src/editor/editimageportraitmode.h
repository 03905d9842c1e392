#pragma once

#include "editorsession.h"
#include "imagesaveflow.h"
#include "slotpictures.h"

/** The editor of portrait and square image designs. */
class EditImagePortraitMode : public EditorSession
{
    Q_OBJECT
public:
    explicit EditImagePortraitMode(QObject *parent = nullptr);

    void setStoryboard(const Storyboard *storyboard) override
    {
        EditorSession::setStoryboard(storyboard);
        m_saveFlow.setStoryboard(storyboard);
    }
    [[nodiscard]] ImageSaveFlow &saveFlow() { return m_saveFlow; }

    /** The SAVE bar button: the size choice, then the picture, the store and the result screen. */
    void savePressed() override { m_saveFlow.savePressed(); }
    /** Back on top after a save: SAVE may be pressed again. */
    void viewWillAppear() override;

protected:
    /** The other picture editors, which save alike; `className` names them in the log. */
    EditImagePortraitMode(const char *className, QObject *parent);

private:
    ImageSaveFlow m_saveFlow;
};
