#pragma once

#include "viewcontroller.h"

#include <QList>
#include <QStringList>

class Storyboard;

/**
 * The home screen: four tabs of designs, each filled by its own screen ("Images", "Videos", "Highlights",
 * "My Story"). A tab's screen is made the first time the tab shows and stays for the life of the home.
 */
class HomeVC : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QStringList tabTitles READ tabTitles CONSTANT)
    Q_PROPERTY(int selectedTab READ selectedTab WRITE setSelectedTab NOTIFY selectedTabChanged)
    /** The screen of each tab; null for a tab not shown yet, or whose screen is not built. */
    Q_PROPERTY(QList<QObject *> tabScreens READ tabScreens NOTIFY tabScreensChanged)
    /** The tab shown has templates to search. */
    Q_PROPERTY(bool searchAvailable READ searchAvailable NOTIFY searchAvailableChanged)
public:
    explicit HomeVC(QObject *parent = nullptr);

    /** Where the tabs' screens come from. */
    void setStoryboard(const Storyboard *storyboard) { m_storyboard = storyboard; }

    [[nodiscard]] QStringList tabTitles() const;
    [[nodiscard]] int selectedTab() const { return m_selectedTab; }
    void setSelectedTab(int tab);
    [[nodiscard]] QList<QObject *> tabScreens() const { return m_tabScreens; }
    [[nodiscard]] bool searchAvailable() const;

    /** Shows the first tab. */
    void viewDidLoad() override;
    /** The search of the tab shown. */
    Q_INVOKABLE void searchClicked();
    /** A design of the user's own size. */
    Q_INVOKABLE void createOwnClicked();

Q_SIGNALS:
    void selectedTabChanged();
    void tabScreensChanged();
    void searchAvailableChanged();

private:
    void showTab(int tab);

    const Storyboard *m_storyboard = nullptr;
    int m_selectedTab = 0;
    QList<QObject *> m_tabScreens { nullptr, nullptr, nullptr, nullptr };
};
