#pragma once

#include "apicall.h"
#include "viewcontroller.h"

#include <QJsonObject>
#include <QPointer>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>

class NavigationController;
class ServerClient;
class Storyboard;

/** What the picker screens are handed when the storyboard makes them. */
struct PickerServices
{
    QPointer<ServerClient> client;
    const Storyboard *storyboard = nullptr;
    /** The colour strip of the background's own page, as hexadecimal texts. */
    QStringList bgColors;
};

/**
 * A picker screen that shows an answer of the content server: the cached answer at once, then the
 * server's. A failed call shows the failed state only while nothing is shown, and retry runs the first
 * load again; answers of an earlier load are dropped.
 */
class CatalogScreen : public ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the storyboard")
    Q_PROPERTY(LoadingState loadingState READ loadingState NOTIFY loadingStateChanged)
public:
    enum class LoadingState { Loading, Loaded, Failed };
    Q_ENUM(LoadingState)

    using ViewController::ViewController;

    void setServices(const PickerServices &services) { m_services = services; }
    [[nodiscard]] const PickerServices &services() const { return m_services; }
    [[nodiscard]] LoadingState loadingState() const { return m_loadingState; }

    /** The failed state's retry: the first load again. */
    Q_INVOKABLE void retry() { startLoad(); }

Q_SIGNALS:
    void loadingStateChanged();

protected:
    using Call = std::function<void(ServerClient &client, QObject *context, ApiCompletion completion)>;

    /** Makes the screen's first load: calls load() with its cached answer and its call. */
    virtual void startLoad() = 0;
    /** Shows an answer; returns whether the screen shows content after it. */
    virtual bool show(const QJsonObject &answer) = 0;

    void load(const std::optional<QJsonObject> &cached, const Call &call);
    /** This screen's stack, or, for a page inside a pager, the pager's. */
    [[nodiscard]] NavigationController *navigation() const;
    /** An alert with one "OK" over the screen's stack. */
    void showMessage(const QString &message) const;

private:
    void setLoadingState(LoadingState state);

    PickerServices m_services;
    LoadingState m_loadingState = LoadingState::Loading;
    bool m_showsContent = false;
    quint64 m_generation = 0;
};
