#include "appdelegate.h"

#include "applog.h"
#include "navigationcontroller.h"
#include "reachability.h"
#include "serverclient.h"
#include "storyboard.h"
#include "userdefaults.h"

#include <QUrlQuery>

AppDelegate::AppDelegate(NavigationController *navigation, const Storyboard *storyboard, QObject *parent)
    : QObject(parent)
    , m_navigation(navigation)
    , m_storyboard(storyboard)
{ }

void AppDelegate::didFinishLaunching()
{
    startReachability();
    m_appOpenFlag = advanceLaunchParity();
    auto &defaults = UserDefaults::standard();
    defaults.setBoolean(DefaultsKey::isCachingImages, false);
    defaults.setBoolean(DefaultsKey::isCachingAdv, false);
    // A stored token is renewed by the answers themselves; a failed sign-in is retried by the next call.
    if (m_client && !defaults.contains(DefaultsKey::token))
        m_client->doLoginForGuest(this, [](const auto &, const auto &, bool) {});
    AppLog::print(QStringLiteral("remove ShapeCrop library from memory"));
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
    AppLog::print(QStringLiteral("source application = ") + sourceApplication);
    if (!url.isValid() || !url.hasQuery() || QUrlQuery(url).isEmpty()) {
        AppLog::print(QStringLiteral("Invalid URL or album path missing"));
        return false;
    }
    const std::optional<QString> search = searchQuery(url);
    if (!search)
        return false;
    AppLog::print(QStringLiteral("search query = ") + *search);
    if (!m_navigation || !m_storyboard)
        return true;
    // The launch screen is about to give way to a new root: the search waits for the home screen.
    if (m_navigation->topIdentifier() == QLatin1String("AnimatedLaunchScreen")) {
        connect(
            m_navigation, &NavigationController::rootReplaced, this, [this, text = *search] { openSearch(text); },
            Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
        return true;
    }
    openSearch(*search);
    return true;
}

void AppDelegate::openSearch(const QString &text)
{
    if (ViewController *vc = m_storyboard->instantiate(QStringLiteral("SearchCatalogVC"))) {
        vc->setProperty("searchTxt", text);
        vc->setProperty("isUniversalLink", true);
        m_navigation->push(vc, false);
    }
}

void AppDelegate::startReachability()
{
    const QString host = m_client ? m_client->connection().serverUrl().host() : QString();
    m_reachability = new Reachability(host, this);
    connect(m_reachability, &Reachability::reachabilityChanged, this,
        [this] { reachabilityChanged(m_reachability->connection() != Reachability::Connection::Unavailable); });
    if (!m_reachability->startNotifier())
        AppLog::print(QStringLiteral("could not start reachability notifier"));
}

void AppDelegate::reachabilityChanged(bool reachable)
{
    if (reachable) {
        Q_EMIT networkResumed();
    } else {
        AppLog::print(QStringLiteral("Network not reachable"));
    }
}
