#include "assettable.h"

#include "assetpictures.h"
#include "patterntiles.h"

namespace {

constexpr QRgb ink = 0xFF1F1A1C;
constexpr QRgb white = 0xFFFFFFFF;
constexpr QRgb grey = 0xFF808080;
constexpr QRgb lilac = 0xFFB0A8B7;
constexpr QRgb veil = 0x99000000;
constexpr int iconSide = 72; // 24 points at 3x
constexpr int badgeSide = 84; // 28 points at 3x

/** An icon, with the name of its selected look when it is a menu row. */
struct IconRow
{
    const char *name;
    const char *selected;
    const char *glyph;
    QRgb colour = ink;
};

// Icons of the set, by the names the screens use. A row's selected name shows the same icon in the accent.
constexpr IconRow icons[] = {
    // Editor: navigation bar and layer panel
    { "ic_back", nullptr, "chevron-left" },
    { "undo", nullptr, "arrow-back-up" },
    { "redo", nullptr, "arrow-forward-up" },
    { "ic_layer", nullptr, "stack-2" },
    { "menu_duplicate", nullptr, "copy" },
    { "ic_cancel_white", nullptr, "x", white },
    // Editor: the top-level menus of the five editors
    { "menu_text", "menu_text_select", "typography" },
    { "menu_camera", "menu_camera_select", "camera" },
    { "menu_bg", "menu_bg_select", "background" },
    { "menu_Graphics", "menu_graphics_select", "sticker" },
    { "menu_Shape", "menu_Shape_select", "shape" },
    { "menu_TextArt", "menu_TextArt_select", "signature" },
    { "menu_MyArt", "menu_MyArt_select", "photo-heart" },
    { "my_design_menu", "menu_MyDesign_select", "layout-grid" },
    { "menu_video", "menu_video_select", "video" },
    { "menu_audio", "menu_audio_select", "music" },
    { "menu_Frame", nullptr, "frame" },
    { "menu_sticker_select", nullptr, "sticker", AssetTable::accent },
    // Editor: tool bars of the background, stickers and texts
    { "menu_color", "menu_color_select", "palette" },
    { "ic_edit", "ic_edit_select", "pencil" },
    { "ic_menu_erase", "ic_menu_erase_select", "eraser" },
    { "ic_menu_crop", "ic_menu_crop_select", "crop" },
    { "ic_menu_shapecrop", "ic_menu_shapecrop_select", "circle-square" },
    { "handle_up", "handle_up_select", "arrow-up" },
    { "handle_down", "handle_down_select", "arrow-down" },
    { "handle_left", "handle_left_select", "arrow-left" },
    { "handle_right", "handle_right_select", "arrow-right" },
    { "menu_text_edit", "menu_text_edit_select", "edit" },
    { "menu_handle_control", "menu_handle_control_select", "arrows-move" },
    { "menu_handle_rotation", "menu_handle_rotation_select", "rotate-clockwise" },
    { "menu_handle_scale", "menu_handle_scale_select", "arrows-maximize" },
    { "menu_opacity", "menu_opacity_select", "droplet-half-2" },
    { "fontStyle", "fontStyle_select", "abc" },
    { "menu_textbg", "menu_textbg_select", "texture" },
    { "ic_text_shadow", "ic_text_shadow_select", "shadow" },
    { "font_alignment", "font_alignment_select", "align-justified" },
    { "text_letterSpacing", "text_letterSpacing_select", "letter-spacing" },
    { "text_lineSpacing", "text_lineSpacing_select", "line-height" },
    { "keyboard", "keyboard_select", "keyboard" },
    { "font_style", "font_style_select", "abc" },
    { "color_picker", "color_picker_select", "color-picker" },
    { "alignment", "alignment_select", "align-center" },
    { "align_left", nullptr, "align-left" },
    { "align_center", nullptr, "align-center" },
    { "align_right", nullptr, "align-right" },
    { "underline", nullptr, "underline" },
    { "uppercase", nullptr, "letter-case-upper" },
    { "lowercase", nullptr, "letter-case-lower" },
    { "titlecase", nullptr, "letter-case" },
    { "flip_horizontal", nullptr, "flip-horizontal" },
    { "flip_vertical", nullptr, "flip-vertical" },
    { "brightness", "brightness_select", "brightness-up" },
    { "contrast", "contrast_select", "contrast" },
    { "saturation", "saturation_select", "droplet-half" },
    { "flip", "flip_select", "flip-horizontal" },
    { "menu_pattern", "menu_pattern_select", "texture" },
    { "menu_filter", "menu_filter_select", "wand" },
    { "menu_adjust", "menu_adjust_select", "adjustments" },
    { "menu_feather", "menu_feather_select", "circle-dot" },
    // Editor: eraser, crop and text entry
    { "eraser", "eraser_select", "eraser" },
    { "auto", "auto_select", "wand" },
    { "zoom", "zoom_select", "zoom-in" },
    { "reset", "reset_select", "restore" },
    { "ic_round", nullptr, "circle" },
    { "ic_checks_round", nullptr, "circle-check" },
    { "tick", nullptr, "check" },
    { "crop_rotate", nullptr, "rotate-clockwise" },
    { "crop_rotate_left", nullptr, "rotate" },
    { "crop_reset", nullptr, "restore" },
    { "crop_ratio", nullptr, "aspect-ratio" },
    // Editor: picture slots, background pickers, colour header
    { "plus", nullptr, "plus", grey },
    { "sc_plus", nullptr, "plus", lilac },
    { "bg_album", nullptr, "photo" },
    { "bg_camera", nullptr, "camera" },
    // Template preview, video editor and export
    { "retry", nullptr, "refresh" },
    { "ic_volume", nullptr, "volume" },
    { "ic_volume_mute", nullptr, "volume-off" },
    { "export_video", nullptr, "movie" },
    { "export_gif", nullptr, "gif" },
    // Audio library
    { "back-1", nullptr, "arrow-left" },
    { "Music", nullptr, "music" },
    { "record", nullptr, "microphone" },
    { "play", nullptr, "player-play" },
    { "pause", nullptr, "player-pause" },
    // Font library, shape crop
    { "fontpicker_back", nullptr, "chevron-left" },
    { "sc_menu_shape", "sc_menu_shape_select", "shape" },
    { "sc_menu_background", "sc_menu_background_select", "background" },
    { "sc_menu_adjustment", "sc_menu_adjustment_select", "adjustments" },
    { "sc_cancal", nullptr, "x" },
    // Side menu, promotion
    { "sidemenu_notification", nullptr, "bell" },
    { "Guide", nullptr, "book" },
    { "guidefor_hilight", nullptr, "circle-dot" },
    { "sidemenu_rate", nullptr, "star" },
    { "sidemenu_feedback", nullptr, "message" },
    { "sidemenu_aboutus", nullptr, "info-circle" },
    { "sidemenu_share", nullptr, "share" },
    { "sidemenu_more", nullptr, "apps" },
    { "sidemenu_privacypolicy", nullptr, "shield-lock" },
    { "ic_gift", nullptr, "gift" },
    // Blank start: the sizes of "custom_ratio.json"
    { "ratio_story", nullptr, "device-mobile" },
    { "ratio_post", nullptr, "rectangle-vertical" },
    { "ratio_square", nullptr, "square" },
    { "ratio_highlight", nullptr, "circle" },
    { "ratio_landscape", nullptr, "rectangle" },
    // Home, result and list screens
    { "ic_menu", nullptr, "menu-2" },
    { "ic_search", nullptr, "search" },
    { "ic_top", nullptr, "arrow-bar-to-up" },
    { "ic_share", nullptr, "share" },
    { "ic_print", nullptr, "printer" },
    { "ic_delete", nullptr, "trash" },
    { "ic_fullscreen", nullptr, "maximize" },
    { "ic_facebook", nullptr, "brand-facebook" },
    { "ic_whatsapp", nullptr, "brand-whatsapp" },
    { "ic_instagram", nullptr, "brand-instagram" },
    { "ic_twitter", nullptr, "brand-x" },
    { "ic_download", nullptr, "download" },
    { "ic_video", nullptr, "video" },
    { "ic_more", nullptr, "dots" },
};

/** An icon on a disc with a white ring, for controls that lie over pictures. */
struct BadgeRow
{
    const char *name;
    const char *glyph;
    QRgb disc;
};

constexpr BadgeRow badges[] = {
    { "ic_close", "x", AssetTable::accent },
    { "ic_rotate", "rotate-clockwise", AssetTable::accent },
    { "ic_resize", "arrows-diagonal", AssetTable::accent },
    { "img_edit", "pencil", veil },
};

/** A picture drawn in code; with a count, the family `name` + "1" to `name` + count. */
struct PictureRow
{
    const char *name;
    AssetTable::Painter painter;
    QSize naturalSize;
    int count = 0;
};

const PictureRow pictures[] = {
    { "img_placeholder", AssetPictures::picturePlaceholder, { 600, 600 } },
    { "sc_placeholder", AssetPictures::shapePlaceholder, { 300, 300 } },
    { "img_transperent_bg_bright", AssetPictures::brightChecks, { 600, 600 } },
    { "img_transperent_bg_dark", AssetPictures::darkChecks, { 600, 600 } },
    { "sc_transperent_bg_bright", AssetPictures::brightChecks, { 300, 300 } },
    { "fontpicker_howtouse_download", AssetPictures::howToDownload, { 1080, 1350 } },
    { "fontpicker_howtouse_custom", AssetPictures::howToCustom, { 1080, 1350 } },
    { "pattern_", PatternTiles::texture, { 240, 240 }, PatternTiles::textureCount },
    { "patternbg_", PatternTiles::background, { 480, 480 }, PatternTiles::backgroundCount },
};

// The member of a numbered family that `name` is ("pattern_7" of "pattern_" with 114 members), else 0.
int memberOf(const QString &name, const PictureRow &row)
{
    const QLatin1String prefix(row.name);
    if (row.count == 0 || !name.startsWith(prefix))
        return 0;
    const QStringView digits = QStringView(name).mid(prefix.size());
    if (digits.isEmpty() || digits.front() == u'0')
        return 0;
    bool ok = false;
    const int number = digits.toInt(&ok);
    return ok && number >= 1 && number <= row.count ? number : 0;
}

} // namespace

