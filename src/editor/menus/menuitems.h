#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/**
 * One row of a tool bar: its picture, its word (empty for the rows that show only a picture) and the
 * picture it shows while it is the selected row.
 */
struct MenuItem
{
    QString image;
    QString text;
    QString selected_image;

    bool operator==(const MenuItem &other) const = default;
};

/** The editors whose bars differ; the first column of the editors' table of differences. */
enum class EditorKind { ImagePortrait, MoreEditImage, VideoPortrait, MoreEditVideo, HighLight };

/**
 * The item tables of the tool bars, in their order and with their words as they are shown (misspellings
 * included, since rows are compared by their words). Tables that differ between the editors take the
 * editor's kind.
 */
namespace MenuItems {
/** The kind of the editor of that class name; the portrait image editor for any other name. */
[[nodiscard]] EditorKind kindOf(const QString &className);
/** The landscape editors have tables of their own for stickers and texts. */
[[nodiscard]] bool isLandscape(EditorKind kind);

/** The top-level menu (`menuItemsArray`) of an editor. */
[[nodiscard]] QList<MenuItem> menuItemsArray(EditorKind kind);
/** The top-level rows shown (`itemsArray`): the menu without "Bkground" in a picture-in-picture design. */
[[nodiscard]] QList<MenuItem> itemsArray(EditorKind kind, bool is_pip);

/** The background bar: "Color", then the patterns, and the filters and adjustments of a picture. */
[[nodiscard]] QList<MenuItem> bgMenuItemsArray();
/** The sticker bar: six rows, or eight in the landscape editors. */
[[nodiscard]] QList<MenuItem> stickerMenuItems(EditorKind kind);
/** The content of the sticker's Edit row. */
[[nodiscard]] QList<MenuItem> stickerEditItems();
/** The content of the text's Edit row (`fontEditItemArray`); also the landscape "Control" row's arrows. */
[[nodiscard]] QList<MenuItem> fontEditItemArray();
[[nodiscard]] QList<MenuItem> adjustItemsArray();
[[nodiscard]] QList<MenuItem> shapeCropItemsArray();
/**
 * The text bar (`fontMenuItemsArray`): plain words in the portrait editors, to which the pictures of the
 * landscape table are lent so that every row has an icon; the landscape table of 12 rows there.
 */
[[nodiscard]] QList<MenuItem> fontMenuItems(EditorKind kind);
/** The adjustment bar (`adjustmentItemsArray`), words with the pictures of `adjustItemsArray` where they match. */
[[nodiscard]] QList<MenuItem> adjustmentItems();
/** Picture-only rows of a list of names, each its own selected picture. */
[[nodiscard]] QList<MenuItem> pictureRows(const QStringList &names);

[[nodiscard]] QStringList alignmentItemsArray();
[[nodiscard]] QStringList flipItemsArray();
/** "pattern_1" to "pattern_114", the textures of letters. */
[[nodiscard]] QStringList texturePatternItemsArray();
/** "patternbg_1" to "patternbg_4", the background patterns. */
[[nodiscard]] QStringList bgPatternItemsArray();
/** The colour strip's colours, "rgb" hexadecimal strings from the application's colour file. */
[[nodiscard]] QStringList colorsArray();
} // namespace MenuItems
