#include "homevc.h"

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
    Q_EMIT selectedTabChanged();
}
