// quillet-tool browse: the cards that the catalog and search screens show, from the same controllers.
#include "toolcommand.h"

#include "apppaths.h"
#include "browsescreens.h"
#include "cataloggridvc.h"
#include "navigationcontroller.h"
#include "searchcatalogvc.h"
#include "searchgridvc.h"
#include "serverclient.h"
#include "storyboard.h"
#include "templatecatalogvc.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <functional>

namespace {

const char *const usageText
    = "browse --server URL (--sub-category N [--catalog ID] [--page P] | --search TEXT [--sub-category N])";
constexpr qint64 imageStories = 47;
constexpr qint64 videoStories = 48;
constexpr qint64 highlights = 56;

struct Options
{
    QUrl server;
    std::optional<qint64> subCategory;
    std::optional<qint64> catalog;
    std::optional<qint64> page;
    std::optional<QString> search;
};

std::optional<Options> parse(QStringList rest)
{
    Options options;
    auto number = [&rest](std::optional<qint64> &into) {
        bool ok = false;
        into = rest.takeFirst().toLongLong(&ok);
        return ok;
    };
    while (!rest.isEmpty()) {
        const QString option = rest.takeFirst();
        if (rest.isEmpty())
            return std::nullopt;
        if (option == QLatin1String("--server"))
            options.server = QUrl(rest.takeFirst());
        else if (option == QLatin1String("--search"))
            options.search = rest.takeFirst();
        else if (!(option == QLatin1String("--sub-category") && number(options.subCategory))
            && !(option == QLatin1String("--catalog") && number(options.catalog))
            && !(option == QLatin1String("--page") && number(options.page)))
            return std::nullopt;
    }
    const bool served = options.server.isValid() && !options.server.host().isEmpty();
    const bool browsing = !options.search && options.subCategory;
    const bool searching = options.search && !options.catalog && !options.page;
    if (!served || !(browsing || searching))
        return std::nullopt;
    return options;
}

/** Runs the event loop until `done`. */
void waitFor(const std::function<bool()> &done)
{
    QEventLoop loop;
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, &loop, [&] {
        if (done())
            loop.quit();
    });
    tick.start(5);
    if (!done())
        loop.exec();
}

/** The grid as the screen leaves it: its cards on standard output, its state's words on standard error. */
int report(const CardGridVC *grid)
{
    if (!grid)
        return toolFail(QStringLiteral("no grid"));
    for (const auto &card : grid->items()->cards())
        std::fprintf(stdout, "%lld\n", static_cast<long long>(card->json_id.value_or(0)));
    if (!grid->stateText().isEmpty())
        std::fprintf(stderr, "%s\n", qPrintable(grid->stateText()));
    return grid->loadingState() == CardGridVC::LoadingState::Failed ? 1 : 0;
}

/** Scrolls to the end of `page` as the footer refresh would, one page at a time. */
void pageTo(CardGridVC *grid, qint64 page)
{
    while (grid->page <= page) {
        const qint64 before = grid->page;
        grid->footerRefresh();
        waitFor([grid] { return !grid->busy(); });
        if (grid->page == before)
            return;
    }
}

int search(const Options &options, const Storyboard &storyboard, NavigationController &navigation)
{
    auto *screen = qobject_cast<SearchCatalogVC *>(storyboard.instantiate(QStringLiteral("SearchCatalogVC")));
    const qint64 subCategory = options.subCategory.value_or(imageStories);
    screen->isVideo = subCategory == videoStories;
    screen->isHightlight = subCategory == highlights;
    screen->isHightLightEditor = subCategory == highlights;
    navigation.push(screen, false);
    screen->setSearchBarText(*options.search);
    screen->confirmSearch();
    auto *results = qobject_cast<SearchGridVC *>(navigation.topViewController());
    if (!results)
        return toolFail(QStringLiteral("nothing to search for"));
    waitFor([results] { return !results->busy(); });
    std::fprintf(stderr, "%s\n", qPrintable(results->searchMessage()));
    return report(results);
}

int browse(const Options &options, const Storyboard &storyboard, NavigationController &navigation)
{
    const qint64 subCategory = *options.subCategory;
    const bool highlight = subCategory == highlights;
    CardGridVC *grid = nullptr;
    if (options.catalog) {
        auto *catalogGrid = qobject_cast<CatalogGridVC *>(
            storyboard.instantiate(highlight ? QStringLiteral("HightlightTempVC") : QStringLiteral("FeaturedTempVC")));
        catalogGrid->cat_id = *options.catalog;
        catalogGrid->subCatId = subCategory;
        catalogGrid->isVideo = subCategory == videoStories;
        navigation.push(catalogGrid, false);
        grid = catalogGrid;
    } else {
        auto *screen = qobject_cast<TemplateCatalogVC *>(
            storyboard.instantiate(highlight ? QStringLiteral("HightlightsTemplateVC") : QStringLiteral("TemplateVC")));
        screen->isVideo = subCategory == videoStories;
        navigation.push(screen, false);
        waitFor([screen] { return !screen->busy() && (!screen->grid() || !screen->grid()->busy()); });
        grid = screen->grid();
        if (!grid) {
            std::fprintf(stderr, "%s\n", qPrintable(screen->stateText()));
            return screen->retryVisible() ? 1 : 0;
        }
    }
    waitFor([grid] { return !grid->busy(); });
    pageTo(grid, options.page.value_or(1));
    return report(grid);
}

int run(const QStringList &args)
{
    const std::optional<Options> options = parse(args);
    if (!options)
        return toolFail(QStringLiteral("usage: ") + QLatin1String(usageText));
    const qint64 subCategory = options->subCategory.value_or(imageStories);
    if (subCategory != imageStories && subCategory != videoStories && subCategory != highlights)
        return toolFail(QStringLiteral("--sub-category is 47 (image stories), 48 (video stories) or 56 (highlights)"));

    QTemporaryDir freshHome;
    if (qEnvironmentVariableIsEmpty("QUILLET_HOME"))
        qputenv("QUILLET_HOME", freshHome.path().toUtf8());
    AppPaths::ensureCreated();

    QNetworkAccessManager network;
    ServerClient client(&network, ServerClient::apiBase(options->server));
    Storyboard storyboard;
    BrowseScreens::registerScreens(storyboard, &client, {});
    NavigationController navigation;
    navigation.setRoot(new ViewController());
    return options->search ? search(*options, storyboard, navigation) : browse(*options, storyboard, navigation);
}

const ToolCommand command("browse", usageText, run);

} // namespace
