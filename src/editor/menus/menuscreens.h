#pragma once

#include "menuitems.h"

#include <QColor>
#include <QString>

#include <functional>

class EditorSession;
class QObject;
class ViewController;

/**
 * The screens that the bars open over the editor, each by its storyboard identifier with the fields the
 * opener sets: the text entry, the picture sheet and crop, the content pagers, the user's own pictures,
 * the colour picker and the font library's guide. Without a storyboard or a navigation stack
 * (headless) nothing opens.
 */
class MenuScreens
{
public:
    explicit MenuScreens(EditorSession &session);

    /** A row of the top level by its number, as the editor's table of rows says; false for a row with no action. */
    bool openTopRow(EditorKind kind, int row);

    /** "AddTextVC" for a new text: the background's frame is kept and the selection cleared first. */
    void addText();
    /** "AddTextVC" for the selected text, with its text, font and colour. */
    void editText();
    /** The sticker pager for the selected sticker, whose picture the picked one replaces. */
    void replaceSticker();
    /** The crop screen with the selected sticker's picture, which the cut replaces. */
    void cropSticker();
    /** "CustomColorPicker" starting from `start`, giving its colour to `delegate`. */
    void customColorPicker(const QColor &start, QObject *delegate);
    /** The font library's guide, "How To Use Fonts". */
    void howToUseFonts();

private:
    /** Makes the screen, lets `setup` fill it and pushes it; nothing when it cannot be shown. */
    template<class Screen = ViewController>
    void push(const QString &identifier, const std::function<void(Screen &)> &setup = {});
    void backgroundPager();
    void stickerPager(qint64 categoryId, const QString &name, bool replacing);
    void ownPictures(const QString &identifier);

    EditorSession &m_session;
};
