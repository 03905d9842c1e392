#include "appdelegate.h"

#include "navigationcontroller.h"
#include "storyboard.h"
#include "userdefaults.h"

#include <QUrlQuery>

#include <cstdio>

AppDelegate::AppDelegate(NavigationController *navigation, const Storyboard *storyboard, QObject *parent)
    : QObject(parent)
    , m_navigation(navigation)
    , m_storyboard(storyboard)
{
}

void AppDelegate::didFinishLaunching()
{
    m_appOpenFlag = advanceLaunchParity();
    auto &defaults = UserDefaults::standard();
    defaults.setBoolean(DefaultsKey::isCachingImages, false);
    defaults.setBoolean(DefaultsKey::isCachingAdv, false);
    std::printf("remove ShapeCrop library from memory\n");
    std::fflush(stdout);
    if (m_navigation && m_storyboard) {
        if (ViewController *launch = m_storyboard->instantiate(QStringLiteral("AnimatedLaunchScreen")))
            m_navigation->setRoot(launch);
    }
}

bool AppDelegate::advanceLaunchParity()
{
    auto &defaults = UserDefaults::standard();
    const std::optional<qint64> count = defaults.integer(DefaultsKey::appOpenCount);
    const bool raise = !count || *count == 1;
    defaults.setInteger(DefaultsKey::appOpenCount, raise ? 0 : 1);
    return raise;
}

std::optional<QString> AppDelegate::searchQuery(const QUrl &url)
{
    if (!url.isValid() || !url.hasQuery())
        return std::nullopt;
    const auto items = QUrlQuery(url).queryItems(QUrl::FullyDecoded);
    if (items.isEmpty())
        return std::nullopt;
    const auto &first = items.first();
    if (first.first != QLatin1String("search") || first.second.isEmpty())
        return std::nullopt;
    return first.second;
}

bool AppDelegate::openUrl(const QUrl &url, const QString &sourceApplication)
{
    std::printf("source application = %s\n", qPrintable(sourceApplication));
    if (!url.isValid() || !url.hasQuery() || QUrlQuery(url).isEmpty()) {
        std::printf("Invalid URL or album path missing\n");
        return false;
    }
    const std::optional<QString> search = searchQuery(url);
    if (!search)
        return false;
    std::printf("search query = %s\n", qPrintable(*search));
    std::fflush(stdout);
    if (m_navigation && m_storyboard) {
        if (ViewController *vc = m_storyboard->instantiate(QStringLiteral("SearchCatalogVC"))) {
            vc->setProperty("searchTxt", *search);
            vc->setProperty("isUniversalLink", true);
            m_navigation->push(vc, false);
        }
    }
    return true;
}

void AppDelegate::reachabilityChanged(bool reachable)
{
    if (reachable) {
        Q_EMIT networkResumed();
    } else {
        std::printf("Network not reachable\n");
        std::fflush(stdout);
    }
}
