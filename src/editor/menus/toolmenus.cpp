#include "toolmenus.h"

#include "backgroundimageview.h"
#include "backgroundtools.h"
#include "editorsession.h"
#include "hexcolor.h"
#include "menucontent.h"
#include "menuscreens.h"
#include "userdefaults.h"

namespace {

QVariantMap rowMap(const MenuItem &item, bool selected)
{
    return { { QStringLiteral("image"), item.image }, { QStringLiteral("text"), item.text },
        { QStringLiteral("selectedImage"), item.selected_image }, { QStringLiteral("isSelect"), selected } };
}

QVariantList rowMaps(const QList<MenuItem> &rows, int selected)
{
    QVariantList maps;
    for (qsizetype i = 0; i < rows.size(); ++i)
        maps.append(rowMap(rows.at(i), i == selected));
    return maps;
}

// The tool bars that `showMainMenu` closes.
bool closesToMainMenu(int menuTag)
{
    return menuTag == MenuTag::bgTag || menuTag == MenuTag::stickerTag || menuTag == MenuTag::fontTag
        || menuTag == MenuTag::adjustmentTag || menuTag == MenuTag::filterMenuTag || menuTag == MenuTag::textureTag;
}

} // namespace

ToolMenus::ToolMenus(EditorSession &session)
    : QObject(&session)
    , m_session(session)
    , m_kind(MenuItems::kindOf(session.className()))
    , m_screens(std::make_unique<MenuScreens>(session))
    , m_content(std::make_unique<MenuContent>(session, *m_screens))
    , m_sliders(new MenuSliders(session))
{
    // A picture-in-picture design drops "Bkground" from the top level once it has loaded.
    connect(&session, &EditorSession::layersChanged, this, &ToolMenus::barsChanged);
}

ToolMenus::~ToolMenus() = default;

QList<MenuItem> ToolMenus::topRows() const
{
    return MenuItems::itemsArray(m_kind, m_session.is_pip);
}

QVariantList ToolMenus::topItems() const
{
    return rowMaps(topRows(), -1);
}

QVariantList ToolMenus::menuItems() const
{
    return rowMaps(m_menuRows, m_menuSelectedIndex);
}

QVariantList ToolMenus::contentItems() const
{
    QVariantList maps = rowMaps(m_contentRows, m_contentSelectedIndex);
    if (m_contentTag == ContentTag::fontStyleTag) {
        for (QVariant &map : maps) {
            QVariantMap row = map.toMap();
            row.insert(
                QStringLiteral("fontFamily"), MenuContent::fontFamily(row.value(QStringLiteral("text")).toString()));
            map = row;
        }
    }
    return maps;
}

QVariantList ToolMenus::colors() const
{
    QVariantList colors;
    for (const QString &rgb : MenuItems::colorsArray())
        colors.append(HexColor::fromString(rgb));
    return colors;
}

int ToolMenus::colorIndex() const
{
    const QColor current = m_content->currentColor();
    const QStringList colors = MenuItems::colorsArray();
    for (qsizetype i = 0; i < colors.size(); ++i) {
        if (current.isValid() && HexColor::fromString(colors.at(i)).rgb() == current.rgb())
            return int(i);
    }
    return -1;
}

QString ToolMenus::popTipText()
{
    return tr("Tap here to know \"How to use fonts?\"");
}

QList<MenuItem> ToolMenus::barRows() const
{
    if (m_menuTag == MenuTag::noMenuTag)
        return topRows();
    return m_menuRows.isEmpty() ? m_contentRows : m_menuRows;
}

QStringList ToolMenus::barTexts() const
{
    QStringList texts;
    for (const MenuItem &item : barRows())
        texts.append(item.text.isEmpty() ? item.image : item.text);
    return texts;
}

int ToolMenus::saveButtonWidth(qreal screenWidth)
{
    return screenWidth < 375 ? 52 : 68;
}

void ToolMenus::openBar(int menuTag, const QList<MenuItem> &rows, int contentTag, Control control)
{
    m_menuTag = menuTag;
    m_menuRows = rows;
    m_menuSelectedIndex = 0;
    showContent(contentTag, control);
}

void ToolMenus::showContent(int contentTag, Control control)
{
    // The tip belongs to the font tool, which shows it after its content.
    hidePopTip();
    m_contentTag = contentTag;
    m_contentRows = m_content->rows(contentTag);
    m_contentSelectedIndex = -1;
    m_noDataShown = MenuContent::isList(contentTag) && m_contentRows.isEmpty();
    showControl(control);
}

void ToolMenus::showControl(Control control)
{
    // Every slider, the rotation and scale views and the colours hide before the tool's own control shows.
    m_control = control;
    if (control != Control::Slider)
        m_sliders->close();
    if (control == Control::Rotation)
        m_sliders->openRotation();
    else if (control == Control::Scale)
        m_sliders->openScale();
    Q_EMIT barsChanged();
}

