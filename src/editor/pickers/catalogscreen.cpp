#include "catalogscreen.h"

#include "alertmodel.h"
#include "navigationcontroller.h"
#include "serverclient.h"

void CatalogScreen::load(const std::optional<QJsonObject> &cached, const Call &call)
{
    const quint64 generation = ++m_generation;
    m_showsContent = cached && show(*cached);
    setLoadingState(m_showsContent ? LoadingState::Loaded : LoadingState::Loading);
    ServerClient *client = m_services.client;
    if (!client) {
        setLoadingState(m_showsContent ? LoadingState::Loaded : LoadingState::Failed);
        return;
    }
    call(*client, this,
        [this, generation](const std::optional<QJsonObject> &dictionary, const std::optional<ApiError> &, bool usable) {
            if (generation != m_generation)
                return;
            if (usable && dictionary) {
                m_showsContent = show(*dictionary);
                setLoadingState(LoadingState::Loaded);
            } else if (!m_showsContent) {
                setLoadingState(LoadingState::Failed);
            }
        });
}

NavigationController *CatalogScreen::navigation() const
{
    if (NavigationController *own = navigationController())
        return own;
    const auto *pager = qobject_cast<const ViewController *>(parent());
    return pager ? pager->navigationController() : nullptr;
}

void CatalogScreen::showMessage(const QString &message) const
{
    if (NavigationController *stack = navigation())
        stack->presentAlert((new AlertModel(QString(), message))->addAction(QStringLiteral("OK")));
}

void CatalogScreen::setLoadingState(LoadingState state)
{
    if (state == m_loadingState)
        return;
    m_loadingState = state;
    Q_EMIT loadingStateChanged();
}
