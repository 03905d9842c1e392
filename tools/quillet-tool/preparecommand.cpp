// quillet-tool prepare: the preparation of one template card, headless, as the preview screen runs it.
#include "toolcommand.h"

#include "applog.h"
#include "apppaths.h"
#include "json.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "prefixurl.h"
#include "preparationscreens.h"
#include "qffontpicker.h"
#include "reachability.h"
#include "serverclient.h"
#include "showimagesample.h"
#include "storyboard.h"
#include "templatedataresponse.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QTemporaryDir>

#include <cstdio>

namespace {

const char *const usageText = "prepare --server URL --json-id N [--video] [--offline]";
// The font catalogs' sub-category on the content server.
constexpr qint64 fontSubCategory = 37;
// Where cards live: image stories, video stories, highlight covers.
constexpr qint64 imageStories = 47;
constexpr qint64 videoStories = 48;
constexpr qint64 highlights = 56;

/**
 * One answer of `getTemplateWithCatalogs` as the catalog screens read it: from the cache when offline (the
 * sub-category entry for `catalog_id` 0), else from the server, which caches it on the way.
 */
std::shared_ptr<TemplateDataResponse> catalogPage(
    ServerClient &client, bool offline, qint64 subCategory, qint64 catalogId, qint64 page)
{
    std::optional<QJsonObject> data;
    if (offline) {
        data = catalogId == 0 ? client.cachedTemplateWithCatalogs(subCategory)
                              : client.cachedTemplateWithCatalogs(subCategory, catalogId, page);
    } else {
        QEventLoop loop;
        const qint64 itemCount = subCategory == highlights ? 40 : 20;
        client.getTemplateWithCatalogs(subCategory, catalogId, page, itemCount, nullptr,
            [&](const std::optional<QJsonObject> &answer, const std::optional<ApiError> &, bool) {
                data = answer;
                loop.quit();
            });
        loop.exec();
    }
    return data ? Mapper::map<TemplateDataResponse>(*data) : nullptr;
}

std::shared_ptr<Json> cardIn(const TemplateDataResponse &answer, qint64 jsonId)
{
    for (const auto &card : answer.sample_cards.value_or(QList<std::shared_ptr<Json>>())) {
        if (card && card->json_id == jsonId)
            return card;
    }
    return nullptr;
}

/**
 * The card of `jsonId` the way the catalog screens come to it: the sub-category's answer with its catalogs
 * and the first catalog's first page, then each catalog page by page. Null when no page holds it.
 */
std::shared_ptr<Json> findCard(ServerClient &client, qint64 jsonId, bool video, bool offline)
{
    const QList<qint64> subCategories
        = video ? QList<qint64> { videoStories } : QList<qint64> { imageStories, highlights };
    for (const qint64 subCategory : subCategories) {
        const auto first = catalogPage(client, offline, subCategory, 0, 1);
        if (!first)
            continue;
        if (auto card = cardIn(*first, jsonId))
            return card;
        const auto catalogs = first->category_list.value_or(QList<std::shared_ptr<CategoryList>>());
        for (qsizetype i = 0; i < catalogs.size(); ++i) {
            // The first catalog's first page came with the sub-category's answer.
            qint64 page = i == 0 ? 2 : 1;
            bool more = i > 0 || first->is_next_page.value_or(false);
            while (more) {
                const auto answer
                    = catalogPage(client, offline, subCategory, catalogs.at(i)->catalog_id.value_or(0), page++);
                if (!answer)
                    break;
                if (auto card = cardIn(*answer, jsonId))
                    return card;
                more = answer->is_next_page.value_or(false);
            }
        }
    }
    return nullptr;
}

int run(const QStringList &args)
{
    QUrl server;
    qint64 jsonId = -1;
    bool video = false;
    bool offline = false;
    QStringList rest = args;
    while (!rest.isEmpty()) {
        const QString option = rest.takeFirst();
        if (option == QLatin1String("--video"))
            video = true;
        else if (option == QLatin1String("--offline"))
            offline = true;
        else if (option == QLatin1String("--server") && !rest.isEmpty())
            server = QUrl(rest.takeFirst());
        else if (option == QLatin1String("--json-id") && !rest.isEmpty())
            jsonId = rest.takeFirst().toLongLong();
        else
            return toolFail(QStringLiteral("usage: ") + QLatin1String(usageText));
    }
    if (!server.isValid() || server.host().isEmpty() || jsonId < 0)
        return toolFail(QStringLiteral("usage: ") + QLatin1String(usageText));

    QTemporaryDir freshHome;
    if (qEnvironmentVariableIsEmpty("QUILLET_HOME"))
        qputenv("QUILLET_HOME", freshHome.path().toUtf8());
    AppPaths::ensureCreated();

    QNetworkAccessManager network;
    const QUrl apiBase = ServerClient::apiBase(server);
    // The server in use is the base of a cached template's assets, as at the application's start.
    PrefixUrl::set(PrefixUrl::forServer(server));
    ServerClient client(&network, apiBase);
    QFFontpicker fontpicker(&network, FontpickerConnection { fontSubCategory, {}, {}, apiBase, {}, {}, {} });
    fontpicker.start();
    if (offline)
        Reachability::setForcedConnection(Reachability::Connection::Unavailable);
    const std::shared_ptr<Json> card = findCard(client, jsonId, video, offline);
    if (!card)
        return toolFail(QStringLiteral("no card with json_id %1").arg(jsonId));

    Storyboard storyboard;
    PreparationScreens::registerScreens(storyboard, &client, &fontpicker);
    NavigationController navigation;
    navigation.setRoot(new ViewController());
    auto *screen = static_cast<TemplateSample *>(
        storyboard.instantiate(video ? QStringLiteral("ShowVideoSample") : QStringLiteral("ShowImageSample")));
    screen->contentJson = card;
    screen->deviceOrientation = TemplateSample::orientationFor(*card);
    QEventLoop loop;
    QObject::connect(screen, &TemplateSample::stateChanged, &loop, [&] {
        if (screen->state() != TemplateSample::State::Loading)
            loop.quit();
    });
    navigation.push(screen, false);
    if (screen->state() == TemplateSample::State::Loading)
        loop.exec();

    const bool ready = screen->state() == TemplateSample::State::Ready;
    if (ready)
        std::fprintf(stdout, "%s\n", qPrintable(Mapper::toJSONString(*screen->contentJson, true).value_or(QString())));
    std::fprintf(stderr, "%s\n", ready ? "ready" : "failed");
    return ready ? 0 : 1;
}

const ToolCommand command("prepare", usageText, run);

} // namespace
