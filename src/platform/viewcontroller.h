#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>

class NavigationController;

/**
 * Base of every screen's controller. The controller holds the screen's logic and runs without a view;
 * the navigation stack creates the QML view (`viewUrl`) with the controller as its `vc` property.
 */
class ViewController : public QObject
{
    Q_OBJECT
    /** The storyboard identifier, the class name of the screen. */
    Q_PROPERTY(QString identifier READ identifier CONSTANT)
    /** The QML file that draws this screen. */
    Q_PROPERTY(QUrl viewUrl READ viewUrl CONSTANT)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)
public:
    explicit ViewController(QObject *parent = nullptr);

    [[nodiscard]] QString identifier() const { return m_identifier; }
    [[nodiscard]] QUrl viewUrl() const { return m_viewUrl; }
    [[nodiscard]] QString title() const { return m_title; }
    void setTitle(const QString &title);
    /** The stack this screen is on; a child screen shares its parent's. */
    [[nodiscard]] NavigationController *navigationController() const;

    /**
     * Shows `child` inside this screen (a tab, an embedded grid): this screen owns it, it reaches the same
     * navigation controller, and it loads now.
     */
    void addChildViewController(ViewController *child);

    /** The back button: leaves this screen when it is the top of its stack. */
    Q_INVOKABLE void goBack();

    /** Called once, when the controller is first shown. */
    virtual void viewDidLoad() { }
    /** Called each time the controller comes on top of its stack again. */
    virtual void viewWillAppear() { }
    virtual void viewWillDisappear() { }

Q_SIGNALS:
    void titleChanged();

private:
    friend class NavigationController;
    friend class Storyboard;
    QString m_identifier;
    QUrl m_viewUrl;
    QString m_title;
    QPointer<NavigationController> m_navigation;
    bool m_loaded = false;
};