void ToolMenus::openSlider(MenuSliders::Kind kind)
{
    m_sliders->open(kind);
    showControl(Control::Slider);
}

void ToolMenus::openTextBar()
{
    openBar(MenuTag::fontTag, MenuItems::fontMenuItems(m_kind), ContentTag::editTextTag);
}

void ToolMenus::selectionChanged()
{
    const LayerSelection &selection = m_session.selection;
    if (selection.selectedView) {
        if (!m_session.is_pip) {
            openTextBar();
            return;
        }
        // A text of a picture-in-picture design gets its opacity and nothing else.
        const QList<MenuItem> opacity = MenuItems::adjustmentItems().mid(0, 1);
        openBar(MenuTag::adjustmentTag, opacity, m_contentTag);
        openSlider(MenuSliders::Kind::TextOpacity);
        return;
    }
    const BorderedResizableImageView *outlined = selection.selectedBorderedImageView;
    if (selection.selectedIconImgView || (outlined && !outlined->isNotImage())) {
        openBar(MenuTag::stickerTag, MenuItems::stickerMenuItems(m_kind), ContentTag::stickerDetailsTag);
        return;
    }
    // An outlined slot's placeholder opens the picture sheet; a picture slot has no bar.
    if (outlined || selection.selectedImageView)
        return;
    openBar(MenuTag::noMenuTag, {}, 0);
}

void ToolMenus::showMainMenu()
{
    if (!closesToMainMenu(m_menuTag))
        return;
    openBar(MenuTag::noMenuTag, {}, 0);
}

void ToolMenus::backToTopLevel()
{
    hidePopTip();
    m_noDataShown = false;
    showMainMenu();
    Q_EMIT barsChanged();
}

bool ToolMenus::pictureBackground() const
{
    return !m_session.backgroundImageView->image().isNull();
}

void ToolMenus::canvasTapped()
{
    const LayerSelection &selection = m_session.selection;
    if (selection.selectedView || selection.selectedIconImgView || selection.selectedImageView
        || selection.selectedBorderedImageView) {
        m_session.deselectAll(true);
    } else if (m_menuTag != MenuTag::noMenuTag) {
        showMainMenu();
    } else {
        openBackgroundBar();
    }
}

void ToolMenus::openBackgroundBar()
{
    openBar(MenuTag::bgTag, MenuItems::bgMenuItemsArray(), ContentTag::bgDetailsTag, Control::Colors);
}

void ToolMenus::didSelectTopRow(int row)
{
    const QList<MenuItem> rows = topRows();
    if (row < 0 || row >= rows.size())
        return;
    const bool video = m_kind == EditorKind::VideoPortrait || m_kind == EditorKind::MoreEditVideo;
    // "Music" waits for the audio library, which the editor does not hold.
    if (video && row == 3) {
        Q_EMIT mediaRowSelected(rows.at(row).text);
        return;
    }
    // In a picture-in-picture design the sticker rows open the selected text's tools instead.
    const bool textRow = m_kind == EditorKind::HighLight ? row == 1 || row == 2 : row >= 3 && row <= 5;
    if (m_session.is_pip && textRow) {
        if (m_session.selection.selectedView)
            openTextBar();
        return;
    }
    m_screens->openTopRow(m_kind, row);
}

void ToolMenus::didSelectMenuRow(int row)
{
    if (m_menuTag == MenuTag::noMenuTag) {
        didSelectTopRow(row);
        return;
    }
    if (row < 0 || row >= m_menuRows.size())
        return;
    m_menuSelectedIndex = row;
    const QString word = m_menuRows.at(row).text;
    switch (m_menuTag) {
    case MenuTag::bgTag:
        backgroundRow(word);
        break;
    case MenuTag::stickerTag:
        stickerRow(word);
        break;
    case MenuTag::fontTag:
        textRow(word);
        break;
    case MenuTag::adjustmentTag:
        adjustmentRow(word);
        break;
    default:
        break;
    }
    Q_EMIT barsChanged();
}

void ToolMenus::backgroundRow(const QString &word)
{
    if (word == QLatin1String("Color")) {
        showContent(ContentTag::bgDetailsTag, Control::Colors);
    } else if (word == QLatin1String("Pattern")) {
        showContent(ContentTag::bgDetailsTag + 1);
    } else if (word == QLatin1String("Filter")) {
        // Every filter row starts from the picture shown when the filters open; without one the list is empty.
        if (pictureBackground())
            m_session.backgroundTools()->setupCoreImage();
        openBar(MenuTag::filterMenuTag, {}, ContentTag::filterTag);
    } else if (word == QLatin1String("Adjust")) {
        const QList<MenuItem> rows = MenuItems::adjustmentItems();
        openBar(MenuTag::adjustmentTag, rows, 0);
        if (pictureBackground()) {
            adjustmentRow(rows.first().text);
        } else {
            // A colour, gradient or pattern has nothing to adjust.
            m_noDataShown = true;
            Q_EMIT barsChanged();
        }
    }
}

