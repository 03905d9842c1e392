#pragma once

#include "menuitems.h"

#include <QColor>
#include <QList>

class EditorSession;
class MenuScreens;

/**
 * The content bar (`contentCollectionView`): the rows that each content tag lists, and what a row does to
 * the selected text or sticker or to the background. A row for a layer that is no longer selected does
 * nothing. Colours are not rows here: the colour strip of the shared area gives them.
 */
class MenuContent
{
public:
    MenuContent(EditorSession &session, MenuScreens &screens);

    /** The rows of `contentTag`; empty for a tag whose content is the colour strip or nothing. */
    [[nodiscard]] QList<MenuItem> rows(int contentTag) const;
    /** Whether `contentTag` lists rows, so that an empty list shows "No items found". */
    [[nodiscard]] static bool isList(int contentTag);
    /** Row `row` of `contentTag`, as `rows` gave it. */
    void select(int contentTag, int row);

    /** A colour of the strip or the colour picker: the selected text or sticker, else the background. */
    void applyColor(const QColor &color);
    /** The colour that the strip starts from: that of the selected text or sticker, else the background's. */
    [[nodiscard]] QColor currentColor() const;
    /** The font row's family for showing its name in its own face; empty when the font is unknown. */
    [[nodiscard]] static QString fontFamily(const QString &fontName);

private:
    /** The background shows a picture, which the filters and flips work on. */
    [[nodiscard]] bool hasPicture() const;
    void applyFont(int row);
    void applyStyle(int row);
    void applyTexture(const QString &name);
    /** The four arrows, rows 1 to 4 of the Edit content: the selected layer moves one step, as a drag. */
    void nudge(int arrow);

    EditorSession &m_session;
    MenuScreens &m_screens;
};
