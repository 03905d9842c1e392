#include "viewcontroller.h"

#include "navigationcontroller.h"

ViewController::ViewController(QObject *parent)
    : QObject(parent)
{ }

void ViewController::setTitle(const QString &title)
{
    if (m_title == title)
        return;
    m_title = title;
    Q_EMIT titleChanged();
}

NavigationController *ViewController::navigationController() const
{
    return m_navigation.data();
}
