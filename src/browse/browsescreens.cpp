#include "browsescreens.h"

#include "featuredtempvc.h"
#include "hightlightsearchcardvc.h"
#include "hightlightstemplatevc.h"
#include "hightlighttempvc.h"
#include "searchcardvc.h"
#include "searchcatalogvc.h"
#include "searchvc.h"
#include "storyboard.h"
#include "templatevc.h"

namespace BrowseScreens {

namespace {

QUrl view(const QString &file)
{
    return QUrl(QStringLiteral("qrc:/Quillet/Browse/") + file);
}

/** A screen that talks to the server and opens others by identifier. */
template<class Screen>
void addServed(Storyboard &storyboard, const QString &identifier, const QString &file, ServerClient *client)
{
    storyboard.registerFactory(identifier, view(file), [&storyboard, client] {
        auto *screen = new Screen();
        screen->setServices(client, &storyboard);
        return screen;
    });
}

} // namespace

void registerScreens(Storyboard &storyboard, ServerClient *client, CreateOwnVC::RatioSource ratios)
{
    addServed<TemplateVC>(storyboard, QStringLiteral("TemplateVC"), QStringLiteral("TemplateCatalogView.qml"), client);
    addServed<HightlightsTemplateVC>(
        storyboard, QStringLiteral("HightlightsTemplateVC"), QStringLiteral("TemplateCatalogView.qml"), client);
    addServed<FeaturedTempVC>(storyboard, QStringLiteral("FeaturedTempVC"), QStringLiteral("CardGridView.qml"), client);
    addServed<HightlightTempVC>(
        storyboard, QStringLiteral("HightlightTempVC"), QStringLiteral("CardGridView.qml"), client);
    addServed<SearchCardVC>(storyboard, QStringLiteral("SearchCardVC"), QStringLiteral("SearchGridView.qml"), client);
    addServed<HightlightSearchCardVc>(
        storyboard, QStringLiteral("HightlightSearchCardVc"), QStringLiteral("SearchGridView.qml"), client);
    storyboard.registerFactory(
        QStringLiteral("SearchCatalogVC"), view(QStringLiteral("TagSearchView.qml")), [&storyboard] {
            auto *screen = new SearchCatalogVC();
            screen->setStoryboard(&storyboard);
            return screen;
        });
    storyboard.registerScreen<SearchVC>(QStringLiteral("SearchVC"), view(QStringLiteral("TagSearchView.qml")));
    storyboard.registerFactory(
        QStringLiteral("CreateOwnVC"), view(QStringLiteral("CreateOwnVCView.qml")), [&storyboard, ratios] {
            auto *screen = new CreateOwnVC();
            screen->setServices(ratios, &storyboard);
            return screen;
        });
}

} // namespace BrowseScreens
