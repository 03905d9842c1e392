#include "menucontent.h"

#include "addtextvc.h"
#include "appassets.h"
#include "backgroundimageview.h"
#include "backgroundtools.h"
#include "canvasbackground.h"
#include "editorsession.h"
#include "fontregistry.h"
#include "menuscreens.h"
#include "photofilters.h"
#include "resizableimageview.h"
#include "resizableview.h"
#include "stickerimageview.h"
#include "toolmenus.h"

namespace {

// A tap on an arrow moves the layer this far, in canvas points.
constexpr qreal nudgeStep = 2.0;

// Rows of words, each under `image` when one is given.
QList<MenuItem> wordRows(const QStringList &words, const QString &image = {})
{
    QList<MenuItem> items;
    for (const QString &word : words)
        items.append({ image, word, image.isEmpty() ? QString() : image + QStringLiteral("_select") });
    return items;
}

} // namespace

MenuContent::MenuContent(EditorSession &session, MenuScreens &screens)
    : m_session(session)
    , m_screens(screens)
{ }

bool MenuContent::isList(int contentTag)
{
    return contentTag != 0 && contentTag != ContentTag::textColorTag && contentTag != ContentTag::bgDetailsTag
        && contentTag != ContentTag::stickerDetailsTag + 4;
}

QList<MenuItem> MenuContent::rows(int contentTag) const
{
    switch (contentTag) {
    case ContentTag::editTextTag:
        return MenuItems::fontEditItemArray();
    case ContentTag::fontStyleTag: {
        QStringList names;
        for (const FontItem &item : AddTextVC::defaultFontItems())
            names.append(AddTextVC::rowTitle(item));
        return wordRows(names);
    }
    case ContentTag::alignmentTag:
        return MenuItems::pictureRows(MenuItems::alignmentItemsArray());
    case ContentTag::flipTag:
        return hasPicture() ? MenuItems::pictureRows(MenuItems::flipItemsArray()) : QList<MenuItem>();
    case ContentTag::filterTag: {
        if (!hasPicture())
            return {};
        QStringList names;
        for (const FilterItem &item : PhotoFilters::filterItemsArray())
            names.append(item.name);
        return wordRows(names, QStringLiteral("menu_filter"));
    }
    case ContentTag::textureDetailsTag:
        return MenuItems::pictureRows(MenuItems::texturePatternItemsArray());
    case ContentTag::bgDetailsTag + 1:
        return MenuItems::pictureRows(MenuItems::bgPatternItemsArray() + MenuItems::texturePatternItemsArray());
    case ContentTag::stickerDetailsTag:
        return MenuItems::stickerEditItems();
    case ContentTag::stickerDetailsTag + ContentTag::stickerShapeCropIndex:
        return MenuItems::shapeCropItemsArray();
    default:
        return {};
    }
}

void MenuContent::select(int contentTag, int row)
{
    const QList<MenuItem> items = rows(contentTag);
    if (row < 0 || row >= items.size())
        return;
    switch (contentTag) {
    case ContentTag::editTextTag:
        if (row == 0)
            m_screens.editText();
        else
            nudge(row);
        break;
    case ContentTag::stickerDetailsTag:
        // Row 1, "Erase", belongs to the eraser screen, which this editor does not have yet.
        if (row == 0)
            m_screens.replaceSticker();
        else if (row >= 2)
            nudge(row - 1);
        break;
    case ContentTag::stickerDetailsTag + ContentTag::stickerShapeCropIndex:
        // Row 1, "Crop to Shape", belongs to the shape crop tool, which this editor does not have yet.
        if (row == 0)
            m_screens.cropSticker();
        break;
    case ContentTag::fontStyleTag:
        applyFont(row);
        break;
    case ContentTag::alignmentTag:
        applyStyle(row);
        break;
    case ContentTag::flipTag:
        m_session.backgroundTools()->flip(row);
        break;
    case ContentTag::filterTag:
        m_session.backgroundTools()->selectFilter(row);
        break;
    case ContentTag::textureDetailsTag:
        applyTexture(items.at(row).image);
        break;
    case ContentTag::bgDetailsTag + 1:
        m_session.background().takePattern(AppAssets::image(items.at(row).image));
        break;
    default:
        break;
    }
}

bool MenuContent::hasPicture() const
{
    return !m_session.backgroundImageView->image().isNull();
}

QString MenuContent::fontFamily(const QString &fontName)
{
    const std::optional<QFont> font = FontRegistry::shared().font(fontName, 17.0);
    return font ? font->family() : QString();
}

void MenuContent::applyFont(int row)
{
    ResizableView *text = m_session.selection.selectedView;
    const QList<FontItem> fonts = AddTextVC::defaultFontItems();
    if (!text || row >= fonts.size())
        return;
    text->textView->fontName = fonts.at(row).name;
    text->textView->applyFontName();
    text->recordTextChange();
}

void MenuContent::applyStyle(int row)
{
    ResizableView *text = m_session.selection.selectedView;
    if (!text)
        return;
    ResizableTextView *view = text->textView;
    switch (row) {
    case 0:
        view->setAlignment(Qt::AlignLeft);
        break;
    case 1:
        view->setAlignment(Qt::AlignHCenter);
        break;
    case 2:
        view->setAlignment(Qt::AlignRight);
        break;
    case 3:
        view->textUnderline = view->textUnderline ? 0 : 1;
        view->applyUnderline();
        break;
    case 4:
        view->applyUpperCase();
        break;
    case 5:
        view->applyLowerCase();
        break;
    default:
        view->applyCapitalized();
        break;
    }
    text->recordTextChange();
}

void MenuContent::applyTexture(const QString &name)
{
    ResizableView *text = m_session.selection.selectedView;
    if (!text)
        return;
    text->textView->patternColor = AppAssets::image(name);
    text->textView->applyPattern();
    text->storePattern();
}

void MenuContent::nudge(int arrow)
{
    const LayerSelection &selection = m_session.selection;
    LayerView *layer = selection.selectedView ? static_cast<LayerView *>(selection.selectedView.data())
                                              : selection.selectedIconImgView.data();
    if (!layer)
        return;
    const QPointF steps[] = { { 0, -nudgeStep }, { 0, nudgeStep }, { -nudgeStep, 0 }, { nudgeStep, 0 } };
    layer->panGesture(LayerView::Began, QPointF());
    layer->panGesture(LayerView::Changed, steps[arrow - 1]);
    layer->panGesture(LayerView::Ended, QPointF());
}

void MenuContent::applyColor(const QColor &color)
{
    const LayerSelection &selection = m_session.selection;
    if (ResizableView *text = selection.selectedView) {
        text->textView->foregroundColor = color;
        text->textView->applyForegroundColor();
        text->recordColourChange();
    } else if (ResizableImageView *sticker = selection.selectedIconImgView) {
        sticker->setStickerColor(color);
        sticker->updateStickerJson(sticker->stickerJson);
    } else {
        // The colour replaces the background's picture, gradient or pattern, as one step.
        m_session.setBackgroundColor(color);
    }
}

QColor MenuContent::currentColor() const
{
    const LayerSelection &selection = m_session.selection;
    if (const ResizableView *text = selection.selectedView)
        return text->textView->foregroundColor.value_or(QColor());
    if (const ResizableImageView *sticker = selection.selectedIconImgView)
        return sticker->contentImageView->tintColor;
    return m_session.backgroundColor().value_or(QColor());
}