namespace AssetTable {

std::optional<Source> find(const QString &name)
{
    for (const IconRow &row : icons) {
        const bool plain = name == QLatin1String(row.name);
        if (plain || (row.selected && name == QLatin1String(row.selected)))
            return Source { Source::Kind::Icon, QLatin1String(row.glyph), QColor::fromRgba(plain ? row.colour : accent),
                {}, nullptr, 0, { iconSide, iconSide } };
    }
    for (const BadgeRow &row : badges) {
        if (name == QLatin1String(row.name))
            return Source { Source::Kind::Badge, QLatin1String(row.glyph), Qt::white, QColor::fromRgba(row.disc),
                nullptr, 0, { badgeSide, badgeSide } };
    }
    for (const PictureRow &row : pictures) {
        const int number = memberOf(name, row);
        if (number > 0 || (row.count == 0 && name == QLatin1String(row.name)))
            return Source { Source::Kind::Picture, {}, {}, {}, row.painter, number, row.naturalSize };
    }
    return std::nullopt;
}

QStringList names()
{
    QStringList all;
    for (const IconRow &row : icons) {
        all.append(QLatin1String(row.name));
        if (row.selected)
            all.append(QLatin1String(row.selected));
    }
    for (const BadgeRow &row : badges)
        all.append(QLatin1String(row.name));
    for (const PictureRow &row : pictures) {
        if (row.count == 0)
            all.append(QLatin1String(row.name));
        for (int n = 1; n <= row.count; ++n)
            all.append(QLatin1String(row.name) + QString::number(n));
    }
    return all;
}

} // namespace AssetTable
