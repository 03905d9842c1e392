// The catalog road's costs: the synchronous cache read a screen does when it opens, and one call on loopback.
#include "applog.h"
#include "contentserver.h"
#include "mapper.h"
#include "responsecache.h"
#include "serverclient.h"
#include "templatedataresponse.h"
#include "userdefaults.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>

namespace {

/** A first page as large as a highlight screen asks for: 40 cards under 8 catalogs. */
QJsonObject firstPage()
{
    nlohmann::ordered_json page = { { "total_record", 400 }, { "is_next_page", true } };
    for (int i = 0; i < 8; ++i)
        page["category_list"].push_back({ { "catalog_id", 100 + i }, { "name", "Catalog" },
            { "thumbnail_img", "http://127.0.0.1/content/resource/catalog.jpg" }, { "gradient_id", i } });
    for (int i = 0; i < 40; ++i)
        page["sample_cards"].push_back({ { "json_id", 1000 + i },
            { "sample_image", "http://127.0.0.1/content/resource/tpl_" + std::to_string(i) + ".jpg" },
            { "width", 1080 }, { "height", 1920 }, { "is_free", 1 }, { "is_featured", 0 }, { "is_portrait", 1 },
            { "is_offline", 0 }, { "updated_at", "2024-05-01 10:00:00" } });
    return Mapper::toQJsonObject(page);
}

void cachedFirstPage(benchmark::State &state)
{
    const QString key = QStringLiteral("http://127.0.0.1/api/public/api/getTemplateWithCatalogs47");
    ResponseCache::store(key, firstPage());
    for (auto _ : state) {
        const auto entry = ResponseCache::load(key, QString());
        benchmark::DoNotOptimize(Mapper::map<TemplateDataResponse>(*entry));
    }
}
BENCHMARK(cachedFirstPage)->Unit(benchmark::kMicrosecond);

void templatesOnLoopback(benchmark::State &state)
{
    ContentServer server;
    server.setAccessLog(false);
    if (server.start(ContentServer::defaultContentDir()) == 0) {
        state.SkipWithError("content server did not start; build the content-pack target");
        return;
    }
    QNetworkAccessManager network;
    ServerClient client(&network, QUrl(QString::fromStdString(server.apiBase())));
    const auto call = [&] {
        QEventLoop loop;
        client.getTemplateWithCatalogs(47, 0, 1, 20, nullptr, [&](const auto &, const auto &, bool) { loop.quit(); });
        loop.exec();
    };
    call(); // signs in
    for (auto _ : state)
        call();
}
BENCHMARK(templatesOnLoopback)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir home;
    qputenv("QUILLET_HOME", home.path().toUtf8());
    std::FILE *quiet = std::fopen("/dev/null", "w");
    AppLog::setOutput(quiet);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    AppLog::setOutput(stdout);
    std::fclose(quiet);
    return 0;
}
