#include "videopickerscreens.h"

#include "addnewbgvideovc.h"
#include "bgvideocontentcategorypagervc.h"
#include "bgvideocontentvc.h"
#include "catalogscreen.h"
#include "serverclient.h"
#include "storyboard.h"

namespace VideoPickerScreens {

namespace {

template<class Screen>
void add(Storyboard &storyboard, const QString &identifier, const QString &view, const PickerServices &services)
{
    storyboard.registerFactory(identifier, QUrl(view), [services] {
        auto *screen = new Screen();
        screen->setServices(services);
        return screen;
    });
}

} // namespace

void registerScreens(Storyboard &storyboard, ServerClient *client)
{
    const PickerServices services { client, &storyboard, {} };
    const QString pickers = QStringLiteral("qrc:/Quillet/Editor/Pickers/");
    add<BGVideoContentCategoryPagerVC>(storyboard, QStringLiteral("BGVideoContentCategoryPagerVC"),
        pickers + QStringLiteral("ContentCategoryPagerView.qml"), services);
    add<BGVideoContentVC>(storyboard, QStringLiteral("BGVideoContentVC"),
        pickers + QStringLiteral("CatalogContentPageView.qml"), services);
    add<AddNewBGVideoVC>(storyboard, QStringLiteral("AddNewBGVideoVC"),
        QStringLiteral("qrc:/Quillet/Editor/VideoPickers/AddNewBGVideoVCView.qml"), services);
}

} // namespace VideoPickerScreens
