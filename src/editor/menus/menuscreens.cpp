#include "menuscreens.h"

#include "addtextvc.h"
#include "bgcontentcategorypagervc.h"
#include "cropviewcontroller.h"
#include "customcolorpicker.h"
#include "editorsession.h"
#include "navigationcontroller.h"
#include "picturesourcesheet.h"
#include "resizableimageview.h"
#include "resizableview.h"
#include "stickercontentcategorypagervc.h"
#include "stickerimageview.h"
#include "storyboard.h"

namespace {

struct StickerCategory
{
    qint64 id;
    const char *name;
};

constexpr StickerCategory graphics { 47, "Graphics" };
constexpr StickerCategory shapes { 49, "Shapes" };
constexpr StickerCategory textArts { 50, "Text Arts" };
constexpr StickerCategory frames { 57, "Frame" };
constexpr StickerCategory icons { 58, "Icon" };

} // namespace

MenuScreens::MenuScreens(EditorSession &session)
    : m_session(session)
{ }

template<class Screen> void MenuScreens::push(const QString &identifier, const std::function<void(Screen &)> &setup)
{
    const Storyboard *storyboard = m_session.storyboard();
    NavigationController *navigation = m_session.navigationController();
    if (!storyboard || !navigation)
        return;
    ViewController *made = storyboard->instantiate(identifier);
    auto *screen = qobject_cast<Screen *>(made);
    if (!screen) {
        delete made;
        return;
    }
    if (setup)
        setup(*screen);
    navigation->push(screen);
}

void MenuScreens::backgroundPager()
{
    push<ContentCategoryPager>(QStringLiteral("BGContentCategoryPagerVC"), [this](ContentCategoryPager &pager) {
        pager.vcTag = 1;
        pager.superController = &m_session;
    });
}

bool MenuScreens::openTopRow(EditorKind kind, int row)
{
    // The rows act by their number, not by their word.
    if (kind == EditorKind::HighLight) {
        switch (row) {
        case 0:
            backgroundPager();
            return true;
        case 1:
            stickerPager(frames.id, QLatin1String(frames.name), false);
            return true;
        case 2:
            stickerPager(icons.id, QLatin1String(icons.name), false);
            return true;
        case 3:
            addText();
            return true;
        default:
            return false;
        }
    }
    const bool video = kind == EditorKind::VideoPortrait || kind == EditorKind::MoreEditVideo;
    // The video editors' "Add Video" and "Music" take rows 2 and 3; their other rows follow one on.
    const int imageRow = video && row >= 4 ? row - 1 : row;
    switch (imageRow) {
    case 0:
        addText();
        return true;
    case 1: {
        m_session.deselectAll();
        const Storyboard *storyboard = m_session.storyboard();
        if (NavigationController *navigation = m_session.navigationController(); storyboard && navigation)
            PictureSourceSheet::open(*storyboard, *navigation, ImagePickerTarget::stickerTag, false);
        return true;
    }
    case 2:
        if (video) {
            // "Add Video": the background-video pager, which hands the movie back to this editor.
            push<ContentCategoryPager>(QStringLiteral("BGVideoContentCategoryPagerVC"),
                [kind](ContentCategoryPager &pager) { pager.vcTag = kind == EditorKind::MoreEditVideo ? 2 : 1; });
            return true;
        }
        backgroundPager();
        return true;
    case 3:
    case 4:
    case 5: {
        const StickerCategory category = imageRow == 3 ? graphics : imageRow == 4 ? shapes : textArts;
        m_session.setTintColor = false;
        stickerPager(category.id, QLatin1String(category.name), false);
        return true;
    }
    case 6:
        ownPictures(QStringLiteral("MyArtVC"));
        return true;
    case 7:
        if (video)
            return false;
        ownPictures(QStringLiteral("MyDesignVC"));
        return true;
    default:
        return false;
    }
}

void MenuScreens::stickerPager(qint64 categoryId, const QString &name, bool replacing)
{
    const ResizableImageView *sticker = m_session.selection.selectedIconImgView;
    push<StickerContentCategoryPagerVC>(
        QStringLiteral("StickerContentCategoryPagerVC"), [&](StickerContentCategoryPagerVC &pager) {
            pager.categoryId = categoryId;
            pager.categoryName = name;
            // The pagers hand a sticker back as a replacement of the selected one, when there is one.
            pager.vcTag = 1;
            pager.superController = &m_session;
            if (replacing && sticker && sticker->stickerJson)
                pager.selected_sticker_catalog_id = sticker->stickerJson->selected_sticker_catalog_id;
        });
}

void MenuScreens::ownPictures(const QString &identifier)
{
    push<ViewController>(identifier, [](ViewController &screen) { screen.setProperty("vcTag", 1); });
}

void MenuScreens::addText()
{
    m_session.keepBgOriginalFrame();
    m_session.deselectAll();
    push(QStringLiteral("AddTextVC"));
}

void MenuScreens::editText()
{
    const ResizableView *text = m_session.selection.selectedView;
    if (!text)
        return;
    push<AddTextVC>(QStringLiteral("AddTextVC"), [text](AddTextVC &entry) {
        entry.editText = text->textView->text();
        entry.editFont = text->textView->fontName;
        entry.editColor = text->textView->foregroundColor;
    });
}

void MenuScreens::replaceSticker()
{
    const ResizableImageView *sticker = m_session.selection.selectedIconImgView;
    if (!sticker)
        return;
    const qint64 category
        = sticker->stickerJson ? sticker->stickerJson->selected_sticker_id.value_or(graphics.id) : graphics.id;
    const QString name = category == shapes.id ? QLatin1String(shapes.name)
        : category == textArts.id              ? QLatin1String(textArts.name)
                                               : QLatin1String(graphics.name);
    m_session.setTintColor = true;
    stickerPager(category, name, true);
}

void MenuScreens::cropSticker()
{
    const ResizableImageView *sticker = m_session.selection.selectedIconImgView;
    const Storyboard *storyboard = m_session.storyboard();
    NavigationController *navigation = m_session.navigationController();
    if (!sticker || !storyboard || !navigation)
        return;
    const StickerImageView *picture = sticker->contentImageView;
    m_session.setImagePickerTag(ImagePickerTarget::selectedLayerTag);
    CropViewController::present(*storyboard, *navigation, picture->tintedImage.value_or(picture->image()), &m_session);
}

void MenuScreens::customColorPicker(const QColor &start, QObject *delegate)
{
    push<CustomColorPicker>(QStringLiteral("CustomColorPicker"), [&start, delegate](CustomColorPicker &picker) {
        picker.defaultColor = start.isValid() ? start : QColor(Qt::white);
        picker.delegate = delegate;
    });
}

void MenuScreens::howToUseFonts()
{
    push(QStringLiteral("FontpickerHowToUseVC"));
}
