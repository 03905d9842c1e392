#include "templatecatalogvc.h"

#include "applog.h"
#include "cataloggridvc.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "searchcatalogvc.h"
#include "serverclient.h"
#include "storyboard.h"
#include "templatedataresponse.h"

TemplateCatalogVC::TemplateCatalogVC(bool highlight, qint64 itemCount, QObject *parent)
    : ViewController(parent)
    , subCatId(highlight ? 56 : 47)
    , m_strip(new CatalogStripModel(this))
    , m_highlight(highlight)
    , m_itemCount(itemCount)
{ }

void TemplateCatalogVC::setServices(ServerClient *client, const Storyboard *storyboard)
{
    m_client = client;
    m_storyboard = storyboard;
}

QString TemplateCatalogVC::stateText() const
{
    if (!categoryArray.isEmpty())
        return {};
    switch (m_loadingState) {
    case LoadingState::Loading:
        return QStringLiteral("Loading...");
    case LoadingState::Failed:
        return QStringLiteral("Unable to find data.\nTap to Retry");
    case LoadingState::Loaded:
        return QStringLiteral("No items found.");
    }
    return {};
}

void TemplateCatalogVC::viewDidLoad()
{
    firstLoad();
}

void TemplateCatalogVC::firstLoad()
{
    ++m_run;
    if (!m_highlight)
        subCatId = isVideo ? 48 : 47;
    setLoadingState(LoadingState::Loading);
    if (!m_client) {
        setLoadingState(LoadingState::Failed);
        return;
    }
    // The last known content shows before the network answers.
    if (const auto entry = m_client->cachedTemplateWithCatalogs(subCatId))
        show(*entry);
    const quint64 run = m_run;
    setBusy(true);
    m_client->getTemplateWithCatalogs(subCatId, 0, 1, m_itemCount, this,
        [this, run](const std::optional<QJsonObject> &dictionary, const std::optional<ApiError> &, bool usable) {
            if (run != m_run)
                return;
            setBusy(false);
            if (!usable) {
                if (!m_shown)
                    setLoadingState(LoadingState::Failed);
                return;
            }
            show(dictionary.value_or(QJsonObject()));
        });
}

void TemplateCatalogVC::show(const QJsonObject &dictionary)
{
    if (m_shown == dictionary && m_grid)
        return;
    m_shown = dictionary;
    const auto answer = Mapper::map<TemplateDataResponse>(dictionary);
    categoryArray = answer->category_list.value_or(QList<std::shared_ptr<CategoryList>>());
    categoryArray.removeAll(nullptr);
    CatalogStripModel::numberGradients(categoryArray);
    itemsArray = answer->sample_cards.value_or(CardListModel::Cards());
    is_next_page = answer->is_next_page.value_or(false);
    if (m_selectedIndex >= categoryArray.size()) {
        m_selectedIndex = 0;
        Q_EMIT selectedIndexChanged();
    }
    m_strip->setCatalogs(categoryArray);
    setLoadingState(LoadingState::Loaded);
    embedGrid();
}

void TemplateCatalogVC::embedGrid()
{
    if (CardGridVC *old = m_grid) {
        // The view lets go of the old grid before the grid goes.
        m_grid = nullptr;
        Q_EMIT gridChanged();
        old->deleteLater();
    }
    if (categoryArray.isEmpty() || !m_storyboard)
        return;
    const QString identifier = m_highlight ? QStringLiteral("HightlightTempVC") : QStringLiteral("FeaturedTempVC");
    ViewController *screen = m_storyboard->instantiate(identifier);
    auto *grid = qobject_cast<CatalogGridVC *>(screen);
    if (!grid) {
        AppLog::print(QStringLiteral("no screen ") + identifier);
        delete screen;
        return;
    }
    grid->cat_id = categoryArray.at(m_selectedIndex)->catalog_id.value_or(0);
    grid->subCatId = subCatId;
    grid->isVideo = isVideo;
    // The sub-category's answer holds the first catalog's first page: the grid goes on from page 2.
    if (m_selectedIndex == 0 && !itemsArray.isEmpty()) {
        grid->setItems(itemsArray);
        grid->page = 2;
        grid->is_next_page = is_next_page;
    }
    m_grid = grid;
    addChildViewController(grid);
    Q_EMIT gridChanged();
}

void TemplateCatalogVC::selectCatalog(int index)
{
    if (index < 0 || index >= categoryArray.size() || index == m_selectedIndex)
        return;
    m_selectedIndex = index;
    Q_EMIT selectedIndexChanged();
    embedGrid();
}

void TemplateCatalogVC::retry()
{
    if (m_loadingState == LoadingState::Failed)
        firstLoad();
}

void TemplateCatalogVC::searchClicked()
{
    NavigationController *stack = navigationController();
    if (!stack || !m_storyboard)
        return;
    ViewController *screen = m_storyboard->instantiate(QStringLiteral("SearchCatalogVC"));
    auto *search = qobject_cast<SearchCatalogVC *>(screen);
    if (!search) {
        delete screen;
        return;
    }
    search->isVideo = isVideo;
    search->isHightlight = m_highlight;
    search->isHightLightEditor = m_highlight;
    stack->push(search);
}

void TemplateCatalogVC::setLoadingState(LoadingState state)
{
    m_loadingState = state;
    Q_EMIT loadingStateChanged();
}

void TemplateCatalogVC::setBusy(bool busy)
{
    if (busy == m_busy)
        return;
    m_busy = busy;
    Q_EMIT busyChanged();
}
