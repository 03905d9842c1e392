#include "navigationcontroller.h"

#include "alertmodel.h"
#include "panelmodel.h"

NavigationController::NavigationController(QObject *parent)
    : QObject(parent)
{ }

NavigationController::~NavigationController()
{
    // Controllers go from the top down, as a stack unwinds.
    while (!m_stack.isEmpty())
        delete m_stack.takeLast();
}

ViewController *NavigationController::topViewController() const
{
    return m_stack.isEmpty() ? nullptr : m_stack.last();
}

QString NavigationController::topIdentifier() const
{
    return m_stack.isEmpty() ? QString() : m_stack.last()->identifier();
}

void NavigationController::adopt(ViewController *vc)
{
    vc->setParent(this);
    vc->m_navigation = this;
}

void NavigationController::appear(ViewController *vc)
{
    if (!vc->m_loaded) {
        vc->m_loaded = true;
        vc->viewDidLoad();
    }
    vc->viewWillAppear();
}

void NavigationController::release(ViewController *vc)
{
    vc->viewWillDisappear();
    vc->m_navigation = nullptr;
    vc->deleteLater();
}

void NavigationController::setRoot(ViewController *root)
{
    const QList<ViewController *> old = m_stack;
    m_stack.clear();
    for (auto it = old.crbegin(); it != old.crend(); ++it)
        release(*it);
    adopt(root);
    m_stack.append(root);
    Q_EMIT rootReplaced(root);
    Q_EMIT stackChanged();
    appear(root);
}

void NavigationController::push(ViewController *vc, bool animated)
{
    if (!vc)
        return;
    if (ViewController *top = topViewController())
        top->viewWillDisappear();
    adopt(vc);
    m_stack.append(vc);
    Q_EMIT pushed(vc, animated);
    Q_EMIT stackChanged();
    appear(vc);
}

void NavigationController::pop(bool animated)
{
    if (m_stack.size() < 2)
        return;
    release(m_stack.takeLast());
    Q_EMIT popped(depth(), animated);
    Q_EMIT stackChanged();
    topViewController()->viewWillAppear();
}

void NavigationController::popTo(ViewController *vc, bool animated)
{
    if (!m_stack.contains(vc) || topViewController() == vc)
        return;
    while (m_stack.last() != vc)
        release(m_stack.takeLast());
    Q_EMIT popped(depth(), animated);
    Q_EMIT stackChanged();
    vc->viewWillAppear();
}

void NavigationController::popToRoot(bool animated)
{
    if (!m_stack.isEmpty())
        popTo(m_stack.first(), animated);
}

void NavigationController::present(ViewController *vc, bool animated)
{
    // A modal screen is shown on the same stack: it covers what is below and is removed by dismiss().
    push(vc, animated);
}

void NavigationController::dismiss(bool animated)
{
    pop(animated);
}

void NavigationController::presentAlert(AlertModel *alert)
{
    alert->setParent(this);
    m_alerts.append(alert);
    connect(alert, &AlertModel::finished, this, [this, alert] {
        const bool wasShown = m_alerts.first() == alert;
        m_alerts.removeOne(alert);
        alert->deleteLater();
        if (wasShown)
            Q_EMIT alertChanged();
    });
    if (m_alerts.size() == 1)
        Q_EMIT alertChanged();
}

void NavigationController::presentPanel(PanelModel *panel)
{
    panel->setParent(this);
    m_panels.append(panel);
    Q_EMIT panelChanged();
}

void NavigationController::dismissPanel(PanelModel *panel)
{
    if (!m_panels.removeOne(panel))
        return;
    panel->deleteLater();
    Q_EMIT panelChanged();
}
