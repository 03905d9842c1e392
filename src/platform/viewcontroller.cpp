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
    if (m_navigation)
        return m_navigation.data();
    const auto *parentScreen = qobject_cast<const ViewController *>(parent());
    return parentScreen ? parentScreen->navigationController() : nullptr;
}

void ViewController::addChildViewController(ViewController *child)
{
    child->setParent(this);
    if (!child->m_loaded) {
        child->m_loaded = true;
        child->viewDidLoad();
    }
}

void ViewController::goBack()
{
    if (NavigationController *stack = navigationController(); stack && stack->topViewController() == this)
        stack->pop();
}
