#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>

#include <optional>

class NavigationController;
class Reachability;
class ServerClient;
class Storyboard;

/**
 * The one application object: runs the launch order, answers deep links and the connectivity watcher.
 * The window and the screens' QML are made by main(); this object holds no QML.
 */
class AppDelegate : public QObject
{
    Q_OBJECT
    /** Raised on the first launch and on every second one after it. */
    Q_PROPERTY(bool appOpenFlag READ appOpenFlag CONSTANT)
public:
    AppDelegate(NavigationController *navigation, const Storyboard *storyboard, QObject *parent = nullptr);

    /** The content server's client; the launch signs in as a guest through it when no token is stored. */
    void setServerClient(ServerClient *client) { m_client = client; }
    /** The launch order, from the settings to the animated launch screen as the root. */
    void didFinishLaunching();
    [[nodiscard]] bool appOpenFlag() const { return m_appOpenFlag; }

    /**
     * Reads "app_open_count" and stores its next value. The stored value alternates between 0 and 1:
     * absent or 1 stores 0 and raises the flag, anything else stores 1 and lowers it.
     */
    static bool advanceLaunchParity();

    /** The search text of a deep link whose first query item is a non-empty "search", else nothing. */
    [[nodiscard]] static std::optional<QString> searchQuery(const QUrl &url);
    /**
     * A deep link: opens the search screen for a "search" link, over the home screen once it is there;
     * false for every other link.
     */
    Q_INVOKABLE bool openUrl(const QUrl &url, const QString &sourceApplication = QString());

    /** The connectivity watcher's report. */
    void reachabilityChanged(bool reachable);

    /** The application runs in portrait only, whatever a screen asks. */
    [[nodiscard]] static Qt::ScreenOrientations supportedInterfaceOrientations() { return Qt::PortraitOrientation; }

Q_SIGNALS:
    /** The libraries with connections of their own may resume. */
    void networkResumed();

private:
    void startReachability();
    void openSearch(const QString &text);
    QPointer<NavigationController> m_navigation;
    ServerClient *m_client = nullptr; // owned by main(), outlives this
    Reachability *m_reachability = nullptr;
    const Storyboard *m_storyboard;
    bool m_appOpenFlag = false;
};
