#pragma once

#include "viewcontroller.h"

#include <QStringList>

/** The home screen: four tabs of designs, each filled by its own catalog screen. */
class HomeVC : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QStringList tabTitles READ tabTitles CONSTANT)
    Q_PROPERTY(int selectedTab READ selectedTab WRITE setSelectedTab NOTIFY selectedTabChanged)
public:
    explicit HomeVC(QObject *parent = nullptr);

    [[nodiscard]] QStringList tabTitles() const;
    [[nodiscard]] int selectedTab() const { return m_selectedTab; }
    void setSelectedTab(int tab);

Q_SIGNALS:
    void selectedTabChanged();

private:
    int m_selectedTab = 0;
};
