#pragma once

#include <QColor>
#include <QImage>
#include <QString>

#include <optional>

class NavigationController;
class ViewController;

/** A sticker picture that a picker hands back, with where it came from. */
struct PickedSticker
{
    QImage newStickerImage;
    /** Replaces the selected sticker's picture instead of adding a sticker. */
    bool isStickerChange = false;
    /** The picture keeps its own colours (the user's own picture) instead of taking the sticker tint. */
    bool newStickerHasColor = false;
    /** The sticker category the pager showed (47, 49, 50, ...). */
    std::optional<qint64> selected_sticker_id;
    /** The catalog the sticker was picked from; none for the user's own picture. */
    std::optional<qint64> selected_sticker_catalog_id;
};

/**
 * The screen that the background and sticker pickers hand their result back to: the editor under them in
 * the navigation stack. It keeps what it is handed in its fields and reads them when it appears again,
 * after the picker has popped back to it.
 */
class PickerTarget
{
public:
    virtual ~PickerTarget() = default;

    /** A background picture (`newBgImage`) and, when it came from a catalog, its address (`bg_image_url`). */
    virtual void setNewBgImage(const QImage &newBgImage, const QString &bg_image_url) = 0;
    /** A plain background colour; none for "Transparent". */
    virtual void setBackgroundColor(const std::optional<QColor> &color) = 0;
    /** The background colour shown now, for the colour picker to start from; none when there is none. */
    [[nodiscard]] virtual std::optional<QColor> backgroundColor() const = 0;
    virtual void setNewStickerImage(const PickedSticker &sticker) = 0;

    /**
     * The target of a picker: `preferred` when it is one, else the nearest target below `picker` in its stack.
     * Null when there is none.
     */
    [[nodiscard]] static PickerTarget *find(ViewController *preferred, ViewController *picker);
    /** Pops the stack of `picker` back to the target's screen. */
    static void popTo(PickerTarget *target, ViewController *picker);
};
