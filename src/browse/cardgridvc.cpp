#include "cardgridvc.h"

#include "applog.h"
#include "navigationcontroller.h"
#include "processclock.h"
#include "reachability.h"
#include "serverclient.h"
#include "showimagesample.h"
#include "storyboard.h"

CardGridVC::CardGridVC(qint64 itemCount, bool highlight, QObject *parent)
    : ViewController(parent)
    , m_itemCount(itemCount)
    , m_items(new CardListModel(this))
    , m_highlight(highlight)
{ }

void CardGridVC::setServices(ServerClient *client, const Storyboard *storyboard)
{
    m_client = client;
    m_storyboard = storyboard;
}

void CardGridVC::setItems(const CardListModel::Cards &cards)
{
    m_items->setCards(cards);
    setLoadingState(LoadingState::Loaded);
}

QString CardGridVC::stateText() const
{
    switch (m_loadingState) {
    case LoadingState::Loading:
        return m_items->count() == 0 ? QStringLiteral("Loading...") : QString();
    case LoadingState::Failed:
        return QStringLiteral("Unable to find data.\nTap to Retry");
    case LoadingState::Loaded:
        return m_items->count() == 0 ? QStringLiteral("No items found.") : QString();
    }
    return {};
}

void CardGridVC::setIsPad(bool pad)
{
    if (pad == m_isPad)
        return;
    m_isPad = pad;
    Q_EMIT isPadChanged();
}

QSizeF CardGridVC::cardSize(qreal screenWidth, qreal screenHeight)
{
    const qreal width = (qMin(screenWidth, screenHeight) - 2 * sectionInset - interItemSpacing) / 2;
    return { width, width * 845 / 475 };
}

void CardGridVC::viewDidLoad()
{
    if (m_items->count() == 0)
        firstLoad();
}

std::optional<QJsonObject> CardGridVC::cached(qint64) const
{
    return std::nullopt;
}

void CardGridVC::firstLoad()
{
    ++m_run;
    page = 1;
    setLoadingState(LoadingState::Loading);
    if (const auto entry = cached(page)) {
        const Page first = read(*entry);
        if (!first.cards.isEmpty()) {
            ++page;
            m_items->setCards(first.cards);
            is_next_page = first.isNextPage;
            setLoadingState(LoadingState::Loaded);
        }
    }
    if (offline()) {
        if (m_items->count() == 0)
            setLoadingState(LoadingState::Failed);
        return;
    }
    fetch(page);
}

void CardGridVC::footerRefresh()
{
    // The footer may fire again while a page is on its way: one start at a time.
    if (m_isRefreshing || busy())
        return;
    setRefreshing(true);
    if (const auto entry = cached(page)) {
        const Page next = read(*entry);
        if (!next.cards.isEmpty()) {
            m_items->append(next.cards);
            ++page;
            setRefreshing(false);
            return;
        }
    }
    if (!is_next_page) {
        setRefreshing(false);
        return;
    }
    fetch(page);
}

void CardGridVC::fetch(qint64 pageNumber)
{
    if (!m_client) {
        setRefreshing(false);
        if (m_items->count() == 0)
            setLoadingState(LoadingState::Failed);
        return;
    }
    const quint64 run = m_run;
    addCalls(1);
    send(pageNumber,
        [this, run, pageNumber](
            const std::optional<QJsonObject> &dictionary, const std::optional<ApiError> &, bool usable) {
            addCalls(-1);
            if (run != m_run)
                return;
            if (!usable) {
                // With cards on screen a failure stays silent.
                setRefreshing(false);
                if (m_items->count() == 0)
                    setLoadingState(LoadingState::Failed);
                return;
            }
            takePage(pageNumber, dictionary ? read(*dictionary) : Page {});
        });
}

void CardGridVC::takePage(qint64 pageNumber, const Page &answer)
{
    if (pageNumber == 1)
        m_items->setCards(answer.cards);
    else
        m_items->append(answer.cards);
    page = pageNumber + 1;
    is_next_page = answer.isNextPage;
    setLoadingState(LoadingState::Loaded);
    setRefreshing(false);
}

void CardGridVC::retry()
{
    if (m_loadingState == LoadingState::Failed)
        firstLoad();
}

void CardGridVC::didSelectItem(int row)
{
    const std::shared_ptr<Json> card = m_items->card(row);
    NavigationController *stack = navigationController();
    if (!card || !stack || !m_storyboard)
        return;
    selectedIndex = row;
    const QString identifier = isVideo ? QStringLiteral("ShowVideoSample") : QStringLiteral("ShowImageSample");
    ViewController *screen = m_storyboard->instantiate(identifier);
    if (auto *sample = qobject_cast<TemplateSample *>(screen)) {
        // The preview and the editor change their document in place; the grid keeps its card.
        sample->contentJson = card->copy();
        sample->deviceOrientation = TemplateSample::orientationFor(*card);
        if (auto *image = qobject_cast<ShowImageSample *>(sample))
            image->isHightLightEditor = m_highlight;
        stack->push(sample);
    } else {
        AppLog::print(QStringLiteral("no screen ") + identifier);
        delete screen;
    }
    // A second tap on the same card starts anew.
    selectedIndex.reset();
}

void CardGridVC::willDisplayCell(int row)
{
    const bool visible = row >= goToTopRow(m_isPad);
    if (visible == m_goToTopVisible)
        return;
    m_goToTopVisible = visible;
    Q_EMIT goToTopVisibleChanged();
}

void CardGridVC::gridShown()
{
    static bool logged = false;
    if (logged || m_items->count() == 0)
        return;
    logged = true;
    AppLog::print(QStringLiteral("first grid shown after %1 ms").arg(ProcessClock::msSinceStart()));
}

bool CardGridVC::offline() const
{
    const QString host = m_client ? m_client->connection().serverUrl().host() : QString();
    return Reachability(host).connection() == Reachability::Connection::Unavailable;
}

void CardGridVC::setLoadingState(LoadingState state)
{
    m_loadingState = state;
    Q_EMIT loadingStateChanged();
}

void CardGridVC::setRefreshing(bool refreshing)
{
    if (refreshing == m_isRefreshing)
        return;
    m_isRefreshing = refreshing;
    Q_EMIT isRefreshingChanged();
}

void CardGridVC::addCalls(int delta)
{
    m_calls += delta;
    if (m_calls == delta || m_calls == 0)
        Q_EMIT busyChanged();
}
