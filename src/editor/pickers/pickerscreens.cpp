#include "pickerscreens.h"

#include "addnewbackgroundvc.h"
#include "addstickervc.h"
#include "bgcontentcategorypagervc.h"
#include "bgcontentvc.h"
#include "customcolorpicker.h"
#include "serverclient.h"
#include "stickercontentcategorypagervc.h"
#include "stickercontentvc.h"
#include "storyboard.h"

namespace PickerScreens {

namespace {

const QString views = QStringLiteral("qrc:/Quillet/Editor/Pickers/");

template<class Screen>
void add(Storyboard &storyboard, const QString &identifier, const QString &view, PickerServices services)
{
    storyboard.registerFactory(identifier, QUrl(views + view), [services] {
        auto *screen = new Screen();
        screen->setServices(services);
        return screen;
    });
}

} // namespace

void registerScreens(Storyboard &storyboard, ServerClient *client, const QStringList &bgColors)
{
    const PickerServices services { client, &storyboard, bgColors };
    const QString pager = QStringLiteral("ContentCategoryPagerView.qml");
    const QString catalog = QStringLiteral("CatalogContentPageView.qml");
    add<BGContentCategoryPagerVC>(storyboard, QStringLiteral("BGContentCategoryPagerVC"), pager, services);
    add<StickerContentCategoryPagerVC>(storyboard, QStringLiteral("StickerContentCategoryPagerVC"), pager, services);
    add<BGContentVC>(storyboard, QStringLiteral("BGContentVC"), catalog, services);
    add<StickerContentVC>(storyboard, QStringLiteral("StickerContentVC"), catalog, services);
    add<AddNewBackgroundVC>(
        storyboard, QStringLiteral("AddNewBackgroundVC"), QStringLiteral("AddNewBackgroundVCView.qml"), services);
    storyboard.registerScreen<AddStickerVC>(
        QStringLiteral("AddStickerVC"), QUrl(views + QStringLiteral("AddStickerVCView.qml")));
    storyboard.registerScreen<CustomColorPicker>(
        QStringLiteral("CustomColorPicker"), QUrl(views + QStringLiteral("CustomColorPickerView.qml")));
}

} // namespace PickerScreens
