#include "menuitems.h"

#include "patterntiles.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

MenuItem row(const char *text, const char *image, const char *selected)
{
    return { QLatin1String(image), QLatin1String(text), QLatin1String(selected) };
}

// A row whose selected picture is its picture with "_select".
MenuItem suffixed(const char *text, const char *image)
{
    const QString name = QLatin1String(image);
    return { name, QLatin1String(text), name + QStringLiteral("_select") };
}

QStringList numbered(const QString &prefix, int count)
{
    QStringList names;
    for (int n = 1; n <= count; ++n)
        names.append(prefix + QString::number(n));
    return names;
}

const QString bkground = QStringLiteral("Bkground");

} // namespace

namespace MenuItems {

EditorKind kindOf(const QString &className)
{
    if (className == QLatin1String("MoreEditImageVC"))
        return EditorKind::MoreEditImage;
    if (className == QLatin1String("EditVideoPortraitMode"))
        return EditorKind::VideoPortrait;
    if (className == QLatin1String("MoreEditVideoVC"))
        return EditorKind::MoreEditVideo;
    if (className == QLatin1String("HighLightEditor"))
        return EditorKind::HighLight;
    return EditorKind::ImagePortrait;
}

bool isLandscape(EditorKind kind)
{
    return kind == EditorKind::MoreEditImage || kind == EditorKind::MoreEditVideo;
}

QList<MenuItem> menuItemsArray(EditorKind kind)
{
    const MenuItem text = row("Add Text", "menu_text", "menu_text_select");
    const MenuItem image = row("Add Image", "menu_camera", "menu_camera_select");
    switch (kind) {
    case EditorKind::VideoPortrait:
    case EditorKind::MoreEditVideo:
        return { text, image, row("Add Video", "menu_video", "menu_video_select"),
            row("Music", "menu_audio", "menu_audio_select"), row("Graphics", "menu_Graphics", "menu_graphics_select"),
            row("Shapes", "menu_Shape", "menu_Shape_select"), row("Text Arts", "menu_TextArt", "menu_TextArt_select"),
            row("My Arts", "menu_MyArt", "menu_MyArt_select") };
    case EditorKind::HighLight:
        return { row("Background", "menu_bg", "menu_bg_select"), row("Frame", "menu_Frame", "menu_graphics_select"),
            row("Icon", "menu_Shape", "menu_Shape_select"), row("Text", "menu_text", "menu_text_select") };
    case EditorKind::MoreEditImage:
        return { text, image, row("Bkground", "menu_bg", "menu_bg_select"),
            row("Graphics", "menu_Graphics", "menu_sticker_select"), row("Shapes", "menu_Shape", "menu_sticker_select"),
            row("Text Arts", "menu_TextArt", "menu_sticker_select"),
            row("My Arts", "menu_MyArt", "menu_sticker_select"),
            row("My Design", "my_design_menu", "menu_MyDesign_select") };
    case EditorKind::ImagePortrait:
        break;
    }
    return { text, image, row("Bkground", "menu_bg", "menu_bg_select"),
        row("Graphics", "menu_Graphics", "menu_graphics_select"), row("Shapes", "menu_Shape", "menu_Shape_select"),
        row("Text Arts", "menu_TextArt", "menu_TextArt_select"), row("My Arts", "menu_MyArt", "menu_MyArt_select"),
        row("My Design", "my_design_menu", "menu_MyDesign_select") };
}

QList<MenuItem> itemsArray(EditorKind kind, bool is_pip)
{
    QList<MenuItem> items = menuItemsArray(kind);
    if (is_pip)
        items.removeIf([](const MenuItem &item) { return item.text == bkground; });
    return items;
}

QList<MenuItem> bgMenuItemsArray()
{
    return { row("Color", "menu_color", "menu_color_select"), suffixed("Pattern", "menu_pattern"),
        suffixed("Filter", "menu_filter"), suffixed("Adjust", "menu_adjust") };
}

QList<MenuItem> stickerMenuItems(EditorKind kind)
{
    if (isLandscape(kind))
        return { suffixed("Edit", "menu_text_edit"), suffixed("Erase", "ic_menu_erase"),
            suffixed("Control", "menu_handle_control"), suffixed("Rotation", "menu_handle_rotation"),
            suffixed("Size", "menu_handle_scale"), suffixed("Crop", "ic_menu_crop"), suffixed("Color", "menu_color"),
            suffixed("Opacity", "menu_opacity") };
    QList<MenuItem> items;
    for (const char *text : { "Edit", "Rotation", "Size", "Crop", "Color", "Opacity" })
        items.append(row(text, "menu_color", "menu_color_select"));
    return items;
}

QList<MenuItem> stickerEditItems()
{
    QList<MenuItem> items { row("Edit", "ic_edit", "ic_edit_select"),
        row("Erase", "ic_menu_erase", "ic_menu_erase_select") };
    items.append(fontEditItemArray().mid(1));
    return items;
}

QList<MenuItem> fontEditItemArray()
{
    return { row("Edit", "ic_edit", "ic_edit_select"), suffixed("Up", "handle_up"), suffixed("Down", "handle_down"),
        suffixed("Left", "handle_left"), suffixed("Right", "handle_right") };
}

QList<MenuItem> adjustItemsArray()
{
    return { suffixed("Brightness", "brightness"), suffixed("Contrast", "contrast"),
        suffixed("Saturation", "saturation"), suffixed("Flip", "flip") };
}

QList<MenuItem> shapeCropItemsArray()
{
    return { row("Aspect Ratio", "ic_menu_crop", "ic_menu_crop_select"),
        row("Crop to Shape", "ic_menu_shapecrop", "ic_menu_shapecrop_select") };
}

QList<MenuItem> fontMenuItems(EditorKind kind)
{
    QList<MenuItem> landscape { suffixed("Edit", "menu_text_edit"), suffixed("Control", "menu_handle_control"),
        suffixed("Rotation", "menu_handle_rotation"), suffixed("Size", "menu_handle_scale"),
        suffixed("Font type", "fontStyle"), suffixed("Color", "menu_color"), suffixed("Texture", "menu_textbg"),
        suffixed("Shadow", "ic_text_shadow"), suffixed("Style", "font_alignment"), suffixed("Opacity", "menu_opacity"),
        suffixed("Letter Spacing", "text_letterSpacing"), suffixed("Vertical Spacing", "text_lineSpacing") };
    if (isLandscape(kind))
        return landscape;
    // The portrait list is the landscape one without "Control", with "Font" for "Font type".
    QList<MenuItem> items;
    for (const MenuItem &item : landscape) {
        if (item.text == QLatin1String("Control"))
            continue;
        items.append(item);
        if (item.text == QLatin1String("Font type"))
            items.last().text = QStringLiteral("Font");
    }
    return items;
}

QList<MenuItem> adjustmentItems()
{
    QList<MenuItem> items;
    const QList<MenuItem> pictures = adjustItemsArray();
    for (const char *text : { "Opacity", "Brightness", "Contrast", "Saturaion", "Flip", "Feather" }) {
        const QString word = QLatin1String(text);
        MenuItem item = suffixed(text, word == QLatin1String("Opacity") ? "menu_opacity" : "menu_feather");
        for (const MenuItem &picture : pictures) {
            // "Saturaion" is the word shown; its picture is that of "Saturation".
            if (picture.text.left(5) == word.left(5))
                item = { picture.image, word, picture.selected_image };
        }
        items.append(item);
    }
    return items;
}

QList<MenuItem> pictureRows(const QStringList &names)
{
    QList<MenuItem> items;
    for (const QString &name : names)
        items.append({ name, QString(), name });
    return items;
}

QStringList alignmentItemsArray()
{
    return { QStringLiteral("align_left"), QStringLiteral("align_center"), QStringLiteral("align_right"),
        QStringLiteral("underline"), QStringLiteral("uppercase"), QStringLiteral("lowercase"),
        QStringLiteral("titlecase") };
}

QStringList flipItemsArray()
{
    return { QStringLiteral("flip_horizontal"), QStringLiteral("flip_vertical") };
}

QStringList texturePatternItemsArray()
{
    return numbered(QStringLiteral("pattern_"), PatternTiles::textureCount);
}

QStringList bgPatternItemsArray()
{
    return numbered(QStringLiteral("patternbg_"), PatternTiles::backgroundCount);
}

QStringList colorsArray()
{
    static const QStringList colors = [] {
        QStringList read;
        QFile file(QStringLiteral(":/Quillet/Editor/data/shapecropcolors.json"));
        if (!file.open(QIODevice::ReadOnly))
            return read;
        const QJsonArray entries = QJsonDocument::fromJson(file.readAll()).array();
        for (const QJsonValue entry : entries)
            read.append(entry.toObject().value(QLatin1String("rgb")).toString());
        return read;
    }();
    return colors;
}

} // namespace MenuItems
