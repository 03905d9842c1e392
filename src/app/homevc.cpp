#include "homevc.h"

#include "navigationcontroller.h"
#include "storyboard.h"
#include "templatecatalogvc.h"

HomeVC::HomeVC(QObject *parent)
    : ViewController(parent)
{
    setTitle(QStringLiteral("Quillet"));
}

QStringList HomeVC::tabTitles() const
{
    return { QStringLiteral("Images"), QStringLiteral("Videos"), QStringLiteral("Highlights"),
        QStringLiteral("My Story") };
}

void HomeVC::setSelectedTab(int tab)
{
    if (tab == m_selectedTab || tab < 0 || tab >= tabTitles().size())
        return;
    m_selectedTab = tab;
    showTab(tab);
    Q_EMIT selectedTabChanged();
    Q_EMIT searchAvailableChanged();
}

bool HomeVC::searchAvailable() const
{
    return qobject_cast<TemplateCatalogVC *>(m_tabScreens.at(m_selectedTab)) != nullptr;
}

void HomeVC::viewDidLoad()
{
    showTab(m_selectedTab);
}

void HomeVC::showTab(int tab)
{
    if (m_tabScreens.at(tab) || !m_storyboard)
        return;
    // By `tabIndex`: 1 image stories, 2 video stories, 3 highlight covers, 4 the saved designs.
    static const char *const identifiers[] = { "TemplateVC", "TemplateVC", "HightlightsTemplateVC", "SavedPhotosVC" };
    ViewController *screen = m_storyboard->instantiate(QLatin1String(identifiers[tab]));
    if (!screen)
        return;
    if (auto *catalogs = qobject_cast<TemplateCatalogVC *>(screen)) {
        catalogs->tabIndex = tab + 1;
        catalogs->isVideo = tab == 1;
    }
    m_tabScreens[tab] = screen;
    addChildViewController(screen);
    Q_EMIT tabScreensChanged();
    Q_EMIT searchAvailableChanged();
}

void HomeVC::searchClicked()
{
    if (auto *catalogs = qobject_cast<TemplateCatalogVC *>(m_tabScreens.at(m_selectedTab)))
        catalogs->searchClicked();
}

void HomeVC::createOwnClicked()
{
    NavigationController *stack = navigationController();
    if (!stack || !m_storyboard)
        return;
    if (ViewController *screen = m_storyboard->instantiate(QStringLiteral("CreateOwnVC")))
        stack->push(screen);
}
