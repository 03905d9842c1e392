#pragma once

#include "panelmodel.h"
#include "viewcontroller.h"

#include <QList>
#include <QObject>
#include <QPointer>

class AlertModel;

/**
 * A stack of screens with modal presentation on top, as the screens of the application push and
 * present one another. It owns the controllers on its stack. The QML side listens to the signals and
 * shows the view of each controller; nothing here needs QML.
 */
class NavigationController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(ViewController *topViewController READ topViewController NOTIFY stackChanged)
    Q_PROPERTY(QString topIdentifier READ topIdentifier NOTIFY stackChanged)
    Q_PROPERTY(int depth READ depth NOTIFY stackChanged)
    /** The alert on screen, or null. */
    Q_PROPERTY(AlertModel *alert READ alert NOTIFY alertChanged)
    /** The blocking notice on screen, or null. */
    Q_PROPERTY(PanelModel *panel READ panel NOTIFY panelChanged)
public:
    explicit NavigationController(QObject *parent = nullptr);
    ~NavigationController() override;

    [[nodiscard]] ViewController *topViewController() const;
    [[nodiscard]] QString topIdentifier() const;
    [[nodiscard]] int depth() const { return int(m_stack.size()); }
    [[nodiscard]] QList<ViewController *> viewControllers() const { return m_stack; }
    [[nodiscard]] AlertModel *alert() const { return m_alerts.isEmpty() ? nullptr : m_alerts.first(); }
    [[nodiscard]] PanelModel *panel() const { return m_panels.isEmpty() ? nullptr : m_panels.last(); }

    /** Replaces the whole stack by `root`. */
    void setRoot(ViewController *root);
    Q_INVOKABLE void push(ViewController *vc, bool animated = true);
    /** Pops the top controller, which is deleted later; never pops the root. */
    Q_INVOKABLE void pop(bool animated = true);
    void popTo(ViewController *vc, bool animated = true);
    void popToRoot(bool animated = true);
    /** Presents a controller modally over the stack; dismiss() removes it. */
    void present(ViewController *vc, bool animated = true);
    Q_INVOKABLE void dismiss(bool animated = true);
    /** Shows an alert; alerts queue up and show one at a time. Takes ownership. */
    void presentAlert(AlertModel *alert);
    /** Shows a blocking notice over everything until it is dismissed; the newest shows. Takes ownership. */
    void presentPanel(PanelModel *panel);
    /** Takes the notice away and deletes it later. */
    void dismissPanel(PanelModel *panel);

Q_SIGNALS:
    void stackChanged();
    void pushed(ViewController *vc, bool animated);
    void popped(int newDepth, bool animated);
    void rootReplaced(ViewController *root);
    void alertChanged();
    void panelChanged();

private:
    void adopt(ViewController *vc);
    void appear(ViewController *vc);
    void release(ViewController *vc);
    QList<ViewController *> m_stack;
    QList<AlertModel *> m_alerts;
    QList<PanelModel *> m_panels;
};
