#pragma once

#include "apicall.h"
#include "cardlistmodel.h"
#include "viewcontroller.h"

#include <QJsonObject>
#include <QPointer>
#include <QSizeF>

#include <optional>

class ServerClient;
class Storyboard;

/**
 * What the four card grids share (a catalog's grid and the search results, for stories and for highlight
 * covers): the first page, paging by the footer refresh with its guard against a double start, the
 * loading, failed and empty states, the go-to-top button, and a tap that opens the template's preview.
 * The subclasses say which call brings a page and whether pages are cached.
 */
class CardGridVC : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(CardListModel *items READ items CONSTANT)
    Q_PROPERTY(LoadingState loadingState READ loadingState NOTIFY loadingStateChanged)
    /** The words over an empty grid: loading, failed with its retry, or no cards; empty while cards show. */
    Q_PROPERTY(QString stateText READ stateText NOTIFY loadingStateChanged)
    /** A tap on the state retries. */
    Q_PROPERTY(bool retryVisible READ retryVisible NOTIFY loadingStateChanged)
    /** The footer refresh is running. */
    Q_PROPERTY(bool isRefreshing READ isRefreshing NOTIFY isRefreshingChanged)
    /** A call of this grid is on its way. */
    Q_PROPERTY(bool busy READ busy NOTIFY busyChanged)
    Q_PROPERTY(bool goToTopVisible READ goToTopVisible NOTIFY goToTopVisibleChanged)
    /** Set by the view: the screen is a tablet's, which moves the go-to-top row. */
    Q_PROPERTY(bool isPad READ isPad WRITE setIsPad NOTIFY isPadChanged)
public:
    enum class LoadingState { Loading, Loaded, Failed };
    Q_ENUM(LoadingState)

    /** One page of cards, as an answer or the cache gives it. */
    struct Page
    {
        CardListModel::Cards cards;
        bool isNextPage = false;
    };

    static constexpr qreal sectionInset = 10;
    static constexpr qreal interItemSpacing = 10;

    // Set by the opener before the screen loads.
    qint64 subCatId = 47;
    bool isVideo = false;
    bool is_next_page = true;
    /** The next page to ask for. */
    qint64 page = 1;
    std::optional<int> selectedIndex;

    void setServices(ServerClient *client, const Storyboard *storyboard);
    /** Cards that the opener already has: the grid shows them and goes on from `page` when scrolled. */
    void setItems(const CardListModel::Cards &cards);

    [[nodiscard]] CardListModel *items() const { return m_items; }
    [[nodiscard]] LoadingState loadingState() const { return m_loadingState; }
    [[nodiscard]] QString stateText() const;
    [[nodiscard]] bool retryVisible() const { return m_loadingState == LoadingState::Failed; }
    [[nodiscard]] bool isRefreshing() const { return m_isRefreshing; }
    [[nodiscard]] bool busy() const { return m_calls > 0; }
    [[nodiscard]] bool goToTopVisible() const { return m_goToTopVisible; }
    [[nodiscard]] bool isPad() const { return m_isPad; }
    void setIsPad(bool pad);

    /** The size of one card on a screen of this size: two columns of the smaller side. */
    [[nodiscard]] Q_INVOKABLE static QSizeF cardSize(qreal screenWidth, qreal screenHeight);
    /** The first row whose cell brings up the go-to-top button. */
    [[nodiscard]] static int goToTopRow(bool pad) { return pad ? 36 : 18; }

    /** The first page, unless the opener gave the cards. */
    void viewDidLoad() override;
    /** The footer refresh: the next page from the cache, else from the server while there is one. */
    Q_INVOKABLE void footerRefresh();
    /** From the failed state, the first load again. */
    Q_INVOKABLE void retry();
    /** Opens the card's preview. */
    Q_INVOKABLE void didSelectItem(int row);
    /** A cell came into view. */
    Q_INVOKABLE void willDisplayCell(int row);
    /** The view drew its first frame with cards; the first time in the process it is logged. */
    Q_INVOKABLE void gridShown();

Q_SIGNALS:
    void loadingStateChanged();
    void isRefreshingChanged();
    void busyChanged();
    void goToTopVisibleChanged();
    void isPadChanged();

protected:
    /** `highlight`: the cards are highlight covers, prepared for the highlight editor. */
    CardGridVC(qint64 itemCount, bool highlight, QObject *parent);

    /** Sends the call for one page of `m_itemCount` cards. */
    virtual void send(qint64 pageNumber, ApiCompletion completion) = 0;
    /** The cached answer of one page, for grids whose answers are cached. */
    [[nodiscard]] virtual std::optional<QJsonObject> cached(qint64 pageNumber) const;
    /** The cards of an answer. */
    [[nodiscard]] virtual Page read(const QJsonObject &dictionary) const = 0;

    QPointer<ServerClient> m_client;
    const qint64 m_itemCount;

private:
    void firstLoad();
    void fetch(qint64 pageNumber);
    void takePage(qint64 pageNumber, const Page &answer);
    [[nodiscard]] bool offline() const;
    void setLoadingState(LoadingState state);
    void setRefreshing(bool refreshing);
    void addCalls(int delta);

    CardListModel *const m_items;
    const Storyboard *m_storyboard = nullptr;
    const bool m_highlight;
    LoadingState m_loadingState = LoadingState::Loading;
    bool m_isRefreshing = false;
    bool m_goToTopVisible = false;
    bool m_isPad = false;
    int m_calls = 0;
    quint64 m_run = 0;
};
