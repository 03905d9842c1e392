#include "searchcatalogvc.h"

#include "applog.h"
#include "navigationcontroller.h"
#include "searchgridvc.h"
#include "serverclient.h"
#include "storyboard.h"

SearchCatalogVC::SearchCatalogVC(QObject *parent)
    : TagSearchVC(parent)
{
    setTitle(QStringLiteral("SEARCH"));
    tagArray = storyTags();
}

QStringList SearchCatalogVC::storyTags()
{
    return { QStringLiteral("Fashion"), QStringLiteral("Food and Drink"), QStringLiteral("Travel"),
        QStringLiteral("Offers & Sales"), QStringLiteral("Home Decor"), QStringLiteral("Sports"),
        QStringLiteral("Healthcare"), QStringLiteral("Event"), QStringLiteral("Photography"), QStringLiteral("Fitness"),
        QStringLiteral("Grand Opening") };
}

QStringList SearchCatalogVC::tagArrayForHightsLights()
{
    return { QStringLiteral("Food"), QStringLiteral("Fitness"), QStringLiteral("Beauty"), QStringLiteral("Fashion"),
        QStringLiteral("Travel"), QStringLiteral("Art"), QStringLiteral("Business"), QStringLiteral("Dance"),
        QStringLiteral("Music"), QStringLiteral("Writer"), QStringLiteral("Entertainment"), QStringLiteral("Logo"),
        QStringLiteral("Pets"), QStringLiteral("Building"), QStringLiteral("Sports"), QStringLiteral("Photography"),
        QStringLiteral("Event"), QStringLiteral("NGO"), QStringLiteral("Club"), QStringLiteral("Education") };
}

QStringList SearchCatalogVC::tags() const
{
    return isHightlight ? tagArrayForHightsLights() : tagArray;
}

void SearchCatalogVC::viewWillAppear()
{
    // Only the first appearance searches: coming back from the results shows the tags.
    if (!isUniversalLink || searchTxt.isEmpty())
        return;
    isUniversalLink = false;
    setSearchBarText(searchTxt);
    confirmSearch();
}

void SearchCatalogVC::search(const QString &text)
{
    NavigationController *stack = navigationController();
    if (!stack || !m_storyboard)
        return;
    const QString identifier
        = isHightLightEditor ? QStringLiteral("HightlightSearchCardVc") : QStringLiteral("SearchCardVC");
    ViewController *screen = m_storyboard->instantiate(identifier);
    auto *results = qobject_cast<SearchGridVC *>(screen);
    if (!results) {
        AppLog::print(QStringLiteral("no screen ") + identifier);
        delete screen;
        return;
    }
    ServerClient::setSearchMessage(QStringLiteral("Results"));
    results->searchTxt = text;
    results->isVideo = isVideo && !isHightLightEditor;
    stack->push(results);
}
