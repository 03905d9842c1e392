#pragma once

#include <QColor>
#include <QString>

#include <optional>

/**
 * A screen that takes a typed text back from the text entry screen: the editors. The entry screen looks
 * for it one below itself in the navigation stack.
 */
class TextEntryTarget
{
public:
    virtual ~TextEntryTarget() = default;
    /**
     * The text, its font by name and the colour chosen (none when the user chose none). `isNewText` asks
     * for a new text layer; otherwise the selected text layer takes them.
     */
    virtual void takeEnteredText(
        const QString &text, const QString &fontName, std::optional<QColor> color, bool isNewText)
        = 0;
};