void ToolMenus::stickerRow(const QString &word)
{
    const LayerSelection &selection = m_session.selection;
    if (!selection.selectedIconImgView && !selection.selectedBorderedImageView)
        return;
    if (word == QLatin1String("Edit") || word == QLatin1String("Control"))
        showContent(ContentTag::stickerDetailsTag);
    else if (word == QLatin1String("Rotation"))
        showControl(Control::Rotation);
    else if (word == QLatin1String("Size"))
        showControl(Control::Scale);
    else if (word == QLatin1String("Crop"))
        showContent(ContentTag::stickerDetailsTag + ContentTag::stickerShapeCropIndex);
    else if (word == QLatin1String("Color"))
        showContent(ContentTag::stickerDetailsTag + 4, Control::Colors);
    else if (word == QLatin1String("Opacity"))
        openSlider(MenuSliders::Kind::StickerOpacity);
}

void ToolMenus::textRow(const QString &word)
{
    if (!m_session.selection.selectedView)
        return;
    if (word == QLatin1String("Edit") || word == QLatin1String("Control")) {
        showContent(ContentTag::editTextTag);
    } else if (word == QLatin1String("Rotation")) {
        showControl(Control::Rotation);
    } else if (word == QLatin1String("Size")) {
        showControl(Control::Scale);
    } else if (word == QLatin1String("Font") || word == QLatin1String("Font type")) {
        showContent(ContentTag::fontStyleTag);
        showFontPopTipOnce();
    } else if (word == QLatin1String("Color")) {
        showContent(ContentTag::textColorTag, Control::Colors);
    } else if (word == QLatin1String("Texture")) {
        showContent(ContentTag::textureDetailsTag);
    } else if (word == QLatin1String("Shadow")) {
        openSlider(MenuSliders::Kind::TextShadow);
    } else if (word == QLatin1String("Style")) {
        showContent(ContentTag::alignmentTag);
    } else if (word == QLatin1String("Opacity")) {
        openSlider(MenuSliders::Kind::TextOpacity);
    } else if (word == QLatin1String("Letter Spacing")) {
        openSlider(MenuSliders::Kind::TextLetterSpacing);
    } else if (word == QLatin1String("Vertical Spacing")) {
        openSlider(MenuSliders::Kind::TextLineSpacing);
    }
}

void ToolMenus::adjustmentRow(const QString &word)
{
    // The words are compared as they are shown, "Saturaion" included.
    if (m_session.selection.selectedView) {
        if (word == QLatin1String("Opacity"))
            openSlider(MenuSliders::Kind::TextOpacity);
        return;
    }
    if (!pictureBackground())
        return;
    if (word == QLatin1String("Opacity"))
        openSlider(MenuSliders::Kind::Opacity);
    else if (word == QLatin1String("Brightness"))
        openSlider(MenuSliders::Kind::Brightness);
    else if (word == QLatin1String("Contrast"))
        openSlider(MenuSliders::Kind::Contrast);
    else if (word == QLatin1String("Saturaion"))
        openSlider(MenuSliders::Kind::Saturation);
    else if (word == QLatin1String("Flip"))
        showContent(ContentTag::flipTag);
    else if (word == QLatin1String("Feather"))
        openSlider(MenuSliders::Kind::Feather);
}

void ToolMenus::didSelectContentRow(int row)
{
    if (row < 0 || row >= m_contentRows.size())
        return;
    m_contentSelectedIndex = row;
    const int tag = m_contentTag;
    Q_EMIT barsChanged();
    m_content->select(tag, row);
}

void ToolMenus::didSelectColor(int index)
{
    const QStringList colors = MenuItems::colorsArray();
    if (index < 0 || index >= colors.size())
        return;
    m_content->applyColor(HexColor::fromString(colors.at(index)));
    Q_EMIT barsChanged();
}

void ToolMenus::openCustomColorPicker()
{
    m_screens->customColorPicker(m_content->currentColor(), this);
}

void ToolMenus::customColorPicked(const QColor &color)
{
    m_content->applyColor(color);
    Q_EMIT barsChanged();
}

void ToolMenus::showFontPopTipOnce()
{
    UserDefaults &defaults = UserDefaults::standard();
    if (defaults.boolean(DefaultsKey::hasOpenHowToUse, false))
        return;
    defaults.setBoolean(DefaultsKey::hasOpenHowToUse, true);
    m_popTipShown = true;
    Q_EMIT popTipChanged();
}

void ToolMenus::popTipTapped()
{
    hidePopTip();
    m_screens->howToUseFonts();
}

void ToolMenus::hidePopTip()
{
    if (!m_popTipShown)
        return;
    m_popTipShown = false;
    Q_EMIT popTipChanged();
}
