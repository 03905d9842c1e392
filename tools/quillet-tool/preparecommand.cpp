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

/** The card of `jsonId` as the catalogs give it (fresh or cached), or null. */
std::shared_ptr<Json> findCard(ServerClient &client, qint64 jsonId, bool video)
{
    const QList<qint64> subCategories
        = video ? QList<qint64> { videoStories } : QList<qint64> { imageStories, highlights };
    for (const qint64 subCategory : subCategories) {
        QEventLoop loop;
        std::optional<QJsonObject> first;
        client.getTemplateWithCatalogs(subCategory, 0, 1, 100, nullptr,
            [&](const std::optional<QJsonObject> &data, const std::optional<ApiError> &, bool) {
                first = data;
                loop.quit();
            });
        loop.exec();
        const auto answer = first ? Mapper::map<TemplateDataResponse>(*first) : nullptr;
        if (!answer)
            continue;
        for (const auto &catalog : answer->category_list.value_or(QList<std::shared_ptr<CategoryList>>())) {
            QEventLoop pageLoop;
            std::optional<QJsonObject> page;
            client.getTemplateWithCatalogs(subCategory, catalog->catalog_id.value_or(0), 1, 100, nullptr,
                [&](const std::optional<QJsonObject> &data, const std::optional<ApiError> &, bool) {
                    page = data;
                    pageLoop.quit();
                });
            pageLoop.exec();
            const auto cards = page ? Mapper::map<TemplateDataResponse>(*page) : nullptr;
            for (const auto &card :
                cards ? cards->sample_cards.value_or(QList<std::shared_ptr<Json>>()) : QList<std::shared_ptr<Json>>()) {
                if (card && card->json_id == jsonId)
                    return card;
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
    // The configured content base of this server: what a cached template's assets were fetched from.
    PrefixUrl::set(server.resolved(QUrl(QStringLiteral("/content/"))).toString());
    ServerClient client(&network, apiBase);
    QFFontpicker fontpicker(&network, FontpickerConnection { fontSubCategory, {}, {}, apiBase, {}, {}, {} });
    fontpicker.start();
    const std::shared_ptr<Json> card = findCard(client, jsonId, video);
    if (!card)
        return toolFail(QStringLiteral("no card with json_id %1").arg(jsonId));
    if (offline)
        Reachability::setForcedConnection(Reachability::Connection::Unavailable);

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
