#pragma once

#include "cardgridvc.h"
#include "catalogstripmodel.h"
#include "viewcontroller.h"

#include <QJsonObject>
#include <QPointer>

class ServerClient;
class Storyboard;

/**
 * What the story and highlight catalog screens share: the catalog strip over the grid of the selected
 * catalog. The last known answer shows at once from the cache, then the server's answer replaces it;
 * the first catalog's first page comes with that answer, so its grid starts at page 2.
 */
class TemplateCatalogVC : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(CatalogStripModel *strip READ strip CONSTANT)
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedIndexChanged)
    /** The embedded grid of the selected catalog; null while there are no catalogs. */
    Q_PROPERTY(CardGridVC *grid READ grid NOTIFY gridChanged)
    /** The words while there is no catalog to show: loading, failed with its retry, or none. */
    Q_PROPERTY(QString stateText READ stateText NOTIFY loadingStateChanged)
    Q_PROPERTY(bool retryVisible READ retryVisible NOTIFY loadingStateChanged)
    /** The catalogs' call is on its way. */
    Q_PROPERTY(bool busy READ busy NOTIFY busyChanged)
public:
    using LoadingState = CardGridVC::LoadingState;

    /** Position in the home tabs. */
    qint64 tabIndex = 1;
    bool isVideo = false;
    qint64 subCatId;
    QList<std::shared_ptr<CategoryList>> categoryArray;
    /** The cards of the first catalog, as the sub-category's answer brought them. */
    CardListModel::Cards itemsArray;
    bool is_next_page = true;

    void setServices(ServerClient *client, const Storyboard *storyboard);

    [[nodiscard]] CatalogStripModel *strip() const { return m_strip; }
    [[nodiscard]] int selectedIndex() const { return m_selectedIndex; }
    [[nodiscard]] CardGridVC *grid() const { return m_grid; }
    [[nodiscard]] LoadingState loadingState() const { return m_loadingState; }
    [[nodiscard]] QString stateText() const;
    [[nodiscard]] bool retryVisible() const { return m_loadingState == LoadingState::Failed; }
    [[nodiscard]] bool busy() const { return m_busy; }

    void viewDidLoad() override;
    /** Another catalog of the strip: a new grid for it, which loads by itself. */
    Q_INVOKABLE void selectCatalog(int index);
    /** From the failed state, the first load again. */
    Q_INVOKABLE void retry();
    /** Opens the search for this screen's kind of templates. */
    Q_INVOKABLE void searchClicked();

Q_SIGNALS:
    void selectedIndexChanged();
    void gridChanged();
    void loadingStateChanged();
    void busyChanged();

protected:
    /** `highlight`: highlight covers (sub-category 56) in `HightlightTempVC` grids, else stories by `isVideo`. */
    TemplateCatalogVC(bool highlight, qint64 itemCount, QObject *parent);

private:
    void firstLoad();
    /** Shows an answer, cached or fresh; an answer equal to the one on screen changes nothing. */
    void show(const QJsonObject &dictionary);
    void embedGrid();
    void setLoadingState(LoadingState state);
    void setBusy(bool busy);

    QPointer<ServerClient> m_client;
    const Storyboard *m_storyboard = nullptr;
    CatalogStripModel *const m_strip;
    QPointer<CardGridVC> m_grid;
    const bool m_highlight;
    const qint64 m_itemCount;
    int m_selectedIndex = 0;
    LoadingState m_loadingState = LoadingState::Loading;
    bool m_busy = false;
    std::optional<QJsonObject> m_shown;
    quint64 m_run = 0;
};
